#include "ui/win32/screen.h"

TScreen::TScreen() : FMeasure(CreateCompatibleDC(nullptr)) {
    FDotsPerInch = GetDeviceCaps(FMeasure, LOGPIXELSY);
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    FFont = CreateFontIndirectW(&metrics.lfMessageFont);
    metrics.lfMessageFont.lfWeight = FW_BOLD;
    FBoldFont = CreateFontIndirectW(&metrics.lfMessageFont);
    SelectObject(FMeasure, FFont);
}

TScreen::~TScreen() {
    DeleteDC(FMeasure);
    DeleteObject(FFont);
    DeleteObject(FBoldFont);
}

TSize TScreen::TextSize(const std::wstring& caption, int maxWidth) const {
    RECT rect{0, 0, maxWidth, 0};
    DrawTextW(FMeasure, caption.c_str(), static_cast<int>(caption.size()), &rect, DT_CALCRECT | DT_WORDBREAK);
    return {static_cast<int>(rect.right), static_cast<int>(rect.bottom)};
}
