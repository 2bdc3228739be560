// What the programs that measure windows share: a program that runs while it is measured.
#pragma once

#include <utility>

#include "tools/automation.h"
// After windows.h, which they need.
#include <commctrl.h>
#include <psapi.h>

#include "tools/measure.h"

/// How long a step takes until the window, of any process, is painted; `redraw` are flags of RedrawWindow.
inline double Timed(
    HWND window, UINT redraw, const std::function<void()>& step = [] {}) {
    const TStopwatch watch;
    step();
    RedrawWindow(window, nullptr, nullptr, redraw | RDW_ALLCHILDREN | RDW_UPDATENOW);
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &answer);
    return watch.Milliseconds();
}

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
    /// The most memory that the program has had at a time.
    [[nodiscard]] double PeakMegabytes() const {
        PROCESS_MEMORY_COUNTERS counters{};
        GetProcessMemoryInfo(FProcess.hProcess, &counters, sizeof counters);
        return static_cast<double>(counters.PeakWorkingSetSize) / (1 << 20);
    }

  private:
    PROCESS_INFORMATION FProcess{};
    HWND FWindow = nullptr;
};

/// Waits until the program has no pages to create any more.
inline void WaitSettled(const TMainWindow& window) {
    constexpr DWORD kPause = 700;
    std::size_t before = 0;
    for (std::size_t now = 1; now != before; Sleep(kPause))
        before = std::exchange(now, window.Controls().size());
}
