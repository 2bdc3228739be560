// What a user calls a control: the text that stands for it on its sheet.
#pragma once

#include "ui/component.h"

/// The control whose text a user reads beside this one: itself, the label or box before it, or its group.
[[nodiscard]] TControl& CaptionedBy(TControl& control);

/// A caption without its access key and the colon at its end.
[[nodiscard]] std::wstring PlainCaption(std::wstring caption);
