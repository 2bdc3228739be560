#include "platform/win32/win32_system.h"

TWin32System::TWin32System(TDialogs& dialogs)
    : FSystem{FRegistry, FParameters, FServices, FShell, FFiles, FWindows, dialogs, FClock} {
    // Otherwise Windows asks for a disk when a path leads to an empty drive.
    SetErrorMode(SetErrorMode(0) | SEM_FAILCRITICALERRORS);
}
