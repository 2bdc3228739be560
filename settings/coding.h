// The codings of settings/place.h: what a stored value means to a control, and how what a control shows is kept.
#pragma once

#include <optional>

#include "settings/place.h"

// The cursor's blink time in milliseconds, between the ends of the slider of Windows' own dialog. The further right
// ours stands, the faster the cursor blinks; where it would blink still slower than the slowest, it does not, which Windows
// keeps as -1.
inline constexpr int kSlowestBlink = 1200;
inline constexpr int kFastestBlink = 200;
inline constexpr int kDefaultBlink = 530;
/// Of Windows' own blink time.
inline constexpr int kDefaultBlinkSpeed = 2000;
/// Turns a blink time into a speed and a speed into a blink time.
constexpr int MirrorBlink(int value) { return kDefaultBlinkSpeed + kDefaultBlink - value; }
inline constexpr int kFastestBlinkSpeed = MirrorBlink(kFastestBlink);
/// The slider's left end.
inline constexpr int kNoBlinkSpeed = MirrorBlink(kSlowestBlink + 100);

/// What the stored value means. Nothing when it is none of the place's coding.
[[nodiscard]] std::optional<TRegValue> Decode(const TPlace& place, TRegValue stored);

/// A value as a place keeps it.
struct TKept {
    TRegDataType Type;
    TRegValue Value;
};

/// `stored` is what is there now, of which other bits and bytes stay.
[[nodiscard]] TKept Encode(const TPlace& place, std::int32_t number, const std::optional<TRegValue>& stored);
[[nodiscard]] TKept Encode(const TPlace& place, const std::wstring& text);
