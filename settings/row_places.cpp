#include "settings/row_places.h"

bool RestartOf(const TRow& row) {
    return std::visit([](const auto& kind) { return kind.Restart; }, row);
}

std::vector<TPlace> PlacesOf(const TRow& row) {
    std::vector<TPlace> places;
    std::visit(
        [&](const auto& kind) {
            if constexpr (requires { kind.Value; }) places.push_back(kind.Value);
            if constexpr (requires { kind.Further; })
                if (kind.Further) places.push_back(kind.Further->Value);
            if constexpr (requires { kind.Policy; })
                if (kind.Policy) places.push_back(*kind.Policy);
        },
        row);
    return places;
}

TTarget TargetOf(const TPlace& place) {
    if (place.IsFirefoxPref) return TPreferenceTarget{place.ValueName};
    std::wstring key = place.Key;
    key.erase(0, key.find_first_not_of(L'\\'));
    key.erase(key.find_last_not_of(L'\\') + 1);
    return TRegistryTarget{.Root = place.Root, .Key = key, .ValueName = place.ValueName};
}

std::vector<TTarget> TargetsOf(const TRow& row) {
    std::vector<TTarget> targets;
    for (const TPlace& place : PlacesOf(row)) targets.push_back(TargetOf(place));
    std::visit(
        [&](const auto& kind) {
            if constexpr (requires { kind.Slot; })
                targets.push_back(TParameterTarget{
                    .Set = kind.Set, .Get = kind.Get, .InParam = kind.Slot == TParameterSlot::Param});
        },
        row);
    return targets;
}
