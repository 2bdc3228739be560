// A service for the tests of service control.
//   service_program.exe <key name> <milliseconds> <state>
// It stays start-pending that long, and stop-pending as well; then it is in the given state (SERVICE_… number) until
// it is stopped.
#include <windows.h>

#include <string>

namespace {

struct TService {
    std::wstring Name;
    DWORD Pending = 0;
    DWORD State = SERVICE_RUNNING;
    DWORD Reported = SERVICE_STOPPED;
    SERVICE_STATUS_HANDLE Handle = nullptr;
    HANDLE StopAsked = nullptr;

    void Report(DWORD state) {
        SERVICE_STATUS status{};
        status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
        status.dwCurrentState = Reported = state;
        status.dwWaitHint = Pending + 1000;
        const bool changing = state == SERVICE_START_PENDING || state == SERVICE_STOP_PENDING;
        if (!changing && state != SERVICE_STOPPED) status.dwControlsAccepted = SERVICE_ACCEPT_STOP;
        SetServiceStatus(Handle, &status);
    }
};

/// Windows hands the service's functions no context of their own.
TService Service;

void WINAPI Control(DWORD control) {
    if (control == SERVICE_CONTROL_STOP) {
        Service.Report(SERVICE_STOP_PENDING);
        SetEvent(Service.StopAsked);
    } else {
        Service.Report(Service.Reported);
    }
}

void WINAPI ServiceMain(DWORD /*count*/, LPWSTR* /*arguments*/) {
    Service.Handle = RegisterServiceCtrlHandlerW(Service.Name.c_str(), Control);
    if (Service.Handle == nullptr) return;
    Service.StopAsked = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    Service.Report(SERVICE_START_PENDING);
    Sleep(Service.Pending);
    Service.Report(Service.State);
    if (Service.State == SERVICE_STOPPED) return;
    WaitForSingleObject(Service.StopAsked, INFINITE);
    Sleep(Service.Pending);
    Service.Report(SERVICE_STOPPED);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 4) return 2;
    Service.Name = arguments[1];
    Service.Pending = static_cast<DWORD>(std::stoul(arguments[2]));
    Service.State = static_cast<DWORD>(std::stoul(arguments[3]));
    const SERVICE_TABLE_ENTRYW table[] = {{Service.Name.data(), ServiceMain}, {nullptr, nullptr}};
    return StartServiceCtrlDispatcherW(table) ? 0 : 1;
}
