#include "ui/win32/page_peers.h"

#include <algorithm>

#include "base/win32/late_bound.h"
#include "ui/win32/form_window.h"
#include "ui/win32/peer_factory.h"

namespace {

// At 96 dots per inch.
constexpr int kSheetMargin = 11;
constexpr int kSheetSideMargin = 16;
constexpr int kMostWidth = 560;  // of the content, whose fields would else be far from their texts

}  // namespace

TNotebookPeer::TNotebookPeer(TFormWindow& form, TNotebook& notebook, HWND parent)
    : TContainerPeer(form, notebook, 0) {
    CreateContainer(parent, kContainerClass, WS_CHILD | DS_CONTROL, 0);
}

void TNotebookPeer::PlaceContent(const TRect& area) {
    for (const TControl* page : Control().Children()) {
        if (TWindowPeer* peer = PeerOf(*page)) peer->Place(area);
    }
}

void TNotebookPeer::CreatePage(TControl& page) {
    if (const TNotifyEvent& create = static_cast<TNotebookPage&>(page).OnCreate) create(page);
    CreatePeer(FForm, page, Handle());
    RECT area{};
    GetClientRect(Handle(), &area);
    if (TWindowPeer* peer = PeerOf(page)) peer->Place({0, 0, area.right, area.bottom});
}

void TNotebookPeer::ShowState() {
    if (Control().Peer() != this) return;  // still being created
    if (TControl* page = static_cast<TNotebook&>(Control()).ActivePage()) FForm.CreatePage(*page);
}

TPageControlPeer::TPageControlPeer(TFormWindow& form, TPageControl& tabs, HWND parent)
    : TWindowPeer(form, tabs) {
    // The sheets come first in the tab order, above the control that they cover.
    for (TControl* sheet : tabs.Children()) CreatePeer(form, *sheet, parent);
    Create(parent, WC_TABCONTROLW, WS_CLIPSIBLINGS | WS_TABSTOP | WS_GROUP);
}

void TPageControlPeer::Update(TControlAspect aspect) {
    TWindowPeer::Update(aspect);
    if (aspect == TControlAspect::Items) PlaceSheets();  // the tabs may need another number of lines
}

void TPageControlPeer::ShowItems() {
    Send(TCM_DELETEALLITEMS);
    int index = 0;
    for (const TTabSheet* sheet : static_cast<TPageControl&>(Control()).OfferedSheets()) {
        std::wstring caption = sheet->Caption();
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = caption.data();
        Send(TCM_INSERTITEMW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&item));
    }
}

void TPageControlPeer::ShowState() {
    const auto& tabs = static_cast<TPageControl&>(Control());
    const TTabSheet* active = tabs.ActiveSheet();
    const std::vector<TTabSheet*> sheets = tabs.OfferedSheets();
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        if (sheets[i] == active) Send(TCM_SETCURSEL, i);
    }
    if (Control().Peer() != this) return;  // still being created; the sheets are shown or hidden already
    for (TControl* sheet : Control().Children()) {
        if (TWindowPeer* peer = PeerOf(*sheet)) peer->Update(TControlAspect::Visible);
    }
}

LRESULT TPageControlPeer::OnNotify(NMHDR& header) {
    if (header.code != static_cast<UINT>(TCN_SELCHANGE)) return 0;
    auto& tabs = static_cast<TPageControl&>(Control());
    const std::vector<TTabSheet*> sheets = tabs.OfferedSheets();
    const auto chosen = static_cast<std::size_t>(Send(TCM_GETCURSEL));
    if (chosen < sheets.size()) tabs.SetActiveSheet(*sheets[chosen]);
    FForm.DrawAll();
    return 0;
}

void TPageControlPeer::Place(const TRect& place) {
    TWindowPeer::Place(place);
    PlaceSheets();
}

void TPageControlPeer::PlaceSheets() {
    RECT area{};
    GetWindowRect(Handle(), &area);
    MapWindowPoints(nullptr, GetParent(Handle()), reinterpret_cast<POINT*>(&area), 2);
    Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    for (const TControl* sheet : Control().Children()) {
        if (TWindowPeer* peer = PeerOf(*sheet))
            peer->Place({area.left, area.top, area.right - area.left, area.bottom - area.top});
    }
}

TTabSheetPeer::TTabSheetPeer(TFormWindow& form, TTabSheet& sheet, HWND parent)
    : TContainerPeer(form, sheet, kSheetMargin) {
    CreateContainer(parent, kContainerClass, WS_CHILD | DS_CONTROL, 0);
    EnableThemeTabTexture(Handle());
}

RECT TTabSheetPeer::ContentArea() const {
    const TScreen& screen = FForm.Screen();
    RECT area = TContainerPeer::ContentArea();
    InflateRect(&area, screen.Scale(kSheetMargin) - screen.Scale(kSheetSideMargin), 0);
    area.right = std::min(area.right, area.left + screen.Scale(kMostWidth));
    return area;
}

bool TTabSheetPeer::IsShown() const {
    return static_cast<const TPageControl*>(Control().Parent())->ActiveSheet() == &Control();
}

void TTabSheetPeer::Update(TControlAspect aspect) {
    if (aspect == TControlAspect::Visible && IsShown()) Fill();
    // A sheet's caption is on its tab.
    if (aspect == TControlAspect::Caption)
        Control().Parent()->Peer()->Update(TControlAspect::Items);
    else
        TContainerPeer::Update(aspect);
}

void TTabSheetPeer::Restyle() {
    TContainerPeer::Restyle();
    EnableThemeTabTexture(Handle());  // the theme may be new
}
