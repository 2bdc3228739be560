#include "ui/win32/screen.h"

#include <cstring>

namespace {

constexpr int kUnlimited = 1 << 20;

/// Beside a text, at 96 dots per inch: what draws it may round otherwise.
constexpr int kSlack = 2;

HBITMAP ScreenBitmap() {
    const HDC screen = GetDC(nullptr);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 1, 1);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

NONCLIENTMETRICSW ReadMetrics() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics;
}

}  // namespace

TScreen::TScreen()
    : FMetrics(ReadMetrics()), FMeasured(ScreenBitmap()), FMeasure(CreateCompatibleDC(nullptr)) {
    FDotsPerInch = GetDeviceCaps(FMeasure, LOGPIXELSY);
    LOGFONTW font = FMetrics.lfMessageFont;
    FFont = CreateFontIndirectW(&font);
    font.lfWeight = FW_BOLD;
    FBoldFont = CreateFontIndirectW(&font);
    font.lfHeight = font.lfHeight * 3 / 2;
    FHeadingFont = CreateFontIndirectW(&font);
    SelectObject(FMeasure, FMeasured);
    SelectObject(FMeasure, FFont);
}

TScreen::~TScreen() {
    DeleteDC(FMeasure);
    DeleteObject(FMeasured);
    DeleteObject(FFont);
    DeleteObject(FBoldFont);
    DeleteObject(FHeadingFont);
}

bool TScreen::IsCurrent() const {
    const NONCLIENTMETRICSW now = ReadMetrics();
    return std::memcmp(&now, &FMetrics, sizeof now) == 0;
}

TSize TScreen::TextSize(const std::wstring& caption, int maxWidth) const {
    // A layout asks often, and mostly for what needs no wrapping.
    const auto [known, isNew] = FUnwrapped.try_emplace(caption);
    if (isNew) known->second = Measure(caption, kUnlimited);
    return known->second.Width <= maxWidth ? known->second : Measure(caption, maxWidth);
}

TSize TScreen::Measure(const std::wstring& caption, int maxWidth) const {
    RECT rect{0, 0, maxWidth, 0};
    DrawTextW(FMeasure, caption.c_str(), static_cast<int>(caption.size()), &rect, DT_CALCRECT | DT_WORDBREAK);
    const int slack = caption.empty() ? 0 : Scale(kSlack);
    return {static_cast<int>(rect.right) + slack, static_cast<int>(rect.bottom)};
}
