// Services switched on and off by the real service manager, with service_program.exe in the services' place.
#include <windows.h>

#include <utility>

#include "platform/service_control.h"
#include "tests/contract/subject.h"

namespace {

constexpr std::wstring_view kOurProgram = L"service_program.exe";

/// The path of the service program, which stands beside the test program.
std::wstring ServiceProgram() {
    wchar_t path[MAX_PATH]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring file = path;
    return file.substr(0, file.rfind(L'\\') + 1) + std::wstring(kOurProgram);
}

/// A handle of the service manager or of a service, with which the test looks behind the adapter.
class TScHandle {
  public:
    explicit TScHandle(SC_HANDLE handle) : FHandle(handle) {}
    ~TScHandle() {
        if (FHandle != nullptr) CloseServiceHandle(FHandle);
    }
    TScHandle(const TScHandle&) = delete;
    TScHandle& operator=(const TScHandle&) = delete;

    [[nodiscard]] SC_HANDLE Get() const { return FHandle; }

  private:
    SC_HANDLE FHandle;
};

/// The configuration of a service, as Windows writes it into a buffer.
struct TConfig {
    explicit TConfig(SC_HANDLE service) {
        DWORD needed = 0;
        if (!QueryServiceConfigW(service, &Fields, sizeof Buffer, &needed)) Fields = {};
    }

    union {
        QUERY_SERVICE_CONFIGW Fields;
        BYTE Buffer[8192];  // the most that Windows ever needs
    };
};

DWORD StateOf(SC_HANDLE service) {
    SERVICE_STATUS status{};
    return QueryServiceStatus(service, &status) ? status.dwCurrentState : 0;
}

/// Waits, up to ten seconds, for a service to be stopped.
bool WaitForStop(SC_HANDLE service) {
    for (int i = 0; i < 100 && StateOf(service) != SERVICE_STOPPED; ++i) Sleep(100);
    return StateOf(service) == SERVICE_STOPPED;
}

/// Gives a service name to the service program. A service that has the name already is kept, and gets its
/// configuration back in the end.
class TTestService {
  public:
    TTestService(const wchar_t* name, DWORD pending, DWORD state)
        : FManager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS)),
          FExisting(OpenServiceW(FManager.Get(), name, SERVICE_ALL_ACCESS)),
          FOld(FExisting.Get()),
          FCommand(L'"' + ServiceProgram() + L"\" " + name + L' ' + std::to_wstring(pending) + L' ' +
                   std::to_wstring(state)),
          FCreated(FExisting.Get() == nullptr
                       ? CreateServiceW(FManager.Get(), name, name, SERVICE_ALL_ACCESS,
                                        SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START, SERVICE_ERROR_IGNORE,
                                        FCommand.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr)
                       : nullptr) {
        if (FExisting.Get() == nullptr) return;
        EXPECT_EQ(StateOf(Get()), static_cast<DWORD>(SERVICE_STOPPED)) << "this service is in use";
        Configure(SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START, FCommand.c_str());
    }
    ~TTestService() {
        SERVICE_STATUS status{};
        ControlService(Get(), SERVICE_CONTROL_STOP, &status);
        EXPECT_TRUE(WaitForStop(Get()));
        if (FCreated.Get() != nullptr)
            EXPECT_TRUE(DeleteService(Get()));
        else
            Configure(FOld.Fields.dwServiceType, FOld.Fields.dwStartType, FOld.Fields.lpBinaryPathName);
    }
    TTestService(const TTestService&) = delete;
    TTestService& operator=(const TTestService&) = delete;

    [[nodiscard]] SC_HANDLE Get() const {
        return FCreated.Get() != nullptr ? FCreated.Get() : FExisting.Get();
    }
    [[nodiscard]] DWORD StartType() const { return TConfig(Get()).Fields.dwStartType; }
    [[nodiscard]] DWORD State() const { return StateOf(Get()); }

  private:
    void Configure(DWORD type, DWORD startType, const wchar_t* command) const {
        EXPECT_TRUE(ChangeServiceConfigW(Get(), type, startType, SERVICE_NO_CHANGE, command, nullptr, nullptr,
                                         nullptr, nullptr, nullptr, nullptr));
    }

    TScHandle FManager;
    TScHandle FExisting;
    TConfig FOld;
    std::wstring FCommand;
    TScHandle FCreated;
};

constexpr const wchar_t* kServices[] = {L"wscsvc", L"MpsSvc", L"SharedAccess"};

using TServiceControlWin32 = TContractTest;

TEST_F(TServiceControlWin32, SwitchesTheServicesOnAndOff) {
    for (const wchar_t* name : kServices) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(name)));
        const TTestService service(name, 0, SERVICE_RUNNING);
        ASSERT_NE(service.Get(), nullptr);
        EXPECT_EQ(QueryServiceRunning(System(), name), TServiceAnswer::Silent);

        EXPECT_TRUE(StartServiceByName(System(), name));
        EXPECT_EQ(service.StartType(), static_cast<DWORD>(SERVICE_AUTO_START));
        EXPECT_EQ(service.State(), static_cast<DWORD>(SERVICE_RUNNING));
        EXPECT_EQ(QueryServiceRunning(System(), name), TServiceAnswer::Running);

        EXPECT_TRUE(StopServiceByName(System(), name));
        EXPECT_EQ(service.StartType(), static_cast<DWORD>(SERVICE_DISABLED));
        EXPECT_EQ(service.State(), static_cast<DWORD>(SERVICE_STOPPED));
        EXPECT_EQ(QueryServiceRunning(System(), name), TServiceAnswer::Silent);
    }
}

TEST_F(TServiceControlWin32, ASecondTimeOnlyTheStartTypeChanges) {
    const TTestService service(L"wscsvc", 0, SERVICE_RUNNING);
    EXPECT_FALSE(StopServiceByName(System(), L"wscsvc"));
    EXPECT_EQ(service.StartType(), static_cast<DWORD>(SERVICE_DISABLED));
    EXPECT_TRUE(StartServiceByName(System(), L"wscsvc")) << "a disabled service is made automatic first";
    EXPECT_FALSE(StartServiceByName(System(), L"wscsvc"));
    EXPECT_EQ(service.StartType(), static_cast<DWORD>(SERVICE_AUTO_START));
}

/// The messages of a timer that the system under test lets through.
int Ticks = 0;

void CALLBACK CountTick(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) { ++Ticks; }

TEST_F(TServiceControlWin32, WaitsForASlowServiceWhileMessagesAreHandled) {
    constexpr DWORD kPending = 1600;
    const TTestService service(L"MpsSvc", kPending, SERVICE_RUNNING);
    Ticks = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, 50, CountTick);
    DWORD begin = GetTickCount();
    EXPECT_TRUE(StartServiceByName(System(), L"MpsSvc"));
    EXPECT_GE(GetTickCount() - begin, kPending);
    EXPECT_GE(std::exchange(Ticks, 0), 2);
    begin = GetTickCount();
    EXPECT_TRUE(StopServiceByName(System(), L"MpsSvc"));
    EXPECT_GE(GetTickCount() - begin, kPending);
    EXPECT_GE(Ticks, 2);
    KillTimer(nullptr, timer);
}

TEST_F(TServiceControlWin32, OtherStatesAreNoSuccess) {
    {
        const TTestService fails(L"SharedAccess", 0, SERVICE_STOPPED);
        EXPECT_FALSE(StartServiceByName(System(), L"SharedAccess"));
    }
    const TTestService pauses(L"SharedAccess", 0, SERVICE_PAUSED);
    EXPECT_FALSE(StartServiceByName(System(), L"SharedAccess"));
    EXPECT_EQ(QueryServiceRunning(System(), L"SharedAccess"), TServiceAnswer::Unknown);

    constexpr const wchar_t* kNobody = L"Vandrel-No-Such-Service";
    EXPECT_FALSE(StartServiceByName(System(), kNobody));
    EXPECT_FALSE(StopServiceByName(System(), kNobody));
    EXPECT_EQ(QueryServiceRunning(System(), kNobody), TServiceAnswer::Unknown);
}

}  // namespace
