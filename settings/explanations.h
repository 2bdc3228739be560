// What a user wants to know of a setting beyond its caption.
#pragma once

#include "platform/ext_ini_file.h"

/// The lines NAME.Hint=… of languages/English.lng with the headers of their sections, as gzip compresses them. The build
/// makes the unit that has them.
extern const std::span<const std::uint8_t> kPackedExplanations;

/// What such bytes hold; nothing when they are broken.
[[nodiscard]] TExtIniFile UnpackExplanations(std::span<const std::uint8_t> packed);

/// In English, of the settings and presets by their names: what each does, for whom it is worth changing and what to watch
/// for. They are unpacked by the first call.
[[nodiscard]] const TExtIniFile& Explanations();
