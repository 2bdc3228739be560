#include "engine/sys_control.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "engine/reg_value.h"
#include "platform/service_control.h"
#include "platform/text.h"

namespace {

TRegistryPlace PlaceOf(const TRegRecor& record) { return {record.RootKey, record.Key, record.ValueName}; }

/// Whether a pending change decides what a read of the record's place will find.
bool Concerns(const TRegRecor& change, const TRegRecor& record) {
    return !change.IsSystemParameter && change.RootKey == record.RootKey &&
           SameText(TrimmedKey(change.Key), TrimmedKey(record.Key)) &&
           (change.Action == TRegAction::DeleteKey || SameText(change.ValueName, record.ValueName));
}

}  // namespace

void TSysControl::Add(const TRegRecor& record) {
    bool found = false;
    for (TRegRecor& entry : FPending) {
        if (entry.Name != record.Name) continue;
        found = true;
        entry.RestartNeeded = std::max(entry.RestartNeeded, record.RestartNeeded);
        if (entry.IsSystemParameter) {
            entry.SpiGet = record.SpiGet;
            entry.SpiInParam = record.SpiInParam;
            entry.SpiAction = record.SpiAction;
            entry.SpiParam = record.SpiParam;
            entry.SpiData = record.SpiData;
            entry.SpiWinIni = record.SpiWinIni;
        } else {
            entry.Value = record.Value;
        }
    }
    if (!found) FPending.push_back(record);
}

void TSysControl::Switch(const TServiceSwitch& service) {
    std::erase_if(FServices, [&](const TServiceSwitch& entry) { return entry.Service == service.Service; });
    FServices.insert(std::ranges::upper_bound(FServices, service.Order, {}, &TServiceSwitch::Order), service);
}

void TSysControl::Clear() {
    FPending.clear();
    FServices.clear();
}

void TSysControl::Remove(std::wstring_view name) {
    std::erase_if(FPending, [&](const TRegRecor& entry) { return entry.Name == name; });
}

void TSysControl::RemoveSetting(std::wstring_view setting) {
    std::erase_if(FPending, [&](const TRegRecor& entry) { return entry.Setting == setting; });
    std::erase_if(FServices, [&](const TServiceSwitch& entry) { return entry.Setting == setting; });
}

void TSysControl::ReadCurrent(TRegRecor& record) const {
    TRegistryData data;
    record.ReadResult = FSystem.Registry.Read(PlaceOf(record), data);
    if (record.ReadResult != TReadStatus::Found) return;
    record.DataType = data.Type;
    if (data.Type != TRegDataType::Unknown) record.Value = std::move(data.Value);
}

void TSysControl::ReadPending(TRegRecor& record) const {
    const auto change = std::find_if(FPending.rbegin(), FPending.rend(),
                                     [&](const TRegRecor& entry) { return Concerns(entry, record); });
    if (change == FPending.rend()) {
        ReadCurrent(record);
    } else if (change->Action == TRegAction::Write) {
        record.ReadResult = TReadStatus::Found;
        record.DataType = change->DataType;
        record.Value = change->Value;
    } else {
        record.ReadResult = TReadStatus::ValueMissing;
    }
}

TReadStatus TSysControl::CheckExists(const TRegRecor& record) const {
    return FSystem.Registry.Check(PlaceOf(record), TRegistryView::Process);
}

TWritten TSysControl::WriteAll() {
    TWritten written;
    for (TRegRecor& record : FPending) {
        if (record.IsSystemParameter) {
            // A parameter that Windows refuses is no reason to hold back the others.
            (void)FSystem.Parameters.Set(record.SpiAction, record.SpiParam, record.SpiData, record.SpiWinIni);
        } else if (Write(record) == TWriteStatus::Refused) {
            return written;
        }
        // Of an entry that is kept for another pass the restart is told once.
        written.RestartNeeded =
            std::max(written.RestartNeeded, std::exchange(record.RestartNeeded, TRestart::None));
        written.AssociationsChanged |= !record.IsSystemParameter && record.RootKey == TRootKey::ClassesRoot;
    }
    FPending.clear();
    return written;
}

void TSysControl::SwitchServices() {
    // The entry is taken before the wait, which handles messages: another pass meanwhile must not repeat it.
    for (auto next = FServices.begin(); next != FServices.end();) {
        const TServiceSwitch service = *next;
        FServices.erase(next);
        service.On ? StartServiceByName(FSystem, service.Service)
                   : StopServiceByName(FSystem, service.Service);
        next = std::ranges::upper_bound(FServices, service.Order, {}, &TServiceSwitch::Order);
    }
}

TWriteStatus TSysControl::Write(const TRegRecor& record) {
    switch (record.Action) {
        case TRegAction::DeleteKey:
            return FSystem.Registry.DeleteKey(record.RootKey, record.Key);
        case TRegAction::DeleteValue:
            return FSystem.Registry.DeleteValue(PlaceOf(record));
        case TRegAction::Write:
            break;
    }
    std::optional<TRegValue> value = ConvertTo(record.DataType, record.Value);
    if (!value) return TWriteStatus::Refused;
    return FSystem.Registry.Write(PlaceOf(record), {record.DataType, std::move(*value)});
}
