// Keeps the mouse wheel from changing a setting: a user who scrolls a sheet comes across its controls.
#pragma once

#include <windows.h>

/// Lets the window hand the wheel on to its parent, but for a drop-down list while it is open. What else subclasses the
/// window must have done so before, or the wheel never comes here.
void PassWheelOn(HWND window);
