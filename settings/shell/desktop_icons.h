// What the desktop-icons dialog sets: the icons on the desktop and in My Computer, and the drives that are hidden.
#pragma once

#include "settings/page.h"

inline constexpr const wchar_t* kDesktopIconsCaption = L"Icons and Drives";

/// A page outside the notebook: three sheets.
[[nodiscard]] const TPageDefinition& DesktopIcons();
