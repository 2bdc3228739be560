#include "ui/win32/color_swatch_peer.h"

#include "ui/win32/automation_name.h"
#include "ui/win32/paint_buffer.h"

TColorSwatchPeer::TColorSwatchPeer(TFormWindow& form, TColorSwatch& swatch, HWND parent)
    : TWindowPeer(form, swatch) {
    Create(parent, WC_STATICW, SS_OWNERDRAW, WS_EX_CLIENTEDGE);
    Subclass();
}

void TColorSwatchPeer::ShowState() {
    const ULONG_PTR mark = kColorMark + static_cast<const TColorSwatch&>(Control()).Color();
    SetPropW(Handle(), kColorProperty, reinterpret_cast<HANDLE>(mark));
    InvalidateRect(Handle(), nullptr, FALSE);
}

void TColorSwatchPeer::OnDraw(const DRAWITEMSTRUCT& item) {
    FillArea(item.hDC, item.rcItem, static_cast<const TColorSwatch&>(Control()).Color());
}
