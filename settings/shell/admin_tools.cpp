#include "settings/shell/admin_tools.h"

#include "engine/reg_value.h"
#include "platform/text.h"
#include "settings/page_context.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

// One name for all pages, so that the box clicked last wins.
constexpr const wchar_t* kChangeName = L"CHKmantools";
constexpr const wchar_t* kRootChangeName = L"CHKmantools1";
constexpr TPlace kRootPlace{kAdminToolsPlace.Root, kAdminToolsPlace.Key, L"Start_AdminToolsRoot"};

}  // namespace

// Special because the value changed its type: the classic Start menu of Windows 2000 keeps a text, the later ones a
// number, and their second column a number of its own.
void LoadAdminTools(TPageContext& context, const TSpecialRow& row) {
    const auto value = Stored(context, row.Value);
    const bool shown = value && !kEmptyOrZero(*value) && !SameText(AsText(*value), L"NO");
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(shown);
}

void RecordAdminTools(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const bool shown = static_cast<TCheckBox&>(sender).Checked();
    if (!kSinceXp.Include(context.WindowsLevel))
        return RecordText(context, kChangeName, row.Value, shown ? L"YES" : L"NO");
    RecordNumber(context, kChangeName, row.Value, shown ? 1 : 0);
    RecordNumber(context, kRootChangeName, kRootPlace, shown ? 2 : 0);
}
