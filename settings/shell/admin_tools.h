// The switch "Administrative Tools in the Start menu", which stands on more than one page.
#pragma once

#include "settings/explorer_keys.h"

void LoadAdminTools(TPageContext& context, const TSpecialRow& row);
void RecordAdminTools(TPageContext& context, const TSpecialRow& row, TComponent& sender);

inline constexpr TPlace kAdminToolsPlace{kCurrentUser, kExplorerAdvanced, L"StartMenuAdminTools"};

/// `controls` names the page's check box.
[[nodiscard]] constexpr TSpecialRow AdminToolsRow(TControlNames controls) {
    return {.Controls = controls,
            .Value = kAdminToolsPlace,
            .Rule =
                L"checked unless it is 0, \"NO\" or missing; writes 1 or 0, on Windows 2000 \"YES\" or "
                L"\"NO\", and since XP "
                L"also `Start_AdminToolsRoot`: 2 (in both columns) or 0",
            .Load = LoadAdminTools,
            .Record = RecordAdminTools};
}
