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
    if (of.Kind() == TComponentKind::ComboBox)
        return Formatted(context.Captions[need.IsNot ? TCaption::NotWhileChosen : TCaption::OnlyWhileChosen],
                         {static_cast<const TComboBox&>(of).Items()[static_cast<std::size_t>(need.State)]});
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

/// Collects why a control has no effect, each reason once.
struct TReasons {
    const TPageContext& Context;
    const std::wstring& Control;
    std::wstring Sentences{};

    void Say(const std::wstring& sentence) {
        if (Sentences.find(sentence) == std::wstring::npos)
            Sentences += (Sentences.empty() ? L"" : L" ") + sentence;
    }
    void Look(const TLack& lack) {
        if (Control == lack.Control && !lack.IsThere(Context)) Say(Context.Captions[lack.Reason]);
    }
    void Look(const TNeed& need) {
        if (need.Levels.Include(Context.Release) && Concerns(need, Control) && !IsMet(Context, need))
            Say(Words(Context, need));
    }
    void Look(const TRow& row) {
        if (!LevelsOf(row).Include(Context.Release)) return;
        for (const TNeed& need : NeedsOf(row)) Look(need);
        if (!IsPreference(row) || std::ranges::count(ControlsOf(row), Control) == 0) return;
        if (Context.Firefox.IsFirefoxInstalled() && Context.Firefox.FirefoxProfileFolder().empty())
            Say(Context.Captions[TCaption::NoFirefoxProfile]);
    }
};

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
            if constexpr (requires { kind.OnClick; })
                if (kind.OnClick != nullptr) add(kind.OnClick->Enables);
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
        if (!need.Disables || !need.Levels.Include(context.Release)) continue;
        for (const wchar_t* control : need.Controls)
            context.Form.Find(control)->SetEnabled(std::ranges::all_of(page.Needs, [&](const TNeed& each) {
                return !each.Disables || !each.Levels.Include(context.Release) || !Concerns(each, control) ||
                       IsMet(context, each);
            }));
    }
}

void ApplyLacks(const TPageContext& context, const TPageDefinition& page) {
    for (const TLack& lack : page.Lacks) context.Form.Find(lack.Control)->SetEnabled(lack.IsThere(context));
}

std::wstring ReasonsFor(const TPageContext& context, const std::wstring& control) {
    TReasons reasons{context, control};
    for (const TPageDefinition* page : PageDefinitions()) {
        for (const TLack& lack : page->Lacks) reasons.Look(lack);
        for (const TNeed& need : page->Needs) reasons.Look(need);
        for (const TLoader& loader : page->Loaders)
            for (const TRow& row : loader) reasons.Look(row);
    }
    return reasons.Sentences;
}
