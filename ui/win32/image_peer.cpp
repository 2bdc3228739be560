#include "ui/win32/image_peer.h"

#include <algorithm>

#include "base/decimal.h"
#include "ui/win32/form_window.h"
#include "ui/win32/paint_buffer.h"

TImagePeer::TImagePeer(TFormWindow& form, TImage& image, HWND parent) : TWindowPeer(form, image) {
    Create(parent, WC_STATICW, SS_OWNERDRAW);
}

void TImagePeer::ShowState() { InvalidateRect(Handle(), nullptr, FALSE); }

void TImagePeer::OnDraw(const DRAWITEMSTRUCT& item) {
    const auto& image = static_cast<const TImage&>(Control());
    const RECT& area = item.rcItem;
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (width <= 0 || height <= 0) return;

    TPaintBuffer buffer(item.hDC, area);
    const auto device = reinterpret_cast<WPARAM>(buffer.Handle());
    const LRESULT background =
        SendMessageW(GetParent(Handle()), WM_CTLCOLORSTATIC, device, reinterpret_cast<LPARAM>(Handle()));
    FillRect(buffer.Handle(), &area, reinterpret_cast<HBRUSH>(background));

    std::wstring name = image.Picture();
    if (image.Frames() > 1) name += L"_" + DecimalText(image.Frame());
    const TPicture* picture =
        FForm.Pictures().Find(name, std::min(height, width * image.Height() / image.Width()));
    if (picture == nullptr) return;
    picture->Draw(buffer.Handle(), area.left + (width - picture->Width()) / 2,
                  area.top + (height - picture->Height()) / 2);
}
