// A service switched on and off by the real service manager, with service_program.exe in its place.
#include <windows.h>

#include "platform/service_control.h"
#include "tests/contract/subject.h"

namespace {

constexpr const wchar_t* kName = L"Vandrel-Test-Service";
constexpr const wchar_t* kNobody = L"Vandrel-No-Such-Service";

/// An installed service; the service program stands beside the test program.
class TTestService {
  public:
    TTestService(DWORD pending, DWORD state)
        : FManager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS)) {
        wchar_t path[MAX_PATH]{};
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring folder(path, std::wstring_view(path).rfind(L'\\') + 1);
        const std::wstring command = L'"' + folder + L"service_program.exe\" " + std::to_wstring(pending) +
                                     L' ' + std::to_wstring(state);
        FService = CreateServiceW(FManager, kName, kName, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                                  SERVICE_DEMAND_START, SERVICE_ERROR_IGNORE, command.c_str(), nullptr,
                                  nullptr, nullptr, nullptr, nullptr);
    }
    ~TTestService() {
        SERVICE_STATUS status{};
        ControlService(FService, SERVICE_CONTROL_STOP, &status);
        for (int i = 0; i < 100 && State() != SERVICE_STOPPED; ++i) Sleep(100);
        EXPECT_EQ(State(), static_cast<DWORD>(SERVICE_STOPPED));
        EXPECT_TRUE(DeleteService(FService));
        CloseServiceHandle(FService);
        CloseServiceHandle(FManager);
    }
    TTestService(const TTestService&) = delete;
    TTestService& operator=(const TTestService&) = delete;

    [[nodiscard]] DWORD State() const {
        SERVICE_STATUS status{};
        return QueryServiceStatus(FService, &status) ? status.dwCurrentState : 0;
    }

  private:
    SC_HANDLE FManager;
    SC_HANDLE FService;
};

class TServiceControlWin32 : public TContractTest {
  protected:
    bool Start(const wchar_t* name = kName) { return StartServiceByName(System(), name); }
    bool Stop(const wchar_t* name = kName) { return StopServiceByName(System(), name); }
    std::optional<TServiceStatus> Status() { return ReadServiceStatus(System(), kName); }
    TServiceAnswer Answer(const wchar_t* name = kName) { return QueryServiceRunning(System(), name); }
};

TEST_F(TServiceControlWin32, SwitchesAServiceOnAndOffOnce) {
    const TTestService service(0, SERVICE_RUNNING);
    for (int i = 0; i < 2; ++i) {  // a disabled service is made automatic first
        EXPECT_EQ(Answer(), TServiceAnswer::Silent);
        EXPECT_TRUE(Start());
        EXPECT_FALSE(Start()) << "it runs already";
        EXPECT_EQ(Status(), (TServiceStatus{TServiceStartType::Automatic, true}));
        EXPECT_EQ(Answer(), TServiceAnswer::Running);

        EXPECT_TRUE(Stop());
        EXPECT_FALSE(Stop()) << "it is stopped already";
        EXPECT_EQ(Status(), (TServiceStatus{TServiceStartType::Disabled, false}));
        EXPECT_EQ(service.State(), static_cast<DWORD>(SERVICE_STOPPED));
    }
}

/// The messages of a timer that the system under test lets through.
int Ticks = 0;

void CALLBACK CountTick(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) { ++Ticks; }

TEST_F(TServiceControlWin32, WaitsForASlowServiceWhileMessagesAreHandled) {
    constexpr DWORD kPending = 1600;
    const TTestService service(kPending, SERVICE_RUNNING);
    const UINT_PTR timer = SetTimer(nullptr, 0, 50, CountTick);
    for (const bool starts : {true, false}) {
        Ticks = 0;
        const DWORD begin = GetTickCount();
        EXPECT_TRUE(starts ? Start() : Stop());
        EXPECT_GE(GetTickCount() - begin, kPending);
        EXPECT_GE(Ticks, 2);
    }
    KillTimer(nullptr, timer);
}

TEST_F(TServiceControlWin32, RestoresWhatItWas) {
    const TTestService service(300, SERVICE_RUNNING);
    using enum TServiceStartType;
    for (const TServiceStatus wanted :
         {TServiceStatus{Disabled, true}, {Disabled, false}, {Automatic, true}, {Manual, false}}) {
        EXPECT_TRUE(RestoreService(System(), kName, wanted));
        EXPECT_EQ(Status(), wanted);
    }
}

TEST_F(TServiceControlWin32, OtherStatesAreNoSuccess) {
    for (const DWORD state : {SERVICE_STOPPED, SERVICE_PAUSED}) {
        const TTestService service(0, state);
        EXPECT_FALSE(Start());
        EXPECT_EQ(Answer(), state == SERVICE_PAUSED ? TServiceAnswer::Unknown : TServiceAnswer::Silent);
    }
    EXPECT_FALSE(Start(kNobody) || Stop(kNobody));
    EXPECT_EQ(Answer(kNobody), TServiceAnswer::Unknown);
}

}  // namespace
