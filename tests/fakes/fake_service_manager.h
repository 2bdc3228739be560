// A service control manager in memory.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <vector>

#include "platform/service_manager.h"
#include "platform/text.h"

enum class TServiceCall { OpenManager, OpenNamedService, QueryState, Control, Start, ChangeStartType };

/// A call of a service manager. `Number` is the access, control or start type asked for, otherwise 0.
struct TServiceLogEntry {
    TServiceCall Call = TServiceCall::OpenManager;
    std::wstring Service;  ///< empty for OpenManager
    std::uint32_t Number = 0;
    bool Result = true;

    bool operator==(const TServiceLogEntry&) const = default;
};

/// A service and how it behaves.
struct TFakeService {
    TServiceState State = TServiceState::Stopped;
    TServiceStartType StartType = TServiceStartType::Manual;
    int PendingQueries = 0;  ///< queries that answer "pending" after a start or stop
    TServiceState StartsInto = TServiceState::Running;
    TServiceState StopsInto = TServiceState::Stopped;
};

class TFakeServiceManager : public TServiceManager {
  public:
    /// Adds or replaces a service.
    void Put(const std::wstring& name, const TFakeService& service) { FServices[name] = {service, 0, {}}; }
    /// The service as it is now; it must have been put.
    [[nodiscard]] const TFakeService& Service(const std::wstring& name) const {
        return FServices.at(name).Service;
    }

    /// Every call of this kind fails, or no longer fails.
    void Fail(TServiceCall call, bool fails = true);
    [[nodiscard]] const std::vector<TServiceLogEntry>& Log() const { return FLog; }
    [[nodiscard]] std::size_t OpenHandles() const { return FHandles.size(); }
    /// Handles that were closed without being open.
    [[nodiscard]] int WrongCloses() const { return FWrongCloses; }

    [[nodiscard]] TServiceHandle OpenManager(std::uint32_t access) override;
    [[nodiscard]] TServiceHandle OpenNamedService(TServiceHandle manager, const std::wstring& name,
                                                  std::uint32_t access) override;
    void Close(TServiceHandle handle) override;
    [[nodiscard]] bool QueryState(TServiceHandle service, TServiceState& state) override;
    [[nodiscard]] bool Control(TServiceHandle service, TServiceControl control,
                               TServiceState& state) override;
    [[nodiscard]] bool Start(TServiceHandle service) override;
    [[nodiscard]] bool ChangeStartType(TServiceHandle service, TServiceStartType startType) override;

  private:
    struct TEntry {
        TFakeService Service;
        int QueriesLeft = 0;                ///< until the service is in `Next`
        std::optional<TServiceState> Next;  ///< while a start or stop is pending
    };

    TServiceHandle NewHandle(const std::wstring& name);
    /// The service of an open handle; null for any other handle.
    TEntry* Find(TServiceHandle service);
    static void Enter(TEntry& entry, TServiceState pending, TServiceState final);
    /// Logs the call and passes its result on.
    bool Log(TServiceCall call, TServiceHandle service, std::uint32_t number, bool result);
    [[nodiscard]] bool Fails(TServiceCall call) const { return FFailing.contains(call); }

    std::unordered_map<std::wstring, TEntry, TTextHash, TTextEqual> FServices;
    std::map<TServiceHandle, std::wstring> FHandles;  ///< service names; empty for the manager
    std::uintptr_t FLastHandle = 0;
    std::set<TServiceCall> FFailing;
    std::vector<TServiceLogEntry> FLog;
    int FWrongCloses = 0;
};
