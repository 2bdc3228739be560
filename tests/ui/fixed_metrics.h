// A screen whose letters are all alike.
#pragma once

#include <algorithm>

#include "ui/layout_metrics.h"

/// Letters of 6 by 13 pixels at 96 dots per inch, wrapped anywhere; `percent` makes texts longer.
class TFixedMetrics : public TLayoutMetrics {
  public:
    explicit TFixedMetrics(int dotsPerInch, int percent = 100)
        : FDotsPerInch(dotsPerInch), FPercent(percent) {}

    [[nodiscard]] TSize TextSize(const std::wstring& caption, int maxWidth) const override {
        const int width = static_cast<int>(caption.size()) * Scale(6) * FPercent / 100;
        const int lines = maxWidth > 0 ? (width + maxWidth - 1) / maxWidth : 1;
        return {std::min(width, maxWidth), std::max(1, lines) * Scale(13)};
    }
    [[nodiscard]] int Scale(int distance) const override { return distance * FDotsPerInch / 96; }

  private:
    int FDotsPerInch;
    int FPercent;
};
