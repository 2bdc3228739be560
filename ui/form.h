// A form: the window, and the owner of every component on it.
#pragma once

#include <span>
#include <unordered_map>

#include "ui/component.h"
#include "ui/layout_box.h"

struct TControlDesign;

/// What only the native window of a form can do.
class TFormPeer : public TPeer {
  public:
    /// Closes the window, which ends in TForm::Destroyed.
    virtual void Close() = 0;
    /// See TForm::ShowModal.
    virtual void ShowModal(TForm& dialog) = 0;
    /// Scrolls the control into sight and gives it the focus.
    virtual void Reveal(TControl& control) = 0;
};

class TForm : public TControl {
  public:
    /// `name` is the component name, `className` the window class that the outside world finds the form by.
    TForm(std::wstring name, std::wstring className);
    ~TForm() override;

    [[nodiscard]] const std::wstring& ClassName() const { return FClassName; }

    /// Creates the controls that the design describes and puts them into `parent`, after those it has already.
    void Build(TControl& parent, const TControlDesign& design);

    /// Every component of the form, in the order of creation.
    [[nodiscard]] const std::vector<std::unique_ptr<TComponent>>& Components() const { return FComponents; }

    /// The control of that name, or null.
    [[nodiscard]] TControl* Find(const std::wstring& name) const;

    /// The control of that name and type; null when there is none or it is of another type.
    template <typename T>
    [[nodiscard]] T* Find(const std::wstring& name) const {
        return dynamic_cast<T*>(Find(name));
    }

    /// How the controls of a container stand in it.
    [[nodiscard]] const TLayoutBox& Layout(const TControl& container) const;

    /// Closes the window. Without a native window only the mark is set.
    void Close();
    [[nodiscard]] bool Closed() const { return FClosed; }

    /// Shows the dialog over this form, which waits until it is closed. A dialog is shown once. Does nothing without a
    /// native window, nor while the form waits for another dialog.
    void ShowModal(TForm& dialog);

    /// Chooses the sheets that the control lies on, scrolls it into sight and gives it the focus; while the form waits
    /// for a dialog, the control gets it in the end.
    void Reveal(TControl& control);

    /// Size of the client area at 96 dots per inch, of which no user can make it smaller. These are the main window's,
    /// which leave room for the frame on a screen of 800 by 600.
    int ClientWidth = 764;
    int ClientHeight = 572;
    bool CanMaximise = false;  ///< of a dialog; the main window always can

    std::wstring MarkText = L"changed";       ///< what a screen reader says of a marked control …
    std::wstring SelectedText = L"selected";  ///< … and of the selected item of a category bar

    TNotifyEvent OnShow;  ///< runs once, just before the window becomes visible

    TNotifyEvent OnFindKey;  ///< Ctrl+F is pressed, whatever has the focus

    TControl* FirstFocus = nullptr;  ///< of a dialog: gets the focus instead of the first control

    /// Parts of the window: F6 leads from one to the next and Shift+F6 back, to where the focus was last in it, else to the
    /// first of its controls that can have it. Each part is what lies in these controls, or is one of them.
    std::vector<std::vector<TControl*>> Panes;

    TNotifyEvent OnComeBack;  ///< the user comes back to the form from another program

    /// A control of the form, or null for none.
    using TControlEvent = std::function<void(TControl* control)>;
    TControlEvent OnFocus;  ///< it has got the focus
    TControlEvent OnPoint;  ///< the pointer has come to rest on it; also on one that is disabled
    TControlEvent OnHelp;   ///< F1 was pressed while it has the focus

    /// The client area has another height than before; in dots of 96 per inch.
    std::function<void(int height)> OnHeight;

    /// A command of the window's menu that switches something on and off, or only does something.
    struct TSwitch {
        std::wstring Caption;
        bool IsOn = false;
        bool Stays = true;  ///< as it is switched
        std::function<void(bool isOn)> OnClick;
    };
    std::vector<TSwitch> Switches;  ///< fixed once the window is shown

    // Called by the native window.
    void Show() { Fire(OnShow); }
    void ComeBack() { Fire(OnComeBack); }
    void FindKey() { Fire(OnFindKey); }

  private:
    TControl& Create(TControl& parent, const TControlDesign& design);
    void Populate(TControl& container, std::span<const TControlDesign> designs, TLayoutBox& box);

    std::wstring FClassName;
    std::vector<std::unique_ptr<TComponent>> FComponents;
    std::unordered_map<std::wstring, TControl*> FByName;
    std::unordered_map<const TControl*, TLayoutBox> FLayouts;
    bool FClosed = false;
};
