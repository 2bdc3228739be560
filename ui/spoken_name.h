// What a user reads beside a control, and a screen reader says of it.
#pragma once

#include "ui/component.h"

/// The control whose caption a user reads beside this one: itself, the label or box before it, or what it lies in.
[[nodiscard]] TControl& CaptionedBy(TControl& control);
[[nodiscard]] const TControl& CaptionedBy(const TControl& control);

/// A caption without its access key and the colon at its end.
[[nodiscard]] std::wstring PlainCaption(std::wstring caption);

/// The name of a control that shows none itself: its own caption, which says what it is for, or that beside it. Empty for
/// controls that show their names, and for those that need none.
[[nodiscard]] std::wstring SpokenName(const TControl& control);
