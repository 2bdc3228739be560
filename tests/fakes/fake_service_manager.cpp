#include "tests/fakes/fake_service_manager.h"

void TFakeServiceManager::Fail(TServiceCall call, bool fails) {
    if (fails)
        FFailing.insert(call);
    else
        FFailing.erase(call);
}

TServiceHandle TFakeServiceManager::OpenManager(std::uint32_t access) {
    const bool opens = !Fails(TServiceCall::OpenManager);
    FLog.push_back({TServiceCall::OpenManager, {}, access, opens});
    return opens ? NewHandle({}) : TServiceHandle::None;
}

TServiceHandle TFakeServiceManager::OpenNamedService(TServiceHandle manager, const std::wstring& name,
                                                     std::uint32_t access) {
    const auto handle = FHandles.find(manager);
    const bool opens = !Fails(TServiceCall::OpenNamedService) && handle != FHandles.end() &&
                       handle->second.empty() && FServices.contains(name);
    FLog.push_back({TServiceCall::OpenNamedService, name, access, opens});
    return opens ? NewHandle(name) : TServiceHandle::None;
}

void TFakeServiceManager::Close(TServiceHandle handle) {
    if (handle != TServiceHandle::None && FHandles.erase(handle) == 0) ++FWrongCloses;
}

bool TFakeServiceManager::QueryState(TServiceHandle service, TServiceState& state) {
    TEntry* entry = Find(service);
    const bool answers = !Fails(TServiceCall::QueryState) && entry != nullptr;
    if (answers) {
        if (entry->Next && entry->QueriesLeft-- == 0) {
            entry->Service.State = *entry->Next;
            entry->Next.reset();
        }
        state = entry->Service.State;
    }
    return Log(TServiceCall::QueryState, service, 0, answers);
}

bool TFakeServiceManager::Control(TServiceHandle service, TServiceControl control, TServiceState& state) {
    TEntry* entry = Find(service);
    // A stopped service has nobody to answer.
    const bool answers =
        !Fails(TServiceCall::Control) && entry != nullptr && entry->Service.State != TServiceState::Stopped;
    if (answers) {
        if (control == TServiceControl::Stop)
            Enter(*entry, TServiceState::StopPending, entry->Service.StopsInto);
        state = entry->Service.State;
    }
    return Log(TServiceCall::Control, service, static_cast<std::uint32_t>(control), answers);
}

bool TFakeServiceManager::Start(TServiceHandle service) {
    TEntry* entry = Find(service);
    const bool starts = !Fails(TServiceCall::Start) && entry != nullptr &&
                        entry->Service.State == TServiceState::Stopped &&
                        entry->Service.StartType != TServiceStartType::Disabled;
    if (starts) Enter(*entry, TServiceState::StartPending, entry->Service.StartsInto);
    return Log(TServiceCall::Start, service, 0, starts);
}

bool TFakeServiceManager::ChangeStartType(TServiceHandle service, TServiceStartType startType) {
    TEntry* entry = Find(service);
    const bool changes = !Fails(TServiceCall::ChangeStartType) && entry != nullptr;
    if (changes) entry->Service.StartType = startType;
    return Log(TServiceCall::ChangeStartType, service, static_cast<std::uint32_t>(startType), changes);
}

TServiceHandle TFakeServiceManager::NewHandle(const std::wstring& name) {
    const TServiceHandle handle{++FLastHandle};
    FHandles[handle] = name;
    return handle;
}

TFakeServiceManager::TEntry* TFakeServiceManager::Find(TServiceHandle service) {
    const auto handle = FHandles.find(service);
    const auto entry = handle == FHandles.end() ? FServices.end() : FServices.find(handle->second);
    return entry == FServices.end() ? nullptr : &entry->second;
}

void TFakeServiceManager::Enter(TEntry& entry, TServiceState pending, TServiceState final) {
    entry.Service.State = pending;
    entry.Next = final;
    entry.QueriesLeft = entry.Service.PendingQueries;
}

bool TFakeServiceManager::Log(TServiceCall call, TServiceHandle service, std::uint32_t number, bool result) {
    const auto handle = FHandles.find(service);
    FLog.push_back({call, handle == FHandles.end() ? std::wstring() : handle->second, number, result});
    return result;
}
