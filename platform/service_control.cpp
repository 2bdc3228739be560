#include "platform/service_control.h"

namespace {

constexpr std::uint32_t kManagerAllAccess = 0xF003F;  // SC_MANAGER_ALL_ACCESS
constexpr std::uint32_t kServiceAllAccess = 0xF01FF;  // SERVICE_ALL_ACCESS
constexpr std::uint32_t kGenericRead = 0x80000000;    // GENERIC_READ
constexpr std::uint32_t kManagerConnect = 0x0001;     // SC_MANAGER_CONNECT
constexpr std::uint32_t kServiceQuery = 0x0005;       // SERVICE_QUERY_CONFIG | SERVICE_QUERY_STATUS

/// An opened service, released at the end of its scope. Either handle may be none; the calls then fail.
class TOpenService {
  public:
    TOpenService(TServiceManager& services, const std::wstring& name, std::uint32_t access,
                 std::uint32_t managerAccess = kManagerAllAccess)
        : FServices(services),
          FManager(services.OpenManager(managerAccess)),
          FService(services.OpenNamedService(FManager, name, access)) {}
    ~TOpenService() {
        FServices.Close(FService);
        FServices.Close(FManager);
    }
    TOpenService(const TOpenService&) = delete;
    TOpenService& operator=(const TOpenService&) = delete;

    [[nodiscard]] TServiceHandle Handle() const { return FService; }

  private:
    TServiceManager& FServices;
    TServiceHandle FManager;
    TServiceHandle FService;
};

bool IsPending(TServiceState state) {
    using enum TServiceState;
    return state == StartPending || state == StopPending || state == ContinuePending || state == PausePending;
}

/// Waits while the service is on its way to another state, but not for ever. Nothing when it cannot be asked.
std::optional<TServiceState> AwaitRest(TSystem& system, TServiceHandle service) {
    constexpr std::uint32_t kWait = 500;
    constexpr int kRounds = 120;
    std::optional<TServiceState> rest;
    auto state = TServiceState::Stopped;
    for (int round = 0; round < kRounds && system.Services.QueryState(service, state); ++round) {
        rest = state;
        if (!IsPending(state)) break;
        system.Clock.Sleep(kWait);
        system.Clock.ProcessMessages();
    }
    return rest;
}

void EnsureStartType(TServiceManager& services, TServiceHandle service, TServiceStartType wanted) {
    auto type = TServiceStartType::Manual;
    if (services.QueryStartType(service, type) && type != wanted)
        (void)services.ChangeStartType(service, wanted);
}

}  // namespace

std::optional<TServiceStatus> ReadServiceStatus(TSystem& system, const std::wstring& serviceName) {
    const TOpenService service(system.Services, serviceName, kServiceQuery, kManagerConnect);
    TServiceStatus status;
    auto state = TServiceState::Stopped;
    if (!system.Services.QueryStartType(service.Handle(), status.StartType) ||
        !system.Services.QueryState(service.Handle(), state))
        return std::nullopt;
    status.Runs = state == TServiceState::Running;
    return status;
}

bool StartServiceByName(TSystem& system, const std::wstring& serviceName) try {
    constexpr std::uint32_t kWait = 500;
    TServiceManager& services = system.Services;
    const TOpenService service(services, serviceName, kServiceAllAccess);
    (void)services.ChangeStartType(service.Handle(), TServiceStartType::Automatic);
    if (!services.Start(service.Handle())) return false;
    auto state = TServiceState::Stopped;
    while (services.QueryState(service.Handle(), state)) {
        system.Clock.Sleep(kWait);
        system.Clock.ProcessMessages();
        if (state != TServiceState::StartPending) break;
        system.Clock.Sleep(kWait);
    }
    return state == TServiceState::Running;
} catch (...) {
    return false;
}

bool StopServiceByName(TSystem& system, const std::wstring& serviceName) try {
    constexpr std::uint32_t kWait = 1000;
    TServiceManager& services = system.Services;
    const TOpenService service(services, serviceName, kServiceAllAccess);
    (void)services.ChangeStartType(service.Handle(), TServiceStartType::Disabled);
    auto state = TServiceState::Running;
    if (!services.Control(service.Handle(), TServiceControl::Stop, state)) return false;
    system.Clock.Sleep(kWait);
    while (services.QueryState(service.Handle(), state)) {
        system.Clock.ProcessMessages();
        if (state != TServiceState::StopPending) break;
        system.Clock.Sleep(kWait);
    }
    return state == TServiceState::Stopped;
} catch (...) {
    return false;
}

bool RestoreService(TSystem& system, const std::wstring& serviceName, const TServiceStatus& wanted) try {
    constexpr std::uint32_t kStopWait = 1000;  // not every service says at once that it is stopping
    TServiceManager& services = system.Services;
    const TOpenService service(services, serviceName, kServiceAllAccess);
    auto state = AwaitRest(system, service.Handle());
    if (state && !IsPending(*state) && (*state == TServiceState::Running) != wanted.Runs) {
        if (!wanted.Runs) {
            if (services.Control(service.Handle(), TServiceControl::Stop, *state))
                system.Clock.Sleep(kStopWait);
        } else if (*state == TServiceState::Paused) {
            (void)services.Control(service.Handle(), TServiceControl::Continue, *state);
        } else {
            // A disabled service cannot be started.
            auto type = TServiceStartType::Manual;
            if (services.QueryStartType(service.Handle(), type) && type == TServiceStartType::Disabled)
                (void)services.ChangeStartType(service.Handle(), type == wanted.StartType
                                                                     ? TServiceStartType::Manual
                                                                     : wanted.StartType);
            (void)services.Start(service.Handle());
        }
        state = AwaitRest(system, service.Handle());
    }
    EnsureStartType(services, service.Handle(), wanted.StartType);
    return !(state && IsPending(*state)) && ReadServiceStatus(system, serviceName) == wanted;
} catch (...) {
    return false;
}

TServiceAnswer QueryServiceRunning(TSystem& system, const std::wstring& serviceName) {
    const TOpenService service(system.Services, serviceName, kGenericRead);
    if (service.Handle() == TServiceHandle::None) return TServiceAnswer::Unknown;
    auto state = TServiceState::Stopped;
    if (!system.Services.Control(service.Handle(), TServiceControl::Interrogate, state))
        return TServiceAnswer::Silent;
    return state == TServiceState::Running ? TServiceAnswer::Running : TServiceAnswer::Unknown;
}
