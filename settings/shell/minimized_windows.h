// Where minimised windows stand on the desktop: three lists that stand on more than one page.
#pragma once

#include "settings/rows.h"

/// The items of the three lists.
inline constexpr const wchar_t* kMinimizedArrangements[] = {L"Hidden", L"In a row", L"In a column"};
inline constexpr const wchar_t* kMinimizedSides[] = {L"From the left", L"From the right"};
inline constexpr const wchar_t* kMinimizedEdges[] = {L"At the top", L"At the bottom"};

/// The shell sets ARW_HIDE whenever it starts, so that the choice does not outlive the session.
inline constexpr const wchar_t* kMinimizedNote =
    L"Windows sets the arrangement back to Hidden at every logon.";

void LoadMinimizedWindows(TPageContext& context, const TSpecialRow& row);
void RecordMinimizedWindows(TPageContext& context, const TSpecialRow& row, TComponent& sender);

/// `controls` names the page's lists: arrangement, left or right side, upper or lower edge.
[[nodiscard]] constexpr TSpecialRow MinimizedWindowsRow(TControlNames controls) {
    return {.Controls = controls,
            .Value = {kCurrentUser, L"\\Control Panel\\Desktop\\WindowMetrics\\", L"MinArrange"},
            .Rule =
                L"the system parameter 0x2B (MINIMIZEDMETRICS); set by 0x2C with another iArrange, all else "
                L"as it is",
            .Load = LoadMinimizedWindows,
            .Record = RecordMinimizedWindows};
}
