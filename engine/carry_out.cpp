#include "engine/carry_out.h"

#include <exception>

#include "engine/outcome.h"

namespace {

constexpr std::uint32_t kUpdateProfile = 1;  // SPIF_UPDATEINIFILE

/// What will be there when the operation alone is carried out.
TContent OutcomeOf(const TOperation& operation, const TContent& content) {
    TOutcome outcome;
    outcome.Add(operation);
    return outcome.Of(operation.Target, content);
}

bool IsAssociation(const TRegistryTarget& target) {
    constexpr std::wstring_view kClasses = L"Software\\Classes\\";
    return target.Root == TRootKey::ClassesRoot || SameText(target.Key.substr(0, kClasses.size()), kClasses);
}

bool IsWholeFile(const TTarget& target) {
    const auto* preference = std::get_if<TPreferenceTarget>(&target);
    return preference != nullptr && preference->QuotedName.empty();
}

bool Write(TSystem& system, const TRegistryTarget& target, const TRegistryEffect& effect) {
    const TRegistryPlace place{target.Root, target.Key, target.ValueName};
    switch (effect.Action) {
        case TRegAction::DeleteKey:
            return system.Registry.DeleteKey(target.Root, target.Key) == TWriteStatus::Done;
        case TRegAction::DeleteValue:
            return system.Registry.DeleteValue(place) == TWriteStatus::Done;
        case TRegAction::Write:
            break;
    }
    return (effect.Value ? system.Registry.WriteRaw(place, *effect.Value)
                         : system.Registry.Write(place, {})) == TWriteStatus::Done;
}

bool Set(TSystem& system, const TParameterTarget& target, const TSpiData& data) {
    const auto* number = std::get_if<std::uint32_t>(&data);
    if (number != nullptr && target.InParam)
        return system.Parameters.Set(target.Set, *number, std::uint32_t{0}, kUpdateProfile);
    return system.Parameters.Set(target.Set, static_cast<std::uint32_t>(target.BlockSize), data,
                                 kUpdateProfile);
}

/// Of a preference it is only noted; false when it failed.
bool CarryOut(TSystem& system, const TOperation& operation, TPreferenceStore* preferences) {
    if (const auto* effect = std::get_if<TRegistryEffect>(&operation.Effect))
        return Write(system, std::get<TRegistryTarget>(operation.Target), *effect);
    if (const auto* data = std::get_if<TSpiData>(&operation.Effect))
        return Set(system, std::get<TParameterTarget>(operation.Target), *data);
    if (const auto* status = std::get_if<TServiceStatus>(&operation.Effect))
        return RestoreService(system, std::get<TServiceTarget>(operation.Target).Service, *status);
    const auto* content = std::get_if<TPreferenceContent>(&operation.Effect);
    if (content == nullptr || preferences == nullptr) return false;
    preferences->Change(std::get<TPreferenceTarget>(operation.Target).QuotedName, *content,
                        operation.Setting);
    return true;
}

}  // namespace

TWritten CarryOut(TSysControl& changes) {
    const TWritten written = changes.WriteAll();
    changes.SwitchServices();
    return written;
}

TCarriedOut CarryOut(TSystem& system, const TChangeSet& operations, TPreferenceStore* preferences) {
    TCarriedOut done;
    TChangeSet changed;  // preferences, still to be saved
    for (const TOperation& operation : operations) {
        const TContent now = ContentOf(system, operation.Target, preferences);
        const TContent wanted = OutcomeOf(operation, now);
        // A service that does not exist stays so, which is no success.
        if (now == wanted && now != TContent(TServiceContent())) continue;
        if (IsWholeFile(operation.Target) && operation.Left != now) continue;
        if (!CarryOut(system, operation, preferences)) {
            done.Failed.push_back(operation);
            continue;
        }
        if (std::holds_alternative<TPreferenceTarget>(operation.Target)) changed.push_back(operation);
        done.Written.RestartNeeded = std::max(done.Written.RestartNeeded, operation.Restart);
        const auto* target = std::get_if<TRegistryTarget>(&operation.Target);
        done.Written.AssociationsChanged |= target != nullptr && IsAssociation(*target);
    }
    if (changed.empty()) return done;
    try {
        preferences->Save();
        done.SavedPreferences = true;
    } catch (const std::exception&) {
        done.Failed.insert(done.Failed.end(), changed.begin(), changed.end());
    }
    return done;
}
