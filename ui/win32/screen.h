// The screen as layouts and peers need it: resolution, the window fonts, text sizes.
#pragma once

#include <windows.h>

#include <unordered_map>

#include "ui/layout_metrics.h"

class TScreen : public TLayoutMetrics {
  public:
    /// Takes the message font that the user has chosen in Windows, for a screen of that many dots per inch.
    explicit TScreen(int dotsPerInch);
    ~TScreen() override;
    TScreen(const TScreen&) = delete;
    TScreen& operator=(const TScreen&) = delete;

    [[nodiscard]] TSize TextSize(const std::wstring& caption, int maxWidth) const override;
    [[nodiscard]] int Scale(int distance) const override { return MulDiv(distance, FDotsPerInch, 96); }

    /// A number of pixels in dots of 96 per inch.
    [[nodiscard]] int Unscale(int pixels) const { return MulDiv(pixels, 96, FDotsPerInch); }

    [[nodiscard]] int DotsPerInch() const { return FDotsPerInch; }

    /// Whether the fonts and measures are still those that Windows has.
    [[nodiscard]] bool IsCurrent() const;

    [[nodiscard]] HFONT Font() const { return FFont; }
    [[nodiscard]] HFONT BoldFont() const { return FBoldFont; }
    /// Half as large again as the others, and bold.
    [[nodiscard]] HFONT HeadingFont() const { return FHeadingFont; }

  private:
    [[nodiscard]] TSize Measure(const std::wstring& caption, int maxWidth) const;

    int FDotsPerInch;
    NONCLIENTMETRICSW FMetrics;
    HFONT FFont;
    HFONT FBoldFont;
    HFONT FHeadingFont;
    HBITMAP FMeasured;  ///< of the screen's kind: on one of two colours texts can be narrower
    HDC FMeasure;       ///< a memory device context that holds it and the font
    mutable std::unordered_map<std::wstring, TSize> FUnwrapped;  ///< the sizes of captions that were measured
};
