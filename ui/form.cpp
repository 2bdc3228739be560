#include "ui/form.h"

#include <stdexcept>

#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/design.h"

namespace {

/// Makes the component that a design describes, with everything that is fixed for its life.
std::unique_ptr<TControl> Make(const TControlDesign& design) {
    switch (*design.Kind) {
        case TComponentKind::Panel:
            return std::make_unique<TPanel>(design.Name);
        case TComponentKind::Notebook:
            return std::make_unique<TNotebook>(design.Name);
        case TComponentKind::NotebookPage:
            return std::make_unique<TNotebookPage>(design.Name);
        case TComponentKind::PageControl:
            return std::make_unique<TPageControl>(design.Name);
        case TComponentKind::TabSheet:
            return std::make_unique<TTabSheet>(design.Name);
        case TComponentKind::GroupBox:
            return std::make_unique<TGroupBox>(design.Name);
        case TComponentKind::Label:
            return std::make_unique<TLabel>(design.Name);
        case TComponentKind::CheckBox:
            return std::make_unique<TCheckBox>(design.Name);
        case TComponentKind::RadioButton:
            return std::make_unique<TRadioButton>(design.Name);
        case TComponentKind::Edit:
            return std::make_unique<TEdit>(design.Name);
        case TComponentKind::UpDown:
            return std::make_unique<TUpDown>(design.Name, design.Min, design.Max, design.Position);
        case TComponentKind::TrackBar:
            return std::make_unique<TTrackBar>(design.Name, design.Min, design.Max, design.Position);
        case TComponentKind::ComboBox:
            return std::make_unique<TComboBox>(design.Name, design.Items);
        case TComponentKind::Button:
            return std::make_unique<TButton>(design.Name);
        case TComponentKind::ColorSwatch:
            return std::make_unique<TColorSwatch>(design.Name, static_cast<TColor>(design.Position));
        case TComponentKind::Image:
            return std::make_unique<TImage>(design.Name, design.Picture, design.Position, design.PictureWidth,
                                            design.PictureHeight);
        case TComponentKind::ListView:
            return std::make_unique<TListView>(design.Name, design.Items, design.IsTable);
        case TComponentKind::CategoryBar:
            return std::make_unique<TCategoryBar>(design.Name);
        case TComponentKind::CategoryGroup:
            return std::make_unique<TCategoryGroup>(design.Name);
        case TComponentKind::CategoryItem:
            return std::make_unique<TCategoryItem>(design.Name, design.Position, design.Picture);
        case TComponentKind::Timer:
            return std::make_unique<TTimer>(design.Name, static_cast<unsigned>(design.Position));
        case TComponentKind::Form:
            break;
    }
    throw std::logic_error("a form is no part of a design");
}

/// Gives a new control the state of its design, before anyone listens to its events.
void SetDesignState(const TForm& form, TControl& control, const TControlDesign& design) {
    switch (control.Kind()) {
        case TComponentKind::CheckBox:
            static_cast<TCheckBox&>(control).SetChecked(design.IsChecked);
            break;
        case TComponentKind::RadioButton:
            static_cast<TRadioButton&>(control).SetChecked(design.IsChecked);
            break;
        case TComponentKind::Edit: {
            auto& edit = static_cast<TEdit&>(control);
            edit.SetText(design.Caption);
            edit.FiltersKeys = design.FiltersKeys;
            edit.IsPositive = design.IsPositive;
            edit.IsSender = design.IsSender;
            edit.WidthInCharacters = design.WidthInCharacters;
            return;  // the caption of its design is its text
        }
        case TComponentKind::Label:
            static_cast<TLabel&>(control).Lines = design.Lines;
            static_cast<TLabel&>(control).Look = design.Look;
            break;
        case TComponentKind::Panel:
            static_cast<TPanel&>(control).Look = design.PanelLook;
            break;
        case TComponentKind::UpDown: {
            auto* edit = form.Find<TEdit>(design.Associate);
            if (edit == nullptr) throw std::logic_error("an up-down without its edit");
            static_cast<TUpDown&>(control).SetAssociate(*edit);
            break;
        }
        default:
            break;
    }
    control.SetCaption(design.Caption);
}

}  // namespace

TForm::TForm(std::wstring name, std::wstring className)
    : TControl(TComponentKind::Form, std::move(name)), FClassName(std::move(className)) {}

TForm::~TForm() {
    // Peers of inner controls go before those of the controls they lie in.
    while (!FComponents.empty()) FComponents.pop_back();
}

void TForm::Build(TControl& parent, const TControlDesign& design) {
    Populate(parent, {&design, 1}, FLayouts[&parent]);
}

TControl& TForm::Create(TControl& parent, const TControlDesign& design) {
    std::unique_ptr<TControl> owned = Make(design);
    TControl& control = *owned;
    if (!FByName.emplace(control.Name(), &control).second)
        throw std::logic_error("two components of one name");
    FComponents.push_back(std::move(owned));
    control.FParent = &parent;
    parent.FChildren.push_back(&control);
    SetDesignState(*this, control, design);
    if (!design.IsVisible) control.SetVisible(false);
    if (!design.IsEnabled) control.SetEnabled(false);
    control.IsLate = design.IsLate;
    if (!design.Children.empty()) {
        TLayoutBox box;
        Populate(control, design.Children, box);
        FLayouts[&control] = std::move(box);
    }
    return control;
}

void TForm::Populate(TControl& container, std::span<const TControlDesign> designs, TLayoutBox& box) {
    for (const TControlDesign& design : designs) {
        TLayoutBox inner;
        inner.Kind = design.Layout;
        inner.Share = design.Share;
        if (design.Kind)
            inner.Control = &Create(container, design);
        else
            Populate(container, design.Children, inner);
        box.Boxes.push_back(std::move(inner));
    }
}

TControl* TForm::Find(const std::wstring& name) const {
    const auto found = FByName.find(name);
    return found == FByName.end() ? nullptr : found->second;
}

const TLayoutBox& TForm::Layout(const TControl& container) const {
    static const TLayoutBox kEmpty;
    const auto found = FLayouts.find(&container);
    return found == FLayouts.end() ? kEmpty : found->second;
}

void TForm::Close() {
    FClosed = true;
    if (Peer() != nullptr) static_cast<TFormPeer*>(Peer())->Close();
}

void TForm::ShowModal(TForm& dialog) {
    if (Peer() != nullptr) static_cast<TFormPeer*>(Peer())->ShowModal(dialog);
}

void TForm::Reveal(TControl& control) {
    for (TControl* around = &control; around != nullptr; around = around->Parent()) {
        if (around->Kind() == TComponentKind::TabSheet)
            static_cast<TPageControl*>(around->Parent())->SetActiveSheet(static_cast<TTabSheet&>(*around));
    }
    if (Peer() != nullptr) static_cast<TFormPeer*>(Peer())->Reveal(control);
}
