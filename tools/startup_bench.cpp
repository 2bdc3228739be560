// How long the program takes until its window is visible and until it can be used, side by side with notepad, and the
// longest time in which it handles no input.
//   startup_bench <program> <runs>
#include <cstdio>
#include <cstdlib>

#include "tools/bench.h"

namespace {

struct TTimes {
    double Visible = 0;
    double Ready = 0;
    double Deaf =
        0;  ///< the longest stretch without handling input, from visible until all windows are created
};

TTimes MeasureNotepad() {
    const TStopwatch watch;
    const TStarted notepad(L"notepad.exe", L"Notepad");
    return {watch.Milliseconds()};
}

TTimes MeasureOwn(const std::wstring& program) {
    constexpr double kSettled = 1500;  // after it is visible
    const TStopwatch watch;
    const TStarted own(L"\"" + program + L"\"", TMainWindow::kClass);
    TTimes times{watch.Milliseconds()};
    const TMainWindow window = TMainWindow::WaitFor(own.Id());
    HWND ok = nullptr;
    HWND panel = nullptr;
    while (times.Ready == 0 || watch.Milliseconds() - times.Visible < kSettled) {
        const TStopwatch ping;
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(own.Window(), WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &answer);
        times.Deaf = std::max(times.Deaf, ping.Milliseconds());
        if (ok == nullptr) {
            ok = window.Find(L"Button_OK");
            panel = window.Find(L"Panel_Loading");
        }
        if (times.Ready == 0 && IsWindowEnabled(ok) && !IsWindowVisible(panel))
            times.Ready = watch.Milliseconds();
        Sleep(1);
    }
    return times;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    const int runs = std::max(1, static_cast<int>(std::wcstol(arguments[2], nullptr, 10)));
    std::vector<double> notepad;
    std::vector<double> visible;
    std::vector<double> ready;
    std::vector<double> deaf;
    std::vector<double> ratio;
    try {
        for (int i = -1; i < runs; ++i) {  // the first pair warms up
            const TTimes other = MeasureNotepad();
            const TTimes own = MeasureOwn(arguments[1]);
            if (i < 0) continue;
            notepad.push_back(other.Visible);
            visible.push_back(own.Visible);
            ready.push_back(own.Ready - own.Visible);
            deaf.push_back(own.Deaf);
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
    std::printf("longest without input      %7.1f ms\n", Median(deaf));
    return 0;
}
