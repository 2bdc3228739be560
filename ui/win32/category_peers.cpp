#include "ui/win32/category_peers.h"

#include <algorithm>
#include <utility>

#include "ui/win32/form_window.h"
#include "ui/win32/paint_buffer.h"

namespace {

constexpr int kBarMargin = 3;
constexpr DWORD kContainerStyle = WS_CHILD | DS_CONTROL;

std::vector<TControl*> VisibleChildren(const TControl& container) {
    std::vector<TControl*> visible = container.Children();
    std::erase_if(visible, [](const TControl* child) { return !child->Visible(); });
    return visible;
}

}  // namespace

TCategoryBarPeer::TCategoryBarPeer(TFormWindow& form, TCategoryBar& bar, HWND parent)
    : TContainerPeer(form, bar, kBarMargin) {
    CreateContainer(parent, kContainerClass, kContainerStyle, 0);
    // Windows takes the border from a dialog that is a control; it comes with the first size.
    SetWindowLongPtrW(Handle(), GWL_STYLE, GetWindowLongPtrW(Handle(), GWL_STYLE) | WS_BORDER);
}

int TCategoryBarPeer::ContentHeight(int /*width*/) const {
    const TCategoryMetrics metrics(FForm.Screen());
    int height = 0;
    for (const TControl* group : VisibleChildren(Control()))
        height += (height > 0 ? metrics.GroupGap : 0) +
                  TCategoryGroupPeer::Height(*group, metrics, metrics.LeastItemHeight);
    return height;
}

void TCategoryBarPeer::PlaceContent(const TRect& area) {
    const TCategoryMetrics metrics(FForm.Screen());
    const std::vector<TControl*> groups = VisibleChildren(Control());
    // Items are higher, and then groups stand further apart, where the bar is taller than it must be.
    int items = 0;
    for (const TControl* group : groups) items += static_cast<int>(VisibleChildren(*group).size());
    int spare = std::max(0, area.Height - ContentHeight(area.Width));
    const int growth = std::min(spare / std::max(1, items), metrics.ItemHeight - metrics.LeastItemHeight);
    spare -= growth * items;
    const int gaps = std::max(1, static_cast<int>(groups.size()) - 1);
    const int gap = std::min(metrics.GroupGap + spare / gaps, metrics.MostGroupGap);
    int top = area.Top;
    for (const TControl* group : groups) {
        const int height = TCategoryGroupPeer::Height(*group, metrics, metrics.LeastItemHeight + growth);
        if (TWindowPeer* peer = PeerOf(*group)) peer->Place({area.Left, top, area.Width, height});
        top += height + gap;
    }
}

LRESULT TCategoryBarPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: {
            RECT area{};
            GetClientRect(Handle(), &area);
            FillArea(reinterpret_cast<HDC>(wParam), area, TCategoryColors().Bar());
            return TRUE;
        }
        case WM_NCPAINT: {
            const LRESULT result = TContainerPeer::OnMessage(message, wParam, lParam);
            PaintFrame();
            return result;
        }
        default:
            return TContainerPeer::OnMessage(message, wParam, lParam);
    }
}

void TCategoryBarPeer::ShowFocus() {
    if (std::exchange(FShowsFocus, true)) return;
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

/// Draws over the black line that Windows draws.
void TCategoryBarPeer::PaintFrame() const {
    RECT frame{};
    GetWindowRect(Handle(), &frame);
    OffsetRect(&frame, -frame.left, -frame.top);
    const HDC target = GetWindowDC(Handle());
    const HBRUSH brush = CreateSolidBrush(TCategoryColors().Frame());
    FrameRect(target, &frame, brush);
    DeleteObject(brush);
    ReleaseDC(Handle(), target);
}

TCategoryGroupPeer::TCategoryGroupPeer(TFormWindow& form, TCategoryGroup& group, HWND parent)
    : TContainerPeer(form, group, 0) {
    CreateContainer(parent, kContainerClass, kContainerStyle, 0);
}

int TCategoryGroupPeer::Height(const TControl& group, const TCategoryMetrics& metrics, int itemHeight) {
    return metrics.HeaderHeight + static_cast<int>(VisibleChildren(group).size()) * itemHeight;
}

/// An item came or went: the whole bar must follow.
void TCategoryGroupPeer::LayOut() {
    PlaceItems();
    FForm.LayOutLater(Control());
}

void TCategoryGroupPeer::PlaceItems() {
    const TCategoryMetrics metrics(FForm.Screen());
    RECT area{};
    GetClientRect(Handle(), &area);
    const std::vector<TControl*> items = VisibleChildren(Control());
    const int room = static_cast<int>(area.bottom) - metrics.HeaderHeight;
    const int height = std::max(room / std::max(1, static_cast<int>(items.size())), metrics.LeastItemHeight);
    int top = metrics.HeaderHeight;
    for (const TControl* item : items) {
        if (TWindowPeer* peer = PeerOf(*item)) peer->Place({0, top, static_cast<int>(area.right), height});
        top += height;
    }
}

void TCategoryGroupPeer::Update(TControlAspect aspect) {
    TContainerPeer::Update(aspect);
    if (aspect == TControlAspect::Caption) InvalidateRect(Handle(), nullptr, FALSE);
}

LRESULT TCategoryGroupPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            PlaceItems();
            return 0;
        case WM_MOUSEWHEEL:
            return SendMessageW(GetParent(Handle()), message, wParam, lParam);  // the bar scrolls
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
        case WM_PRINTCLIENT:
            PaintWindow(Handle(), message, wParam, [this](HDC target) { Paint(target); });
            return 0;
        default:
            return TContainerPeer::OnMessage(message, wParam, lParam);
    }
}

void TCategoryGroupPeer::Paint(HDC target) const {
    const TCategoryMetrics metrics(FForm.Screen());
    const TCategoryColors colors;
    RECT area{};
    GetClientRect(Handle(), &area);
    if (area.right <= 0) return;
    FillArea(target, {area.left, metrics.HeaderHeight, area.right, area.bottom}, colors.Bar());

    area.bottom = metrics.HeaderHeight;
    TPaintBuffer buffer(target, area);
    FillArea(buffer.Handle(), area, colors.Header());
    FillArea(buffer.Handle(), {area.left, area.bottom - 1, area.right, area.bottom}, colors.HeaderLine());
    SelectObject(buffer.Handle(), FForm.Screen().BoldFont());
    SetBkMode(buffer.Handle(), TRANSPARENT);
    SetTextColor(buffer.Handle(), colors.HeaderText());
    RECT text{metrics.HeaderIndent, area.top, area.right - metrics.TextRight, area.bottom - 1};
    const std::wstring& caption = Control().Caption();
    DrawTextW(buffer.Handle(), caption.c_str(), static_cast<int>(caption.size()), &text,
              DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}
