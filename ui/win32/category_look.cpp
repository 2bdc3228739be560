#include "ui/win32/category_look.h"

#include <algorithm>
#include <cstdlib>

#include "ui/pixels.h"

namespace {

constexpr COLORREF kProductColor = RGB(0x21, 0x5D, 0xC6);
constexpr COLORREF kAmber = RGB(0x92, 0x66, 0x14);

// How much of the product's colour is in a tint of the window colour.
constexpr int kHeaderTint = 9;
constexpr int kHeaderLineTint = 30;
constexpr int kLineTint = 18;
constexpr int kHotTint = 7;
constexpr int kHotFrameTint = 22;
constexpr int kSelectedTint = 18;
constexpr int kSelectedFrameTint = 45;
constexpr int kPressedTint = 28;
constexpr int kHeaderTextShade = 45;
constexpr int kCardTint = 5;
constexpr int kQuietShade = 40;  // of the ground in a text

/// What is drawn in a colour that is nearer to its ground than this cannot be read.
constexpr int kLeastItemContrast = 90;

/// Window colours darker than this leave no contrast to the items' colours.
constexpr int kLightestDark = 160;

bool IsHighContrast() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace

TCategoryColors::TCategoryColors()
    : FSystemOnly(IsHighContrast() || Lightness(GetSysColor(COLOR_WINDOW)) <= kLightestDark),
      FBar(GetSysColor(COLOR_WINDOW)) {
    if (FSystemOnly) {
        FFrame = GetSysColor(COLOR_WINDOWFRAME);
        FHeader = GetSysColor(COLOR_3DFACE);
        FHeaderLine = GetSysColor(COLOR_WINDOWFRAME);
        FHeaderText = GetSysColor(COLOR_BTNTEXT);
        FAccent = GetSysColor(COLOR_HIGHLIGHT);
    } else {
        FFrame = GetSysColor(COLOR_3DSHADOW);
        FHeader = Tint(kHeaderTint);
        FHeaderLine = Tint(kHeaderLineTint);
        FHeaderText = MixColors(kProductColor, GetSysColor(COLOR_WINDOWTEXT), kHeaderTextShade);
        FAccent = kProductColor;
    }
}

COLORREF TCategoryColors::Tint(int percent) const { return MixColors(FBar, kProductColor, percent); }

TCategoryColors::TPanel TCategoryColors::Panel(TPanelLook look) const {
    const bool isCard = look == TPanelLook::Card && !FSystemOnly;
    const COLORREF ground = isCard ? Tint(kCardTint) : GetSysColor(COLOR_3DFACE);
    const COLORREF text = GetSysColor(isCard ? COLOR_WINDOWTEXT : COLOR_BTNTEXT);
    if (FSystemOnly) return {ground, text, text, text, FHeaderLine, text};
    const auto readable = [&](COLORREF color) {
        return std::abs(Lightness(color) - Lightness(ground)) >= kLeastItemContrast ? color : text;
    };
    return {ground,
            text,
            readable(FHeaderText),
            readable(MixColors(text, ground, kQuietShade)),
            MixColors(ground, kProductColor, kLineTint),
            readable(kAmber)};
}

TCategoryColors::TItem TCategoryColors::Item(const TCategoryItem& item, bool hot, bool pressed) const {
    if (FSystemOnly) return SystemItem(item, hot);
    if (!item.Enabled()) return {FBar, FBar, GetSysColor(COLOR_GRAYTEXT)};
    if (pressed) return {Tint(kPressedTint), Tint(kSelectedFrameTint), item.Color()};
    if (item.Selected()) return {Tint(kSelectedTint), Tint(kSelectedFrameTint), item.Color()};
    if (hot) return {Tint(kHotTint), Tint(kHotFrameTint), item.Color()};
    return {FBar, FBar, item.Color()};
}

TCategoryColors::TItem TCategoryColors::SystemItem(const TCategoryItem& item, bool hot) const {
    if (!item.Enabled()) return {FBar, FBar, GetSysColor(COLOR_GRAYTEXT)};
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    if (item.Selected()) return {highlight, highlight, GetSysColor(COLOR_HIGHLIGHTTEXT)};
    return {FBar, hot ? highlight : FBar, GetSysColor(COLOR_WINDOWTEXT)};
}

TCategoryMetrics::TCategoryMetrics(const TScreen& screen) {
    const int line = screen.TextSize(L"0", 1 << 20).Height;
    GroupGap = screen.Scale(1);
    MostGroupGap = screen.Scale(10);
    HeaderHeight = line + screen.Scale(7);
    HeaderIndent = screen.Scale(6);
    PictureSize = screen.Scale(16);
    ItemHeight = std::max(PictureSize, line) + screen.Scale(6);
    LeastItemHeight = std::max(PictureSize, line) + screen.Scale(2);
    MarkWidth = screen.Scale(3);
    PictureLeft = screen.Scale(8);
    TextLeft = PictureLeft + PictureSize + screen.Scale(6);
    TextRight = screen.Scale(4);
    DotRight = screen.Scale(7);
}
