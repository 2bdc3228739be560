// Functions that Windows 2000 lacks, looked up when they are needed. Their libraries come from the system folder.
#pragma once

#include <windows.h>

/// IsWow64Process: whether this is a 32-bit process on 64-bit Windows. False where Windows has no such function.
[[nodiscard]] bool ProcessIsWow64();

/// RegDeleteKeyExW: deletes a key without subkeys; `view` is 0 or KEY_WOW64_64KEY. Windows without that function has one
/// view only, where RegDeleteKeyW does it. Answers an error code, ERROR_SUCCESS when done.
[[nodiscard]] LONG DeleteKeyInView(HKEY parent, const wchar_t* name, REGSAM view);
