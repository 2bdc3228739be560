#include "ui/win32/peer_factory.h"

#include "ui/win32/button_peers.h"
#include "ui/win32/card_peers.h"
#include "ui/win32/category_peers.h"
#include "ui/win32/color_swatch_peer.h"
#include "ui/win32/field_peers.h"
#include "ui/win32/form_window.h"
#include "ui/win32/image_peer.h"
#include "ui/win32/list_view_peer.h"
#include "ui/win32/page_peers.h"
#include "ui/win32/range_peers.h"
#include "ui/win32/table_peer.h"

namespace {

/// A panel covers what lies beside it, so it is created above its siblings.
class TPanelPeer : public TPlainContainerPeer {
  public:
    TPanelPeer(TFormWindow& form, TPanel& panel, HWND parent) : TPlainContainerPeer(form, panel, parent, 0) {
        Update(TControlAspect::Front);
    }
};

template <typename TPeerClass, typename TControlClass>
std::unique_ptr<TPeer> Make(TFormWindow& form, TControl& control, HWND parent) {
    return std::make_unique<TPeerClass>(form, static_cast<TControlClass&>(control), parent);
}

std::unique_ptr<TPeer> MakePeer(TFormWindow& form, TControl& control, HWND parent) {
    switch (control.Kind()) {
        case TComponentKind::Panel:
            return static_cast<TPanel&>(control).Look != TPanelLook::Plain
                       ? Make<TCardPeer, TPanel>(form, control, parent)
                       : Make<TPanelPeer, TPanel>(form, control, parent);
        case TComponentKind::Notebook:
            return Make<TNotebookPeer, TNotebook>(form, control, parent);
        case TComponentKind::NotebookPage:
            return std::make_unique<TPlainContainerPeer>(form, control, parent, 0);
        case TComponentKind::PageControl:
            return Make<TPageControlPeer, TPageControl>(form, control, parent);
        case TComponentKind::TabSheet:
            return Make<TTabSheetPeer, TTabSheet>(form, control, parent);
        case TComponentKind::GroupBox:
            return Make<TGroupBoxPeer, TGroupBox>(form, control, parent);
        case TComponentKind::Label:
            return static_cast<TLabel&>(control).Lines > 0
                       ? Make<TCardLabelPeer, TLabel>(form, control, parent)
                       : Make<TLabelPeer, TLabel>(form, control, parent);
        case TComponentKind::CheckBox:
            return Make<TCheckBoxPeer, TCheckBox>(form, control, parent);
        case TComponentKind::RadioButton:
            return Make<TRadioButtonPeer, TRadioButton>(form, control, parent);
        case TComponentKind::Edit:
            return Make<TEditPeer, TEdit>(form, control, parent);
        case TComponentKind::UpDown:
            return Make<TUpDownPeer, TUpDown>(form, control, parent);
        case TComponentKind::TrackBar:
            return Make<TTrackBarPeer, TTrackBar>(form, control, parent);
        case TComponentKind::ComboBox:
            return Make<TComboBoxPeer, TComboBox>(form, control, parent);
        case TComponentKind::Button:
            return Make<TPushButtonPeer, TButton>(form, control, parent);
        case TComponentKind::ColorSwatch:
            return Make<TColorSwatchPeer, TColorSwatch>(form, control, parent);
        case TComponentKind::Image:
            return Make<TImagePeer, TImage>(form, control, parent);
        case TComponentKind::ListView:
            return static_cast<TListView&>(control).IsTable()
                       ? Make<TTablePeer, TListView>(form, control, parent)
                       : Make<TCheckListPeer, TListView>(form, control, parent);
        case TComponentKind::CategoryBar:
            return Make<TCategoryBarPeer, TCategoryBar>(form, control, parent);
        case TComponentKind::CategoryGroup:
            return Make<TCategoryGroupPeer, TCategoryGroup>(form, control, parent);
        case TComponentKind::CategoryItem:
            return Make<TCategoryItemPeer, TCategoryItem>(form, control, parent);
        case TComponentKind::Timer:
            return std::make_unique<TTimerPeer>(form, static_cast<TTimer&>(control));
        case TComponentKind::Form:
            break;
    }
    return nullptr;
}

void CreatePeerAndContent(TFormWindow& form, TControl& control, HWND parent) {
    control.SetPeer(MakePeer(form, control, parent));
    switch (control.Kind()) {
        case TComponentKind::Notebook:
            control.Peer()->Update(TControlAspect::State);  // creates the chosen page, the others come later
            return;
        case TComponentKind::NotebookPage:
        case TComponentKind::TabSheet:
            return;  // their content comes later, too
        case TComponentKind::PageControl:
            return;  // it must see its sheets before itself
        default:
            if (auto* container = dynamic_cast<TContainerPeer*>(control.Peer())) container->CreateContent();
            return;
    }
}

}  // namespace

void CreatePeer(TFormWindow& form, TControl& control, HWND parent) {
    try {
        CreatePeerAndContent(form, control, parent);
    } catch (...) {
        form.Fault(std::current_exception());
    }
}
