// Gives controls their native side.
#pragma once

#include <windows.h>

#include "ui/component.h"

class TFormWindow;

/// Creates the peer of a control, which then owns it, and the peers of the controls in it. A fault is told to the form;
/// the control then has no peer, or lacks some of its content.
void CreatePeer(TFormWindow& form, TControl& control, HWND parent);
