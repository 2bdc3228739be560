// How long the program takes until its window is visible and until it can be used, side by side with notepad.
//   startup_bench <program> <runs>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "tools/automation.h"

namespace {

constexpr DWORD kPollInterval = 1;

class TStopwatch {
  public:
    TStopwatch() { QueryPerformanceCounter(&FStart); }
    [[nodiscard]] double Milliseconds() const {
        LARGE_INTEGER now;
        LARGE_INTEGER frequency;
        QueryPerformanceCounter(&now);
        QueryPerformanceFrequency(&frequency);
        return 1000.0 * static_cast<double>(now.QuadPart - FStart.QuadPart) /
               static_cast<double>(frequency.QuadPart);
    }

  private:
    LARGE_INTEGER FStart{};
};

struct TTimes {
    double Visible = 0;
    double Ready = 0;
};

template <typename TCondition>
void Poll(const TCondition& condition) {
    const DWORD begin = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - begin > kPatience) throw TAutomationError(L"a window did not come up");
        Sleep(kPollInterval);
    }
}

/// Starts a program and waits for its window; for our own also until its buttons work.
TTimes Measure(std::wstring command, const wchar_t* windowClass, bool waitReady) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const TStopwatch watch;
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        throw TAutomationError(L"cannot start " + command);
    HWND window = nullptr;
    Poll([&] { return (window = FindWindowW(windowClass, nullptr)) != nullptr && IsWindowVisible(window); });
    TTimes times{watch.Milliseconds(), 0};
    if (waitReady) {
        const TMainWindow main = TMainWindow::WaitFor(process.dwProcessId);
        const HWND ok = main.Find(L"Button_OK");
        const HWND panel = main.Find(L"Panel_Loading");
        Poll([&] { return IsWindowEnabled(ok) && !IsWindowVisible(panel); });
        times.Ready = watch.Milliseconds();
    }
    PostMessageW(window, WM_CLOSE, 0, 0);
    WaitForSingleObject(process.hProcess, kPatience);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return times;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    const int runs = std::max(1, static_cast<int>(std::wcstol(arguments[2], nullptr, 10)));
    std::vector<double> notepad;
    std::vector<double> visible;
    std::vector<double> ready;
    std::vector<double> ratio;
    try {
        for (int i = -1; i < runs; ++i) {  // the first pair warms up
            const TTimes other = Measure(L"notepad.exe", L"Notepad", false);
            const TTimes own = Measure(L"\"" + std::wstring(arguments[1]) + L"\"", TMainWindow::kClass, true);
            if (i < 0) continue;
            notepad.push_back(other.Visible);
            visible.push_back(own.Visible);
            ready.push_back(own.Ready - own.Visible);
            ratio.push_back(own.Visible / other.Visible);
        }
    } catch (const TAutomationError& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    std::printf("medians of %d pairs\n", runs);
    std::printf("notepad visible            %7.1f ms\n", Median(notepad));
    std::printf("Quilltune visible          %7.1f ms\n", Median(visible));
    std::printf("Quilltune / notepad        %7.2f\n", Median(ratio));
    std::printf("visible until ready        %7.1f ms\n", Median(ready));
    return 0;
}
