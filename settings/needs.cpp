#include "settings/needs.h"

#include <algorithm>

#include "settings/change_words.h"
#include "settings/page_table.h"
#include "ui/controls.h"
#include "ui/spoken_name.h"
#include "ui/state.h"

namespace {

bool Concerns(const TNeed& need, const std::wstring& control) {
    return std::ranges::count(need.Controls, control) != 0;
}

std::wstring Words(const TPageContext& context, const TNeed& need) {
    const TControl& of = *context.Form.Find(need.Of);
    if (const auto* list = dynamic_cast<const TComboBox*>(&of))
        return Formatted(context.Captions[need.IsNot ? TCaption::NotWhileChosen : TCaption::OnlyWhileChosen],
                         {list->Items()[static_cast<std::size_t>(need.State)]});
    const bool mustBe = (need.State != 0) != need.IsNot;
    const bool isRadio = of.Kind() == TComponentKind::RadioButton;
    const TCaption words = mustBe    ? isRadio ? TCaption::OnlyWhileChosen : TCaption::OnlyWhileChecked
                           : isRadio ? TCaption::NotWhileChosen
                                     : TCaption::NotWhileChecked;
    return Formatted(context.Captions[words], {PlainCaption(of.Caption())});
}

bool IsPreference(const TRow& row) {
    return std::ranges::any_of(PlacesOf(row),
                               [](const TPlace& place) { return place.Kind == TPlaceKind::Preference; });
}

}  // namespace

std::vector<TNeed> NeedsOf(const TRow& row) {
    std::vector<TNeed> needs;
    std::visit(
        [&](const auto& kind) {
            const auto add = [&](TControlNames controls) {
                if constexpr (requires { kind.On; })
                    needs.push_back({.Controls = controls, .Of = kind.On});
                else if constexpr (requires { kind.Control; })
                    needs.push_back({.Controls = controls, .Of = kind.Control});
            };
            if constexpr (requires { kind.Enables; }) add(kind.Enables);
            if constexpr (requires { kind.EnablesOnClick; }) add(kind.EnablesOnClick);
            if constexpr (requires { kind.Toggles; })
                if (kind.Toggles != nullptr) add({&kind.Toggles, 1});
            if constexpr (requires { kind.Fields; })
                for (const TBoxField& field : kind.Fields) add({&field.Edit, 1});
        },
        row);
    return needs;
}

bool IsMet(const TPageContext& context, const TNeed& need) {
    const TControl& of = *context.Form.Find(need.Of);
    return (StateOf(of) == StateFromNumber(of, need.State)) != need.IsNot;
}

void ApplyNeeds(const TPageContext& context, const TPageDefinition& page) {
    for (const TNeed& need : page.Needs) {
        if (!need.Disables || !need.Levels.Include(context.WindowsLevel)) continue;
        for (const wchar_t* control : need.Controls)
            context.Form.Find(control)->SetEnabled(std::ranges::all_of(page.Needs, [&](const TNeed& each) {
                return !each.Disables || !each.Levels.Include(context.WindowsLevel) ||
                       !Concerns(each, control) || IsMet(context, each);
            }));
    }
}

void ApplyLacks(const TPageContext& context, const TPageDefinition& page) {
    for (const TLack& lack : page.Lacks) context.Form.Find(lack.Control)->SetEnabled(lack.IsThere(context));
}

std::wstring ReasonsFor(const TPageContext& context, const std::wstring& control) {
    std::wstring reasons;
    const auto say = [&](const std::wstring& sentence) {
        if (reasons.find(sentence) == std::wstring::npos)
            reasons += (reasons.empty() ? L"" : L" ") + sentence;
    };
    const auto look = [&](const TNeed& need) {
        if (need.Levels.Include(context.WindowsLevel) && Concerns(need, control) && !IsMet(context, need))
            say(Words(context, need));
    };
    for (const TPageDefinition* page : PageDefinitions()) {
        for (const TLack& lack : page->Lacks)
            if (control == lack.Control && !lack.IsThere(context)) say(context.Captions[lack.Reason]);
        std::ranges::for_each(page->Needs, look);
        for (const TLoader& loader : page->Loaders) {
            for (const TRow& row : loader) {
                if (!LevelsOf(row).Include(context.WindowsLevel)) continue;
                std::ranges::for_each(NeedsOf(row), look);
                if (!IsPreference(row) || std::ranges::count(ControlsOf(row), control) == 0) continue;
                if (context.Firefox.IsFirefoxInstalled() && context.Firefox.FirefoxProfileFolder().empty())
                    say(context.Captions[TCaption::NoFirefoxProfile]);
            }
        }
    }
    return reasons;
}
