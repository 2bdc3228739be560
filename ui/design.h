// Forms as data: controls nested the way the user sees them. Positions are computed, so a design has none.
//
//   Sheet(L"TabSheet_Drives_Common", L"General",
//         Group(L"GroupBox_Drives_Common_NTFS", L"NTFS file system",
//               CheckBox(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData", L"Record the last access")),
//         Buttons(Button(L"Button_Drives_Common_Default", L"&Default")))
#pragma once

#include <initializer_list>
#include <optional>
#include <span>

#include "base/decimal.h"
#include "ui/color.h"
#include "ui/component.h"
#include "ui/layout_box.h"

struct TControlDesign;
using TDesigns = std::vector<TControlDesign>;

/// One control of a form, or (when `Kind` is absent) an arrangement of controls that is no control itself.
struct TControlDesign {
    std::optional<TComponentKind> Kind;
    TLayoutKind Layout = TLayoutKind::Control;
    std::wstring Name;
    std::wstring Caption;  ///< in English; for an edit its text
    TDesigns Children;

    bool IsVisible = true;
    bool IsEnabled = true;
    bool IsChecked = false;
    bool FiltersKeys = false;
    bool IsPositive = false;
    bool IsSender = false;
    bool IsTable = false;
    bool IsLate = false;
    int Lines = 0;  ///< of a label; 0 = what its text needs
    TTextLook Look = TTextLook::Plain;
    TPanelLook PanelLook = TPanelLook::Plain;
    int Share = 1;
    int Min = 0;
    int Max = 100;
    int Position = 0;           ///< position, item index, interval, tag, colour or frames, as the kind has it
    int WidthInCharacters = 0;  ///< of an edit; 0 = what the row leaves
    std::vector<std::wstring> Items;
    std::wstring Associate;  ///< of an up-down: the edit beside it
    std::wstring Picture;
    int PictureWidth = 32;  ///< at 96 dots per inch
    int PictureHeight = 32;

    // Forms hold hundreds of designs: what every one of them would repeat is compiled once.
    TControlDesign();
    TControlDesign(const TControlDesign& other);
    TControlDesign(TControlDesign&& other) noexcept;
    TControlDesign& operator=(const TControlDesign& other);
    TControlDesign& operator=(TControlDesign&& other) noexcept;
    ~TControlDesign();

    TControlDesign&& Hidden() &&;
    TControlDesign&& Disabled() &&;
    /// Of what the form itself holds: its window is created as soon as the form has appeared; its place is kept.
    TControlDesign&& Late() &&;
    TControlDesign&& Checked() &&;
    // Of the edit of an up-down: see TEdit.
    TControlDesign&& FilteringKeys() &&;
    TControlDesign&& Positive() &&;
    TControlDesign&& Sender() &&;
    TControlDesign&& Width(int characters) &&;
    /// Of what takes the height that others leave: how much of it, beside the shares of its neighbours.
    TControlDesign&& Sharing(int share) &&;
};

/// What the functions below are made of: a container or arrangement with its content.
TControlDesign Arrangement(TLayoutKind layout, TDesigns content);
TControlDesign Container(TComponentKind kind, const wchar_t* name, const wchar_t* caption, TDesigns content);

/// Moves the designs out of the array.
TDesigns Collect(TControlDesign* const* designs, std::size_t count);

template <typename... TContent>
TDesigns Designs(TContent&&... content) {
    TControlDesign* const designs[] = {&content..., nullptr};
    return Collect(designs, sizeof...(content));
}

// Arrangements.
template <typename... TContent>
TControlDesign Column(TContent&&... content) {
    return Arrangement(TLayoutKind::Column, Designs(content...));
}
template <typename... TContent>
TControlDesign Row(TContent&&... content) {
    return Arrangement(TLayoutKind::Row, Designs(content...));
}
template <typename... TContent>
TControlDesign Buttons(TContent&&... content) {
    return Arrangement(TLayoutKind::Buttons, Designs(content...));
}
/// A row at the left end of the line, buttons at its right end.
template <typename TLeft, typename TRight>
TControlDesign Ends(TLeft&& left, TRight&& right) {
    return Arrangement(TLayoutKind::Ends, Designs(left, right));
}
template <typename... TContent>
TControlDesign Fields(TContent&&... rows) {
    return Arrangement(TLayoutKind::Fields, Designs(rows...));
}
template <typename... TContent>
TControlDesign Stack(TContent&&... content) {
    return Arrangement(TLayoutKind::Stack, Designs(content...));
}
template <typename... TContent>
TControlDesign Indent(TContent&&... content) {
    return Arrangement(TLayoutKind::Indent, Designs(content...));
}
template <typename... TContent>
TControlDesign Center(TContent&&... content) {
    return Arrangement(TLayoutKind::Center, Designs(content...));
}
template <typename... TContent>
TControlDesign Overlay(TContent&&... content) {
    return Arrangement(TLayoutKind::Overlay, Designs(content...));
}

// Containers.
template <typename... TContent>
TControlDesign NotebookPage(int tag, TContent&&... content) {
    return Container(TComponentKind::NotebookPage, DecimalText(tag).c_str(), L"", Designs(content...));
}
/// The tabs of a notebook page.
template <typename... TSheets>
TControlDesign PageControl(const wchar_t* name, TSheets&&... sheets) {
    return Container(TComponentKind::PageControl, name, L"", Designs(sheets...));
}
/// Buttons below its other content stand at its lower left.
TControlDesign SheetOf(const wchar_t* name, const wchar_t* caption, TDesigns content);
template <typename... TContent>
TControlDesign Sheet(const wchar_t* name, const wchar_t* caption, TContent&&... content) {
    return SheetOf(name, caption, Designs(content...));
}
/// Buttons below its other content stand at its left.
TControlDesign GroupOf(const wchar_t* name, const wchar_t* caption, TDesigns content);
template <typename... TContent>
TControlDesign Group(const wchar_t* name, const wchar_t* caption, TContent&&... content) {
    return GroupOf(name, caption, Designs(content...));
}
template <typename... TContent>
TControlDesign Panel(const wchar_t* name, TContent&&... content) {
    return Container(TComponentKind::Panel, name, L"", Designs(content...));
}
/// A panel that stands out by a pale ground and a frame.
template <typename... TContent>
TControlDesign Card(const wchar_t* name, TContent&&... content) {
    TControlDesign design = Panel(name, content...);
    design.PanelLook = TPanelLook::Card;
    return design;
}
template <typename... TContent>
TControlDesign Header(const wchar_t* name, TContent&&... content) {
    TControlDesign design = Panel(name, content...);
    design.PanelLook = TPanelLook::Header;
    return design;
}

// Controls.
TControlDesign Label(const wchar_t* name, const wchar_t* caption);
/// A text on a card or header, of a fixed number of lines whatever it says; see TLabel.
TControlDesign CardLabel(const wchar_t* name, const wchar_t* caption, int lines, TTextLook look);
TControlDesign CheckBox(const wchar_t* name, const wchar_t* caption);
TControlDesign RadioButton(const wchar_t* name, const wchar_t* caption);
TControlDesign Button(const wchar_t* name, const wchar_t* caption);
TControlDesign Edit(const wchar_t* name, const wchar_t* text = L"");
/// Stands right after its edit, whose number has the same bounds.
TControlDesign UpDown(const wchar_t* name, const wchar_t* edit, int min, int max, int position);
TControlDesign TrackBar(const wchar_t* name, int min, int max, int position);
/// The items of a list that stands in more than one place.
using TItems = std::span<const wchar_t* const>;
TControlDesign ComboBox(const wchar_t* name, TItems items);
TControlDesign ComboBox(const wchar_t* name, std::initializer_list<const wchar_t*> items);
TControlDesign ColorSwatch(const wchar_t* name, TColor color = 0);
TControlDesign Image(const wchar_t* name, const wchar_t* picture, int frames = 1);
/// An image that is no icon, of that many dots at 96 per inch.
TControlDesign Image(const wchar_t* name, const wchar_t* picture, int width, int height);
/// A list with a check box before each row.
TControlDesign ListView(const wchar_t* name, std::initializer_list<const wchar_t*> columns);
/// A list without check boxes, whose rows can be selected.
TControlDesign Table(const wchar_t* name, std::initializer_list<const wchar_t*> columns);
TControlDesign Timer(const wchar_t* name, int milliseconds);

// The main window's navigation.
TControlDesign CategoryBar(const wchar_t* name, TDesigns groups);
TControlDesign CategoryGroup(const wchar_t* name, const wchar_t* caption, TDesigns items);
TControlDesign CategoryItem(const wchar_t* name, const wchar_t* caption, int tag, const wchar_t* picture);
TControlDesign Notebook(const wchar_t* name, TDesigns pages);
