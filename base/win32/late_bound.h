// Functions that Windows 2000 lacks, looked up when they are needed; their libraries come from the system folder. The
// only place for such look-ups, on the lowest floor so that every floor can use it: the program's import table names
// nothing that Windows 2000 does not have.
#pragma once

#include <windows.h>

#include <string>

/// From now on libraries are not looked for in the program's folder, where anybody may have put one, nor in the current
/// one: SetDefaultDllDirectories, or where Windows lacks it SetDllDirectoryW (since Windows XP). Those libraries that are
/// known to be asked for are loaded from the system folder before the first one that asks.
void SearchSystemFolderOnly();

/// Does the same for what the common dialogs ask for, before the first of them: it would take a tenth of the start.
void LoadForCommonDialogs();

/// IsWow64Process: whether this is a 32-bit process on 64-bit Windows. False where Windows has no such function.
[[nodiscard]] bool ProcessIsWow64();

/// RtlGetVersion: the version of Windows that GetVersionExW keeps from programs that are older than it. False where Windows
/// has no such function.
[[nodiscard]] bool GetTrueVersion(OSVERSIONINFOEXW& version);

/// RegDeleteKeyExW: deletes a key without subkeys; `view` is 0 or KEY_WOW64_64KEY. Windows without that function has
/// one view only, where RegDeleteKeyW does it. Answers an error code, ERROR_SUCCESS when done.
[[nodiscard]] LONG DeleteKeyInView(HKEY parent, const wchar_t* name, REGSAM view);

/// EnableThemeDialogTexture: lets the theme paint a dialog's background as that of a tab's sheet. Windows without
/// themes does nothing.
void EnableThemeTabTexture(HWND dialog);

/// GetDpiForWindow: the dots per inch in which a window is drawn, of its screen where each has its own (since Windows 10).
/// Without that function those of all screens.
[[nodiscard]] int DotsPerInchOf(HWND window);
/// SystemParametersInfoForDpi: the fonts and measures that the user has chosen, for that many dots per inch. Without that
/// function as they are.
[[nodiscard]] NONCLIENTMETRICSW WindowMetricsFor(int dotsPerInch);
/// AdjustWindowRectExForDpi: makes a client area the window around it, by its styles. Without that function by those
/// measures that all windows have.
void AddFrame(RECT& area, HWND window, int dotsPerInch);

/// The Restart Manager (since Vista): asks a process to end as at the end of a session, without force, and starts it again
/// as it was. Without that manager, and when the process does not want to end, nothing happens.
void RestartProcess(DWORD processId);

/// GetFinalPathNameByHandleW: the path of an open file behind all symbolic links, empty when it cannot be told. So it is
/// before Vista, which has no symbolic links to files either.
[[nodiscard]] std::wstring FinalPathOf(HANDLE file);

/// AddVectoredExceptionHandler: lets `handler` see the process's exceptions before any frame does, until it is removed
/// with the answer. Null on Windows 2000, which has no such function.
[[nodiscard]] PVOID AddFirstHandler(PVECTORED_EXCEPTION_HANDLER handler);
/// RemoveVectoredExceptionHandler; null is ignored.
void RemoveFirstHandler(PVOID added);
