// The keys that a form takes whichever of its controls has the focus.
#pragma once

#include <windows.h>

class TFormWindow;

/// Does what the key is for; false when the message is not about such a key.
[[nodiscard]] bool PressFormKey(TFormWindow& form, const MSG& message);
