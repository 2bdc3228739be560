#include "engine/change_set.h"

#include <algorithm>

#include "engine/reg_value.h"
#include "platform/text.h"

namespace {

/// Whether the key is the other one or lies below it.
bool IsWithin(const TRegistryTarget& target, const TRegistryTarget& above) {
    if (target.Root != above.Root || target.Key.size() < above.Key.size()) return false;
    return SameText(target.Key.substr(0, above.Key.size()), above.Key) &&
           (target.Key.size() == above.Key.size() || above.Key.empty() ||
            target.Key[above.Key.size()] == L'\\');
}

bool IsSameValue(const TRegistryTarget& a, const TRegistryTarget& b) {
    return !a.IsKey && !b.IsKey && IsWithin(a, b) && a.Key.size() == b.Key.size() &&
           SameText(a.ValueName, b.ValueName);
}

void Affect(const TRegistryTarget& by, const TRegistryEffect& effect, const TRegistryTarget& target,
            TRegistryContent& content) {
    switch (effect.Action) {
        case TRegAction::DeleteKey:
            if (IsWithin(target, by)) content = {};
            return;
        case TRegAction::DeleteValue:
            if (IsSameValue(target, by)) content.Value.reset();
            return;
        case TRegAction::Write:
            if (IsWithin(by, target)) content.HasKey = true;
            if (IsSameValue(target, by) && effect.Value) content.Value = effect.Value;
            return;
    }
}

/// What the step makes of the content of another step's target, or of its own.
void Affect(const TOperation& step, const TTarget& target, TContent& content) {
    if (step.Target.index() != target.index()) return;
    if (const auto* effect = std::get_if<TRegistryEffect>(&step.Effect)) {
        Affect(std::get<TRegistryTarget>(step.Target), *effect, std::get<TRegistryTarget>(target),
               std::get<TRegistryContent>(content));
    } else if (const auto* data = std::get_if<TSpiData>(&step.Effect)) {
        if (std::get<TParameterTarget>(step.Target).Set == std::get<TParameterTarget>(target).Set)
            content = TParameterContent(*data);
    } else if (const auto* status = std::get_if<TServiceStatus>(&step.Effect)) {
        auto& service = std::get<TServiceContent>(content);
        if (service &&
            SameText(std::get<TServiceTarget>(step.Target).Service, std::get<TServiceTarget>(target).Service))
            service = *status;
    } else if (const auto* text = std::get_if<TPreferenceContent>(&step.Effect)) {
        if (SameText(std::get<TPreferenceTarget>(step.Target).QuotedName,
                     std::get<TPreferenceTarget>(target).QuotedName))
            content = *text;
    }
}

TOperation ParameterStep(const TRegRecor& record) {
    TParameterTarget target{.Set = record.SpiAction, .Get = record.SpiGet, .InParam = record.SpiInParam};
    TSpiData data = record.SpiData;
    if (const auto* block = std::get_if<TBytes>(&data))
        target.BlockSize = block->size();
    else if (record.SpiInParam)
        data = record.SpiParam;
    return {record.Setting, target, data, record.RestartNeeded};
}

TOperation RegistryStep(const TRegRecor& record) {
    const bool isKey = record.Action == TRegAction::DeleteKey;
    TOperation step{.Setting = record.Setting,
               .Target = TRegistryTarget{record.RootKey, std::wstring(TrimmedKey(record.Key)),
                                         isKey ? std::wstring() : record.ValueName, isKey},
               .Effect = {},
               .Restart = record.RestartNeeded};
    if (record.Action != TRegAction::Write)
        step.Effect = TRegistryEffect{record.Action, {}};
    else if (auto value = ConvertTo(record.DataType, record.Value))
        step.Effect = TRegistryEffect{record.Action, RawValueOf({record.DataType, std::move(*value)})};
    return step;
}

TChangeSet OperationsOf(const TSysControl& changes, const TPreferenceStore* preferences) {
    TChangeSet steps;
    bool refused = false;
    for (const TRegRecor& record : changes.Pending()) {
        steps.push_back(record.IsSystemParameter ? ParameterStep(record) : RegistryStep(record));
        refused |= std::holds_alternative<std::monostate>(steps.back().Effect);
        if (refused) steps.back().Effect = {};
    }
    for (const TServiceSwitch& service : changes.Services()) {
        const TServiceStatus status{service.On ? TServiceStartType::Automatic : TServiceStartType::Disabled,
                                    service.On};
        steps.push_back({service.Setting, TServiceTarget{service.Service}, status});
    }
    if (preferences == nullptr) return steps;
    for (const TPreferenceStore::TEdited& edit : preferences->Edited())
        steps.push_back({edit.Setting, TPreferenceTarget{edit.QuotedName}, edit.After});
    return steps;
}

struct TReader {
    TSystem& System;
    const TPreferenceStore* Preferences;

    TContent operator()(const TRegistryTarget& target) const {
        const TRegistryPlace place{target.Root, target.Key, target.ValueName};
        TRegistryContent content;
        TRawValue value;
        const TReadStatus status = System.Registry.ReadRaw(place, value);
        content.HasKey = status != TReadStatus::KeyUnavailable;
        if (status == TReadStatus::Found && !target.IsKey) content.Value = std::move(value);
        return content;
    }

    TContent operator()(const TParameterTarget& target) const {
        if (target.Get == 0) return TParameterContent();
        TBytes buffer(std::max(target.BlockSize, sizeof(std::uint32_t)));
        // A structure says its own size first.
        for (std::size_t i = 0; i < sizeof(std::uint32_t); ++i)
            buffer[i] = static_cast<std::uint8_t>(target.BlockSize >> (8 * i));
        if (!System.Parameters.Get(target.Get, static_cast<std::uint32_t>(target.BlockSize), buffer))
            return TParameterContent();
        if (target.BlockSize != 0) return TParameterContent(buffer);
        std::uint32_t number = 0;
        for (std::size_t i = sizeof(number); i-- > 0;) number = number << 8 | buffer[i];
        return TParameterContent(number);
    }

    TContent operator()(const TServiceTarget& target) const {
        return ReadServiceStatus(System, target.Service);
    }

    TContent operator()(const TPreferenceTarget& target) const {
        return Preferences == nullptr ? std::nullopt : Preferences->Saved(target.QuotedName);
    }
};

}  // namespace

TContent ContentOf(TSystem& system, const TTarget& target, const TPreferenceStore* preferences) {
    return std::visit(TReader{system, preferences}, target);
}

std::vector<TChange> PendingChanges(TSystem& system, const TSysControl& changes,
                                    const TPreferenceStore* preferences) {
    const TChangeSet steps = OperationsOf(changes, preferences);
    std::vector<TChange> list;
    for (const TOperation& own : steps) {
        TContent content = ContentOf(system, own.Target, preferences);
        TChange change{own.Setting, own.Target, content, {}, own.Restart};
        TContent made;
        for (const TOperation& step : steps) {
            Affect(step, own.Target, content);
            if (&step == &own) made = content;
        }
        change.After = std::move(content);
        change.IsOverwritten = made != change.After;
        list.push_back(std::move(change));
    }
    return list;
}

TWritten CarryOut(TSysControl& changes) {
    const TWritten written = changes.WriteAll();
    changes.SwitchServices();
    return written;
}
