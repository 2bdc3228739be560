// A service for the tests of service control.
//   service_program.exe <milliseconds> <state>
// It stays start-pending that long, and stop-pending as well; then it is in the given state (SERVICE_… number) until
// it is stopped.
#include <windows.h>

#include <string>

namespace {

// Windows hands the service's functions no context of their own.
DWORD Pending = 0;
DWORD State = 0;
DWORD Reported = 0;
SERVICE_STATUS_HANDLE Service = nullptr;
HANDLE StopAsked = nullptr;
wchar_t Name[] = L"";  // of the only service in a process it does not matter

void Report(DWORD state) {
    SERVICE_STATUS status{};
    status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
    status.dwCurrentState = Reported = state;
    status.dwWaitHint = Pending + 1000;
    if (state == SERVICE_RUNNING || state == SERVICE_PAUSED) status.dwControlsAccepted = SERVICE_ACCEPT_STOP;
    SetServiceStatus(Service, &status);
}

void WINAPI Control(DWORD control) {
    Report(control == SERVICE_CONTROL_STOP ? SERVICE_STOP_PENDING : Reported);
    if (control == SERVICE_CONTROL_STOP) SetEvent(StopAsked);
}

void WINAPI ServiceMain(DWORD /*count*/, LPWSTR* /*arguments*/) {
    StopAsked = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    Service = RegisterServiceCtrlHandlerW(Name, Control);
    Report(SERVICE_START_PENDING);
    Sleep(Pending);
    Report(State);
    if (State == SERVICE_STOPPED) return;
    WaitForSingleObject(StopAsked, INFINITE);
    Sleep(Pending);
    Report(SERVICE_STOPPED);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    Pending = static_cast<DWORD>(std::stoul(arguments[1]));
    State = static_cast<DWORD>(std::stoul(arguments[2]));
    const SERVICE_TABLE_ENTRYW table[] = {{Name, ServiceMain}, {nullptr, nullptr}};
    return StartServiceCtrlDispatcherW(table) ? 0 : 1;
}
