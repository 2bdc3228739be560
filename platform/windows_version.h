// Which Windows this is, by name and by level.
#pragma once

#include <string_view>

#include "platform/system.h"

/// The name of the running Windows, such as "Windows XP". A Windows that the program does not know leaves `name` as it was.
void GetOSName(const TSystem& system, std::wstring& name);

/// 11 Windows 11, 10 Windows 10, 9 Windows 8.1, 8, 7, 6 Vista, 5 XP, 4 Windows 2000, and from Windows 8 on the servers of
/// these lines likewise; 0 any other name: Server 2003 counts as older than XP.
[[nodiscard]] int WindowsLevel(std::wstring_view osName);
