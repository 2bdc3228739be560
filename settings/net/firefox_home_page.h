// Firefox's home page, an edit that stands on more than one page.
#pragma once

#include "settings/rows.h"

void LoadFirefoxHomePage(TPageContext& context, const TSpecialRow& row);
void RecordFirefoxHomePage(TPageContext& context, const TSpecialRow& row, TComponent& sender);

/// `edits` names the page's edit. The preferences must be loaded before the row is.
[[nodiscard]] constexpr TSpecialRow FirefoxHomePageRow(TControlNames edits) {
    return {.Controls = edits,
            .Value = Pref(L"\"browser.startup.homepage\""),
            .Rule =
                L"the value without its quotes and escapes, nothing when missing; writes the text in quotes, "
                L"with escapes",
            .Load = LoadFirefoxHomePage,
            .Record = RecordFirefoxHomePage};
}
