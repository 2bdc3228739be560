// The form of the Input Options page, and the numbers that its sliders and its rows share.
#pragma once

#include "ui/design.h"

// Windows' dialog makes trails of two to seven pointers.
inline constexpr int kShortestTrail = 2;
inline constexpr int kLongestTrail = 7;

[[nodiscard]] TControlDesign InputDesign();
