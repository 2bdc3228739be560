#include "app/setting_names.h"

#include <algorithm>
#include <set>
#include <unordered_map>

#include "engine/outcome.h"
#include "settings/change_words.h"

std::wstring SheetWords(const TSetting& setting) {
    return setting.Sheet.empty() ? setting.Page : setting.Page + L", " + setting.Sheet;
}

TSettingNames::TSettingNames(TSystem& system, const TLanguage& language, TRelease release)
    : FCatalogue(system, &language, release) {}

std::wstring TSettingNames::operator[](const std::wstring& setting) const {
    const TSetting* found = FCatalogue.Find(setting);
    if (found == nullptr) return setting;
    return found->Caption + L" (" + SheetWords(*found) + L')';
}

std::wstring TSettingNames::Of(const TChangeSet& operations) const {
    std::set<std::wstring> named{std::wstring()};
    std::wstring names;
    for (const TOperation& operation : operations) {
        if (!named.insert(operation.Setting).second) continue;
        names += (names.empty() ? L"" : L"; ") + (*this)[operation.Setting];
    }
    return names;
}

void TSettingNames::Attribute(TChangeSet& operations) const {
    // In one language for all places: what the user reads.
    const TCaptions captions;
    const auto placeOf = [&](TTarget target) {
        if (auto* registry = std::get_if<TRegistryTarget>(&target)) target = Unmerged(*registry);
        return PlaceWords(target, captions);
    };
    std::unordered_map<std::wstring, const TSetting*, TTextHash, TTextEqual> settings;
    for (const TSetting* setting : FCatalogue.Settings())
        for (const TRow* row : setting->Rows)
            // Of two pages that show a setting the later one is its own.
            for (const TTarget& target : TargetsOf(*row)) settings.insert_or_assign(placeOf(target), setting);
    for (TOperation& operation : operations) {
        if (!operation.Setting.empty()) continue;
        const auto found = settings.find(placeOf(operation.Target));
        if (found == settings.end()) continue;
        operation.Setting = found->second->Id;
        operation.Restart = std::max(operation.Restart, found->second->Restart);
    }
}
