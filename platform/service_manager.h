// The raw calls of the Windows service control manager. How a service is started and stopped with them is
// decided above this floor.
#pragma once

#include <cstdint>
#include <string>

/// An open handle of the service manager or of a service; None is what a failed open answers.
enum class TServiceHandle : std::uintptr_t { None = 0 };

/// dwCurrentState of SERVICE_STATUS, with the documented numbers.
enum class TServiceState : std::uint32_t {
    Stopped = 1,
    StartPending = 2,
    StopPending = 3,
    Running = 4,
    ContinuePending = 5,
    PausePending = 6,
    Paused = 7,
};

/// dwStartType of a service, with the documented numbers; drivers have others.
enum class TServiceStartType : std::uint32_t { Automatic = 2, Manual = 3, Disabled = 4 };

/// dwControl of ControlService, with the documented numbers.
enum class TServiceControl : std::uint32_t { Stop = 1, Continue = 3, Interrogate = 4 };

/// Every call may be given TServiceHandle::None and then fails. Nothing throws; outputs are left untouched on
/// failure.
class TServiceManager {
  public:
    virtual ~TServiceManager() = default;

    /// OpenSCManagerW for the local machine and the default database; `access` are SC_MANAGER_… rights.
    [[nodiscard]] virtual TServiceHandle OpenManager(std::uint32_t access) = 0;
    /// OpenServiceW by key name; `access` are SERVICE_… rights.
    [[nodiscard]] virtual TServiceHandle OpenNamedService(TServiceHandle manager, const std::wstring& name,
                                                          std::uint32_t access) = 0;
    /// CloseServiceHandle; None is ignored.
    virtual void Close(TServiceHandle handle) = 0;

    /// QueryServiceStatus.
    [[nodiscard]] virtual bool QueryState(TServiceHandle service, TServiceState& state) = 0;
    /// ControlService; `state` is the state that the service reports in its answer.
    [[nodiscard]] virtual bool Control(TServiceHandle service, TServiceControl control,
                                       TServiceState& state) = 0;
    /// StartServiceW without arguments.
    [[nodiscard]] virtual bool Start(TServiceHandle service) = 0;
    /// The start type that QueryServiceConfigW answers; it may be one that no service of this program has.
    [[nodiscard]] virtual bool QueryStartType(TServiceHandle service, TServiceStartType& startType) = 0;
    /// ChangeServiceConfigW that changes the start type alone.
    [[nodiscard]] virtual bool ChangeStartType(TServiceHandle service, TServiceStartType startType) = 0;
};
