#include "engine/outcome.h"

#include <algorithm>

#include "base/decimal.h"

namespace {

std::wstring PathOf(const TRegistryTarget& target) {
    const TRegistryTarget place = Unmerged(target);
    return DecimalText(static_cast<std::int64_t>(place.Root)) + L'\\' + place.Key;
}

/// Calls `visit` with the path and those of all keys above it.
void ForEachAbove(std::wstring path, const auto& visit) {
    for (;;) {
        visit(path);
        const std::size_t end = path.rfind(L'\\');
        if (end == std::wstring::npos) return;
        path.resize(end);
    }
}

}  // namespace

TRegistryTarget Unmerged(TRegistryTarget target) {
    if (target.Root != TRootKey::ClassesRoot) return target;
    target.Root = TRootKey::LocalMachine;
    target.Key.insert(0, L"Software\\Classes\\");
    target.Key = TrimmedKey(target.Key);
    return target;
}

void TOutcome::Add(const TOperation& operation) {
    ++FTime;
    if (const auto* effect = std::get_if<TRegistryEffect>(&operation.Effect))
        Add(std::get<TRegistryTarget>(operation.Target), *effect);
    else if (const auto* data = std::get_if<TSpiData>(&operation.Effect))
        FParameters[std::get<TParameterTarget>(operation.Target).Set] = *data;
    else if (const auto* status = std::get_if<TServiceStatus>(&operation.Effect))
        FServices[std::get<TServiceTarget>(operation.Target).Service] = *status;
    else if (const auto* content = std::get_if<TPreferenceContent>(&operation.Effect))
        FPreferences[std::get<TPreferenceTarget>(operation.Target).QuotedName] = *content;
}

void TOutcome::Add(const TRegistryTarget& target, const TRegistryEffect& effect) {
    const std::wstring path = PathOf(target);
    switch (effect.Action) {
        case TRegAction::DeleteKey:
            FKeys[path].Deleted = FTime;
            return;
        case TRegAction::DeleteValue:
            FKeys[path].Values[target.ValueName] = {FTime, {}};
            return;
        case TRegAction::Write:
            ForEachAbove(path, [this](const std::wstring& key) { FKeys[key].Created = FTime; });
            if (effect.Value) FKeys[path].Values[target.ValueName] = {FTime, effect.Value};
            return;
    }
}

TRegistryContent TOutcome::Of(const TRegistryTarget& target, TRegistryContent content) const {
    const std::wstring path = PathOf(target);
    std::size_t deleted = 0;
    ForEachAbove(path, [&](const std::wstring& above) {
        if (const auto key = FKeys.find(above); key != FKeys.end())
            deleted = std::max(deleted, key->second.Deleted);
    });
    if (deleted != 0) content = {};
    const auto key = FKeys.find(path);
    if (key == FKeys.end()) return content;
    content.HasKey |= key->second.Created > deleted;
    if (target.IsKey) return content;
    const auto value = key->second.Values.find(target.ValueName);
    if (value != key->second.Values.end() && value->second.Time > deleted) content.Value = value->second.Raw;
    return content;
}

TContent TOutcome::Of(const TTarget& target, TContent content) const {
    if (const auto* registry = std::get_if<TRegistryTarget>(&target))
        return Of(*registry, std::get<TRegistryContent>(std::move(content)));
    if (const auto* parameter = std::get_if<TParameterTarget>(&target)) {
        const auto found = FParameters.find(parameter->Set);
        return found == FParameters.end() ? content : TParameterContent(found->second);
    }
    if (const auto* service = std::get_if<TServiceTarget>(&target)) {
        const auto found = FServices.find(service->Service);
        const bool exists = std::get<TServiceContent>(content).has_value();
        return found == FServices.end() || !exists ? content : TServiceContent(found->second);
    }
    const auto found = FPreferences.find(std::get<TPreferenceTarget>(target).QuotedName);
    return found == FPreferences.end() ? content : found->second;
}
