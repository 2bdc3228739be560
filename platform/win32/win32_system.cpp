#include "platform/win32/win32_system.h"

TWin32System::TWin32System(TDialogs& dialogs)
    : FSystem{FRegistry, FParameters, FServices, FShell, FFiles, FWindows, dialogs, FClock} {}
