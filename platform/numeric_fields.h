// Bounded numeric fields: edits that hold a number between two bounds. They behave alike on every page: while the
// user types, a number above the maximum becomes the maximum; when the focus leaves, a number below the minimum or no
// text at all becomes the minimum; and every change is handed to the page.
#pragma once

#include "ui/controls.h"

/// Gives the edit of an up-down the behaviour of a numeric field with the up-down's bounds, and lets only digits be
/// typed into it. To be called before the form's native window exists. `changed` is the page's shared handler; it is
/// told of the up-down, or of the edit where that is the sender.
///
/// Changes that come from elsewhere while the edit has no focus are not looked at. A text that is no 32-bit number
/// stays as it is, and the edit's event throws an EConvertError.
void BindNumericField(TUpDown& upDown, const TNotifyEvent& changed);
