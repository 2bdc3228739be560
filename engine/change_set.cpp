#include "engine/change_set.h"

#include <algorithm>

#include "engine/outcome.h"
#include "engine/reg_value.h"

namespace {

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

std::vector<TChange> ChangesOf(TSystem& system, const TChangeSet& operations,
                               const TPreferenceStore* preferences) {
    TOutcome outcome;
    std::vector<TChange> list;
    list.reserve(operations.size());
    for (const TOperation& operation : operations) {
        outcome.Add(operation);
        TContent before = ContentOf(system, operation.Target, preferences);
        TContent made = outcome.Of(operation.Target, before);
        list.push_back(
            {operation.Setting, operation.Target, std::move(before), std::move(made), operation.Restart});
    }
    for (TChange& change : list) {
        TContent after = outcome.Of(change.Target, change.Before);
        change.IsOverwritten = change.After != after;
        change.After = std::move(after);
    }
    return list;
}
