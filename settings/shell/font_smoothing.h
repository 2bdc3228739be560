// Font smoothing: a list that stands on more than one page.
#pragma once

#include "settings/rows.h"

class TComboBox;

/// The list's items: off, standard, ClearType.
inline constexpr const wchar_t* kFontSmoothingTypes[] = {L"No Smoothing", L"Standard Font Smoothing",
                                                         L"ClearType"};

/// Shows what is in force in the list that is the row's only control.
void LoadFontSmoothing(TPageContext& context, const TSpecialRow& row);

/// Records the list's choice under `changeName`, and the type under `changeName` with "1" behind it. Switching smoothing off
/// leaves a type that was recorded before in the list of changes.
void RecordFontSmoothing(TPageContext& context, const std::wstring& changeName, const TComboBox& list);

inline constexpr TPlace kFontSmoothing{kCurrentUser, L"\\Control Panel\\Desktop\\", L"FontSmoothing"};
inline constexpr const wchar_t* kFontSmoothingRule =
    L"the system parameters 0x4A (off: item 0) and 0x200A (the type; before XP always item 1); sets 0x4B to "
    L"0 or 1, "
    L"and since XP 0x200B to the type when it is on";
