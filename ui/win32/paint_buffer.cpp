#include "ui/win32/paint_buffer.h"

void FillArea(HDC target, const RECT& area, COLORREF color) {
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(target, &area, brush);
    DeleteObject(brush);
}

void PaintWindow(HWND window, UINT message, WPARAM wParam, const std::function<void(HDC)>& draw) {
    if (message == WM_PRINTCLIENT) return draw(reinterpret_cast<HDC>(wParam));
    PAINTSTRUCT paint{};
    BeginPaint(window, &paint);
    if (!IsRectEmpty(&paint.rcPaint)) draw(paint.hdc);
    EndPaint(window, &paint);
}

TPaintBuffer::TPaintBuffer(HDC target, const RECT& area) : FTarget(target), FArea(area) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = area.right - area.left;
    info.bmiHeader.biHeight = -(area.bottom - area.top);  // negative: top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    FMemory = CreateCompatibleDC(target);
    FBitmap = CreateDIBSection(target, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (FBitmap == nullptr) return;
    FBits = static_cast<std::uint32_t*>(bits);
    FPreviousBitmap = SelectObject(FMemory, FBitmap);
    SetViewportOrgEx(FMemory, -area.left, -area.top, nullptr);
}

TPaintBuffer::~TPaintBuffer() {
    if (FBitmap != nullptr) {
        BitBlt(FTarget, FArea.left, FArea.top, FArea.right - FArea.left, FArea.bottom - FArea.top, FMemory,
               FArea.left, FArea.top, SRCCOPY);
        SelectObject(FMemory, FPreviousBitmap);
        DeleteObject(FBitmap);
    }
    DeleteDC(FMemory);
}

void TPaintBuffer::CopyTarget() {
    if (FBitmap == nullptr) return;
    BitBlt(FMemory, FArea.left, FArea.top, FArea.right - FArea.left, FArea.bottom - FArea.top, FTarget,
           FArea.left, FArea.top, SRCCOPY);
}

std::span<std::uint32_t> TPaintBuffer::Pixels() const {
    if (FBitmap == nullptr) return {};
    GdiFlush();  // what was drawn may still wait in a queue
    return {FBits, static_cast<std::size_t>(FArea.right - FArea.left) *
                       static_cast<std::size_t>(FArea.bottom - FArea.top)};
}
