// Which Windows this is, by name and by level.
#pragma once

#include <string_view>

#include "platform/system.h"

/// The name of the running Windows, such as "Windows XP". A Windows that the program does not know (8 and later)
/// leaves `name` as it was.
void GetOSName(const TSystem& system, std::wstring& name);

/// 7 Windows 7, 6 Vista, 5 XP, 4 Windows 2000, 0 any other name: Server 2003 too counts as older than XP.
[[nodiscard]] int WindowsLevel(std::wstring_view osName);
