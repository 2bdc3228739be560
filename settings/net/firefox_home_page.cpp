#include "settings/net/firefox_home_page.h"

#include "engine/reg_value.h"
#include "settings/page_context.h"
#include "settings/store.h"
#include "ui/controls.h"

// Special because a text among the preferences has quotes, which the user neither sees nor types, and backslashes before
// those that he does type.

namespace {

std::wstring Quoted(const std::wstring& text) {
    std::wstring value(1, L'"');
    for (const wchar_t c : text) {
        if (c == L'"' || c == L'\\') value += L'\\';
        value += c;
    }
    return value + L'"';
}

std::wstring Unquoted(const std::wstring& value) {
    std::wstring text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const wchar_t next = i + 1 < value.size() ? value[i + 1] : L'\0';
        if (value[i] == L'\\' && (next == L'"' || next == L'\\'))
            text += value[++i];
        else if (value[i] != L'"')
            text += value[i];
    }
    return text;
}

}  // namespace

void LoadFirefoxHomePage(TPageContext& context, const TSpecialRow& row) {
    const std::wstring value = AsText(Stored(context, row.Value).value_or(TRegValue{}));
    context.Form.Find<TEdit>(row.Controls[0])->SetText(Unquoted(value));
}

void RecordFirefoxHomePage(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    RecordText(context, sender.Name(), row.Value, Quoted(static_cast<TEdit&>(sender).Text()));
}
