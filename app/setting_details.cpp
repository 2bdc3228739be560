#include "app/setting_details.h"

#include <algorithm>

#include "settings/change_words.h"
#include "settings/needs.h"
#include "settings/rights.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kBetween = L" \u00B7 ";

/// The controls that may stand for the setting that a user sees in this one.
std::vector<const TControl*> StandIns(const TControl& control) {
    std::vector<const TControl*> found{&control};
    if (control.Parent() == nullptr) return found;
    const auto& siblings = control.Parent()->Children();
    const auto self = std::ranges::find(siblings, &control);
    switch (control.Kind()) {
        case TComponentKind::UpDown:
        case TComponentKind::ColorSwatch:  // belongs to the button before it
            if (self != siblings.begin()) found.push_back(*(self - 1));
            break;
        case TComponentKind::Edit:
        case TComponentKind::Label:  // says what comes behind it
            for (auto next = self + 1; next != siblings.end() && found.size() <= 2; ++next)
                found.push_back(*next);
            break;
        default:
            break;
    }
    if (control.Kind() == TComponentKind::Edit)
        std::erase_if(found, [&](const TControl* each) {
            return each != &control && (each->Kind() != TComponentKind::UpDown ||
                                        static_cast<const TUpDown*>(each)->Associate() != &control);
        });
    return found;
}

TCaption RestartCaption(TRestart restart) {
    return restart == TRestart::Explorer ? TCaption::DetailsExplorer : TCaption::DetailsRestart;
}

std::wstring PlacesOf(const TSetting& setting, const TPageContext& context,
                      const std::vector<TChange>& pending) {
    if (setting.Rows.empty()) return {};
    const TCaptions& captions = context.Captions;
    std::vector<std::pair<std::wstring, TTarget>> places;
    const auto add = [&](const TTarget& target) {
        const std::wstring words = PlaceWords(target, captions);
        if (std::ranges::count(places, words, &std::pair<std::wstring, TTarget>::first) == 0)
            places.emplace_back(words, target);
    };
    for (const TRow* row : setting.Rows)
        if (LevelsOf(*row).Include(context.Release)) std::ranges::for_each(TargetsOf(*row), add);
    for (const TChange& change : pending)
        if (change.Setting == setting.Id) add(change.Target);
    std::wstring text;
    for (const auto& [words, target] : places) {
        const TContent now = ContentOf(context.System, target, &context.Firefox);
        const auto change = std::ranges::find_if(pending, [&place = words, &captions](const TChange& each) {
            return PlaceWords(each.Target, captions) == place;
        });
        const bool isPending = change != pending.end();
        text += (text.empty() ? L"" : L"\n") + words + L'\n' +
                Formatted(captions[TCaption::DetailsStored], {ContentWords(target, now, captions)}) +
                kBetween;
        text += isPending ? Formatted(captions[TCaption::DetailsPending],
                                      {ContentWords(target, change->After, captions)})
                          : captions[TCaption::DetailsNotChanged];
        const TRestart restart = isPending ? std::max(setting.Restart, change->Restart) : setting.Restart;
        if (restart != TRestart::None) text += kBetween + captions[RestartCaption(restart)];
        if (!MayChange(context.System, target)) text += kBetween + captions[TCaption::DetailsRights];
    }
    return text;
}

}  // namespace

std::wstring TDetails::Whole() const {
    std::wstring whole = Title;
    for (const std::wstring& part : {Text, Places})
        if (!part.empty()) whole += L"\n\n" + part;
    return whole;
}

const TSetting* SettingIn(const TControl& control, const TCatalogue& catalogue) {
    for (const TControl* each : StandIns(control))
        if (const TSetting* setting = catalogue.Find(each->Name())) return setting;
    return nullptr;
}

TDetails DetailsOf(const TSetting& setting, const TPageContext& context,
                   const std::vector<TChange>& pending) {
    std::wstring text = ReasonsFor(context, setting.Id);
    if (!text.empty() && !setting.Explanation.empty()) text += L' ';
    TRestart restart = setting.Restart;
    for (const TChange& change : pending)
        if (change.Setting == setting.Id) restart = std::max(restart, change.Restart);
    return {setting.Caption, text + setting.Explanation, PlacesOf(setting, context, pending),
            context.Captions[RestartCaption(restart)]};
}
