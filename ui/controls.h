// The kinds of controls that forms are made of.
//
// A control fires its event whenever its state changes, whoever changed it: the user, a loader, a Default button.
// Setting a state that it already has fires nothing.
#pragma once

#include <set>

#include "ui/color.h"
#include "ui/component.h"

/// Keys that a control may take for itself, though elsewhere in a form they mean something else.
enum class TKey { Enter, Escape, Down };

/// True when the key is used up.
using TKeyEvent = std::function<bool(TKey key)>;

class TLabel : public TControl {
  public:
    explicit TLabel(std::wstring name) : TControl(TComponentKind::Label, std::move(name)) {}

    /// How many lines it is high, whatever its text: what has no place in them is cut. A plain text is wrapped, of another
    /// each line stays one. 0 = as high as the text needs.
    int Lines = 0;
    TTextLook Look = TTextLook::Plain;  ///< of one with a fixed number of lines
    /// A line that ends with it shows it apart, at its right end and in a colour that warns.
    std::wstring Notice;
};

class TGroupBox : public TControl {
  public:
    explicit TGroupBox(std::wstring name) : TControl(TComponentKind::GroupBox, std::move(name)) {}
};

class TPanel : public TControl {
  public:
    explicit TPanel(std::wstring name) : TControl(TComponentKind::Panel, std::move(name)) {}

    TPanelLook Look = TPanelLook::Plain;
};

class TButton : public TControl {
  public:
    explicit TButton(std::wstring name) : TControl(TComponentKind::Button, std::move(name)) {}

    /// What a user's press does; a disabled button does nothing.
    void Click() {
        if (Enabled()) Fire(OnClick);
    }

    TNotifyEvent OnClick;
    bool Default = false;  ///< pressed by Enter
    bool Cancel = false;   ///< pressed by Escape
};

class TCheckBox : public TControl {
  public:
    explicit TCheckBox(std::wstring name) : TControl(TComponentKind::CheckBox, std::move(name)) {}

    [[nodiscard]] bool Checked() const { return FChecked; }
    void SetChecked(bool checked);

    TNotifyEvent OnClick;

  private:
    bool FChecked = false;
};

class TRadioButton : public TControl {
  public:
    explicit TRadioButton(std::wstring name) : TControl(TComponentKind::RadioButton, std::move(name)) {}

    [[nodiscard]] bool Checked() const { return FChecked; }
    /// Checking clears the other radio buttons of the same parent without firing their events.
    void SetChecked(bool checked);

    TNotifyEvent OnClick;

  private:
    void ClearSiblings();

    bool FChecked = false;
};

class TUpDown;

/// Its caption is what it is for: it stands in the edit as long as that is empty and has no focus, and screen readers say
/// it.
class TEdit : public TControl {
  public:
    explicit TEdit(std::wstring name) : TControl(TComponentKind::Edit, std::move(name)) {}

    [[nodiscard]] const std::wstring& Text() const { return FText; }
    /// An up-down paired with the edit follows a text that is a number within its bounds, without firing.
    void SetText(const std::wstring& text);

    /// Whether an up-down stands within its frame.
    [[nodiscard]] bool HasUpDown() const { return FUpDown != nullptr; }

    [[nodiscard]] bool Focused() const { return FFocused; }
    /// Called by the peer when the input focus comes or goes; losing it fires OnExit.
    void SetFocused(bool focused);
    /// Called by the peer when the focus comes from another control of the form.
    void Enter(TControl& from) const {
        if (OnEnter) OnEnter(from);
    }
    /// Fires OnExit as if the focus left for a moment: what is about to use the text finds it as leaving makes it.
    void Commit();

    /// Called by the peer for a typed character; false when the edit discards it.
    [[nodiscard]] bool AcceptsKey(wchar_t key) const { return !OnKeyPress || OnKeyPress(key); }

    TNotifyEvent OnChange;                        ///< every change of the text
    TNotifyEvent OnExit;                          ///< the focus left the edit
    std::function<void(TControl& from)> OnEnter;  ///< the focus comes from another control of the form
    std::function<bool(wchar_t key)> OnKeyPress;  ///< whether a typed character passes
    TKeyEvent OnKey;          ///< with it, Enter and Escape are never those of the form's buttons
    bool DigitsOnly = false;  ///< no other characters can be typed
    // Of a numeric field:
    bool FiltersKeys = false;   ///< typed characters other than digits and Backspace are discarded
    bool IsPositive = false;    ///< a number of 0 or less becomes 1 while the user types
    bool IsSender = false;      ///< changes are told as the edit's own, not as those of its up-down
    int WidthInCharacters = 0;  ///< 0 = as wide as the row lets it be

  private:
    friend class TUpDown;

    std::wstring FText;
    bool FFocused = false;
    TUpDown* FUpDown = nullptr;
};

/// A number with bounds. Positions outside the bounds are moved to the nearer one.
class TRangeControl : public TControl {
  public:
    TRangeControl(TComponentKind kind, std::wstring name, int min, int max, int position);

    [[nodiscard]] int Min() const { return FMin; }
    [[nodiscard]] int Max() const { return FMax; }
    [[nodiscard]] int Position() const { return FPosition; }
    void SetPosition(int position);

    TNotifyEvent OnChange;

  protected:
    /// Told of every position that is set, also when it is the old one, before the event fires.
    virtual void PositionSet() {}
    int FPosition;

  private:
    int FMin;
    int FMax;
};

class TTrackBar : public TRangeControl {
  public:
    TTrackBar(std::wstring name, int min, int max, int position)
        : TRangeControl(TComponentKind::TrackBar, std::move(name), min, max, position) {}
};

/// A pair of arrows beside an edit that shows the position.
class TUpDown : public TRangeControl {
  public:
    TUpDown(std::wstring name, int min, int max, int position)
        : TRangeControl(TComponentKind::UpDown, std::move(name), min, max, position) {}

    /// Pairs the up-down with the edit, which then shows the position.
    void SetAssociate(TEdit& edit);
    [[nodiscard]] TEdit* Associate() const { return FAssociate; }

  private:
    friend class TEdit;

    void PositionSet() override;
    void FollowText(const std::wstring& text);

    TEdit* FAssociate = nullptr;
};

/// A drop-down list.
class TComboBox : public TControl {
  public:
    TComboBox(std::wstring name, std::vector<std::wstring> items)
        : TControl(TComponentKind::ComboBox, std::move(name)), FItems(std::move(items)) {}

    [[nodiscard]] const std::vector<std::wstring>& Items() const { return FItems; }
    /// Replaces an item's text; the selection stays.
    void SetItem(std::size_t index, const std::wstring& text);

    /// The chosen item, -1 when none is.
    [[nodiscard]] int ItemIndex() const { return FItemIndex; }
    /// An index that is no item's chooses none.
    void SetItemIndex(int index);
    /// Chooses the first item without firing, as a list does whose items were just replaced.
    void Reinitialise();

    TNotifyEvent OnChange;

  private:
    std::vector<std::wstring> FItems;
    int FItemIndex = -1;
};

/// A field that shows one colour.
class TColorSwatch : public TControl {
  public:
    TColorSwatch(std::wstring name, TColor color)
        : TControl(TComponentKind::ColorSwatch, std::move(name)), FColor(color) {}

    [[nodiscard]] TColor Color() const { return FColor; }
    void SetColor(TColor color);

  private:
    TColor FColor;
};

/// A picture of the program's resources, or one frame of a series of them.
class TImage : public TControl {
  public:
    /// `picture` is the picture's base name; the frames of a series are called picture_0, picture_1, ….
    TImage(std::wstring name, std::wstring picture, int frames, int width, int height)
        : TControl(TComponentKind::Image, std::move(name)),
          FPicture(std::move(picture)),
          FFrames(frames),
          FWidth(width),
          FHeight(height) {}

    [[nodiscard]] const std::wstring& Picture() const { return FPicture; }
    void SetPicture(const std::wstring& picture);
    [[nodiscard]] int Frames() const { return FFrames; }
    /// At 96 dots per inch.
    [[nodiscard]] int Width() const { return FWidth; }
    [[nodiscard]] int Height() const { return FHeight; }
    [[nodiscard]] int Frame() const { return FFrame; }
    void SetFrame(int frame);

  private:
    std::wstring FPicture;
    int FFrames;
    int FWidth;
    int FHeight;
    int FFrame = 0;
};

/// A list with columns. Its rows have check boxes; or it is a table, whose rows can be selected, opened and deleted. Its
/// caption is what screen readers call it.
class TListView : public TControl {
  public:
    struct TRow {
        std::vector<std::wstring> Cells;  ///< one text per column
        bool Checked = false;
    };

    TListView(std::wstring name, std::vector<std::wstring> columns, bool isTable)
        : TControl(TComponentKind::ListView, std::move(name)),
          FColumns(std::move(columns)),
          FIsTable(isTable) {}

    [[nodiscard]] bool IsTable() const { return FIsTable; }

    bool SelectsOne = false;  ///< of a table: no more than one row can be selected
    std::wstring EmptyText;   ///< of a table: stands there while it has no rows
    [[nodiscard]] const std::vector<std::wstring>& Columns() const { return FColumns; }
    void SetColumn(std::size_t index, const std::wstring& caption);
    [[nodiscard]] const std::vector<TRow>& Rows() const { return FRows; }
    /// The new rows are not selected, nor is any of them focused.
    void SetRows(std::vector<TRow> rows);
    void SetRowChecked(std::size_t index, bool checked);

    // Of a table.
    /// The selected rows from the top.
    [[nodiscard]] std::vector<std::size_t> Selected() const { return {FSelected.begin(), FSelected.end()}; }
    /// The first of them is focused; numbers that are no row's are left out.
    void SetSelected(const std::vector<std::size_t>& rows);
    void SetSelected(const std::vector<std::size_t>& rows, int focusedRow);
    /// The row that the keyboard is at, -1 when there is none.
    [[nodiscard]] int FocusedRow() const { return FFocusedRow; }
    /// What a double click on the row, or Enter, does.
    void Open(std::size_t row);
    /// What the Delete key does.
    void Delete() { Fire(OnDelete); }

    TNotifyEvent OnChange;  ///< a row was checked or cleared
    TNotifyEvent OnSelect;  ///< other rows than before are selected
    TNotifyEvent OnOpen;    ///< the focused row is to be opened
    TNotifyEvent OnDelete;  ///< the selected rows are to be deleted
    TKeyEvent OnKey;  ///< told of Escape; with it, Enter and Escape are never those of the form's buttons

  private:
    std::vector<std::wstring> FColumns;
    bool FIsTable;
    std::vector<TRow> FRows;
    std::set<std::size_t> FSelected;
    int FFocusedRow = -1;
};

/// Repeats an event while it is enabled. It has no place in the window, only a peer that ticks.
class TTimer : public TControl {
  public:
    TTimer(std::wstring name, unsigned interval)
        : TControl(TComponentKind::Timer, std::move(name)), FInterval(interval) {
        SetEnabled(false);
    }

    [[nodiscard]] unsigned Interval() const { return FInterval; }  ///< milliseconds
    /// Called by the peer.
    void Tick() {
        if (Enabled()) Fire(OnTimer);
    }

    TNotifyEvent OnTimer;

  private:
    unsigned FInterval;
};
