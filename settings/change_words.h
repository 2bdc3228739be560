// What a change does, in the user's language: where it is, and what is there.
#pragma once

#include "engine/change_set.h"
#include "settings/captions.h"

/// The text with each of the values in the place of %1, %2, ….
[[nodiscard]] std::wstring Formatted(std::wstring text, std::initializer_list<std::wstring> values);

[[nodiscard]] std::wstring PlaceWords(const TTarget& target, const TCaptions& captions);

/// What is at the target; long data are cut.
[[nodiscard]] std::wstring ContentWords(const TTarget& target, const TContent& content,
                                        const TCaptions& captions);
