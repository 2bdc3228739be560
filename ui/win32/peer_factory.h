// Gives controls their native side.
#pragma once

#include <windows.h>

#include "ui/component.h"

class TFormWindow;

/// Creates the peer of a control, which then owns it, and the peers of the controls in it.
void CreatePeer(TFormWindow& form, TControl& control, HWND parent);
