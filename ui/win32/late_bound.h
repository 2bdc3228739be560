// Functions of Windows that Windows 2000 lacks, looked up when they are first needed. The only place for such
// look-ups: the program's import table names nothing that Windows 2000 does not have.
#pragma once

#include <windows.h>

/// The function of that name in a library of the system folder (never of the program's or the current folder);
/// null when there is no such library or function. The library stays loaded.
[[nodiscard]] FARPROC FindSystemFunction(const wchar_t* library, const char* function);

/// uxtheme, Windows XP: lets the theme paint a dialog's background as that of a tab's sheet.
void EnableThemeTabTexture(HWND dialog);
