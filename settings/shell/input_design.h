// The form of the Input Options page, and the numbers that its sliders and its rows share.
#pragma once

#include "ui/design.h"

// The cursor's blink time in milliseconds, between the ends of the slider of Windows' own dialog. The further right
// ours stands, the faster the cursor blinks; where it would blink still slower than the slowest, it does not.
inline constexpr int kSlowestBlink = 1200;
inline constexpr int kFastestBlink = 200;
inline constexpr int kDefaultBlink = 530;
/// Of Windows' own blink time. The File Types page's Default button knows it, too.
inline constexpr int kDefaultBlinkSpeed = 2000;
/// Turns a blink time into a position and a position into a blink time.
constexpr int MirrorBlink(int value) { return kDefaultBlinkSpeed + kDefaultBlink - value; }

// Windows' dialog makes trails of two to seven pointers.
inline constexpr int kShortestTrail = 2;
inline constexpr int kLongestTrail = 7;

[[nodiscard]] TControlDesign InputDesign();
