// A service control manager in memory.
#pragma once

#include <cstdio>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/service_manager.h"
#include "platform/text.h"

/// A service and how it behaves.
struct TFakeService {
    TServiceState State = TServiceState::Stopped;
    TServiceStartType StartType = TServiceStartType::Manual;
    int PendingQueries = 0;  ///< queries that answer "pending" after a start or stop
    TServiceState StartsInto = TServiceState::Running;
    TServiceState StopsInto = TServiceState::Stopped;
    std::optional<TServiceState> Next = {};  ///< while a start or stop is pending …
    int QueriesLeft = 0;                     ///< … and until the service is in that state
};

class TFakeServiceManager : public TServiceManager {
  public:
    std::vector<std::string>
        Calls;            ///< "manager F003F", "open wscsvc F01FF", "type 2", "start", "control 1", "query"
    std::string Failing;  ///< the first word of the calls that fail; empty = none

    /// Adds or replaces a service.
    void Put(const std::wstring& name, const TFakeService& service) { FServices[name] = service; }
    /// The service as it is now; it must have been put.
    [[nodiscard]] const TFakeService& Service(const std::wstring& name) const { return FServices.at(name); }
    /// The handles that are open, and the closings of such as were not.
    [[nodiscard]] std::size_t OpenHandles() const { return FHandles.size() + FWrongCloses; }

    [[nodiscard]] TServiceHandle OpenManager(std::uint32_t access) override {
        return Succeeds("manager", access) ? NewHandle({}) : TServiceHandle::None;
    }
    [[nodiscard]] TServiceHandle OpenNamedService(TServiceHandle manager, const std::wstring& name,
                                                  std::uint32_t access) override {
        const bool succeeds = Succeeds("open " + std::string(name.begin(), name.end()), access);
        const auto handle = FHandles.find(manager);
        return succeeds && handle != FHandles.end() && handle->second.empty() && FServices.contains(name)
                   ? NewHandle(name)
                   : TServiceHandle::None;
    }
    void Close(TServiceHandle handle) override {
        if (handle != TServiceHandle::None && FHandles.erase(handle) == 0) ++FWrongCloses;
    }
    [[nodiscard]] bool QueryState(TServiceHandle handle, TServiceState& state) override {
        TFakeService* service = Find(handle);
        if (!Succeeds("query") || service == nullptr) return false;
        if (service->Next && service->QueriesLeft-- == 0) service->State = *std::exchange(service->Next, {});
        state = service->State;
        return true;
    }
    [[nodiscard]] bool Control(TServiceHandle handle, TServiceControl control,
                               TServiceState& state) override {
        TFakeService* service = Find(handle);
        // A stopped service has nobody to answer.
        if (!Succeeds("control", static_cast<std::uint32_t>(control)) || service == nullptr ||
            service->State == TServiceState::Stopped)
            return false;
        if (control == TServiceControl::Stop) Enter(*service, TServiceState::StopPending, service->StopsInto);
        if (control == TServiceControl::Continue && service->State == TServiceState::Paused)
            Enter(*service, TServiceState::ContinuePending, TServiceState::Running);
        state = service->State;
        return true;
    }
    [[nodiscard]] bool Start(TServiceHandle handle) override {
        TFakeService* service = Find(handle);
        if (!Succeeds("start") || service == nullptr || service->State != TServiceState::Stopped ||
            service->StartType == TServiceStartType::Disabled)
            return false;
        Enter(*service, TServiceState::StartPending, service->StartsInto);
        return true;
    }
    [[nodiscard]] bool QueryStartType(TServiceHandle handle, TServiceStartType& startType) override {
        const TFakeService* service = Find(handle);
        if (!Succeeds("config") || service == nullptr) return false;
        startType = service->StartType;
        return true;
    }
    [[nodiscard]] bool ChangeStartType(TServiceHandle handle, TServiceStartType startType) override {
        TFakeService* service = Find(handle);
        if (!Succeeds("type", static_cast<std::uint32_t>(startType)) || service == nullptr) return false;
        service->StartType = startType;
        return true;
    }

  private:
    /// Writes the call down; whether it is not one of those that fail.
    bool Succeeds(std::string call, std::optional<std::uint32_t> number = {}) {
        char digits[10] = "";
        if (number) std::snprintf(digits, sizeof digits, " %X", *number);
        Calls.push_back(call + digits);
        return Failing.empty() || !call.starts_with(Failing);
    }
    TServiceHandle NewHandle(const std::wstring& name) {
        FHandles[TServiceHandle{++FLastHandle}] = name;
        return TServiceHandle{FLastHandle};
    }
    /// The service of an open handle; null for any other handle.
    TFakeService* Find(TServiceHandle handle) {
        const auto name = FHandles.find(handle);
        const auto service = name == FHandles.end() ? FServices.end() : FServices.find(name->second);
        return service == FServices.end() ? nullptr : &service->second;
    }
    static void Enter(TFakeService& service, TServiceState pending, TServiceState final) {
        service.State = pending;
        service.Next = final;
        service.QueriesLeft = service.PendingQueries;
    }

    std::unordered_map<std::wstring, TFakeService, TTextHash, TTextEqual> FServices;
    std::map<TServiceHandle, std::wstring> FHandles;  ///< service names; empty for the manager
    std::uintptr_t FLastHandle = 0;
    std::size_t FWrongCloses = 0;
};
