#include "settings/net/firefox_home_page.h"

#include "engine/reg_value.h"
#include "settings/page_context.h"
#include "settings/store.h"
#include "ui/controls.h"

// Special because a text among the preferences has quotes, which the user neither sees nor types.

void LoadFirefoxHomePage(TPageContext& context, const TSpecialRow& row) {
    std::wstring address = AsText(Stored(context, row.Value).value_or(TRegValue{}));
    std::erase(address, L'"');
    context.Form.Find<TEdit>(row.Controls[0])->SetText(address);
}

void RecordFirefoxHomePage(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    RecordText(context, sender.Name(), row.Value, L'"' + static_cast<TEdit&>(sender).Text() + L'"');
}
