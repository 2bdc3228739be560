// What the programs that measure windows share: a program that runs while it is measured.
#pragma once

#include <utility>

#include "tools/automation.h"
#include "tools/measure.h"

/// Asks every millisecond until the answer is true.
template <typename TCondition>
void Poll(const TCondition& condition) {
    const DWORD begin = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - begin > kPatience) throw TAutomationError(L"a window did not come up");
        Sleep(1);
    }
}

/// A program that was started and whose window is visible. Closed when the object goes.
class TStarted {
  public:
    TStarted(std::wstring command, const wchar_t* windowClass) {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                            &FProcess))
            throw TAutomationError(L"cannot start " + command);
        Poll([&] {
            return (FWindow = FindWindowW(windowClass, nullptr)) != nullptr && IsWindowVisible(FWindow);
        });
    }
    ~TStarted() {
        PostMessageW(FWindow, WM_CLOSE, 0, 0);
        WaitForSingleObject(FProcess.hProcess, kPatience);
        CloseHandle(FProcess.hThread);
        CloseHandle(FProcess.hProcess);
    }
    TStarted(const TStarted&) = delete;
    TStarted& operator=(const TStarted&) = delete;

    [[nodiscard]] HWND Window() const { return FWindow; }
    [[nodiscard]] DWORD Id() const { return FProcess.dwProcessId; }

  private:
    PROCESS_INFORMATION FProcess{};
    HWND FWindow = nullptr;
};
