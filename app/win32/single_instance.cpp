#include "app/win32/single_instance.h"

#include "app/win32/file_argument.h"
#include "base/win32/handle.h"

namespace {

/// In milliseconds, for a window that does not answer.
constexpr DWORD kPatience = 5000;
constexpr DWORD kRound = 50;

DWORD WINAPI CallForward(void* handle) {
    const auto window = static_cast<HWND>(handle);
    if (IsIconic(window)) PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
    SetForegroundWindow(window);
    SendMessageW(window, TSingleInstance::kComeForward, 0, 0);
    return 0;
}

}  // namespace

TSingleInstance::TSingleInstance() {
    FMutex = CreateMutexW(nullptr, TRUE, L"_Vandrel_Quilltune_");
    FAlreadyRunning = GetLastError() == ERROR_ALREADY_EXISTS;
}

TSingleInstance::~TSingleInstance() {
    if (FMutex != nullptr) CloseHandle(FMutex);
}

void TSingleInstance::BringOtherForward(const wchar_t* windowClass, const std::wstring& file) {
    HWND window = FindWindowW(windowClass, nullptr);
    // The other one may have been started a moment ago, and only a file makes it worth while to wait.
    for (DWORD waited = 0; window == nullptr && !file.empty() && waited < kPatience; waited += kRound) {
        Sleep(kRound);
        window = FindWindowW(windowClass, nullptr);
    }
    if (window == nullptr) return;
    // A thread of its own does it, for whichever step does not come back from a window that hangs.
    const TWaitableHandle caller(CreateThread(nullptr, 0, CallForward, window, 0, nullptr));
    WaitForSingleObject(caller.Get(), kPatience);
    if (!file.empty()) HandOverFile(window, file);
}
