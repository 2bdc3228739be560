#include "settings/row_places.h"

TTarget TargetOf(const TPlace& place) {
    switch (place.Kind) {
        case TPlaceKind::Parameter:
            return TParameterTarget{
                .Set = place.Parameter.Set,
                .Get = place.Parameter.Get,
                .InParam = place.Parameter.BlockSize == 0 && place.Parameter.Slot == TParameterSlot::Param,
                .BlockSize = place.Parameter.BlockSize};
        case TPlaceKind::Service:
            return TServiceTarget{place.ValueName};
        case TPlaceKind::Preference:
            return TPreferenceTarget{place.ValueName};
        case TPlaceKind::Registry:
            break;
    }
    return TRegistryTarget{
        .Root = place.Root, .Key = std::wstring(TrimmedKey(place.Key)), .ValueName = place.ValueName};
}

std::vector<TTarget> TargetsOf(const TRow& row) {
    std::vector<TTarget> targets;
    for (const TPlace& place : PlacesOf(row)) targets.push_back(TargetOf(place));
    return targets;
}
