// How long a window takes to be resized and to be drawn, each until the last dot is painted, side by side with notepad.
//   resize_bench <program> <steps> [category item, such as RzGroup_Others.Items[0]]
#include <cstdio>
#include <cstdlib>

#include "tools/bench.h"

namespace {

constexpr int kWarmUp = 5;  // pairs that do not count

/// Two programs' times of one kind.
class TPairs {
  public:
    void Add(double notepad, double own) {
        FNotepad.push_back(notepad);
        FOwn.push_back(own);
        FRatio.push_back(own / notepad);
    }
    void Print(const char* what) const {
        std::printf("%-16s notepad %7.2f ms   Quilltune %7.2f ms   ratio %6.2f\n", what, Median(FNotepad),
                    Median(FOwn), Median(FRatio));
    }

  private:
    std::vector<double> FNotepad;
    std::vector<double> FOwn;
    std::vector<double> FRatio;
};

/// One step of a user who drags the corner of the window to and fro.
double Resize(HWND window, int step) {
    constexpr int kTurn = 24;
    constexpr SIZE kLeast{800, 600};
    const int way = std::abs(step % (2 * kTurn) - kTurn);
    const SIZE size{kLeast.cx + 9 * way, kLeast.cy + 7 * way};
    return Timed(window, 0, [&] {
        SetWindowPos(window, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    });
}

/// Times of a step and of a full repaint, with nothing in front of the window.
std::pair<double, double> Measure(HWND window, int step) {
    Timed(window, 0,
          [window] { SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE); });
    const double resize = Resize(window, step);
    return {resize, Timed(window, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME)};
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3 && count != 4) return 2;
    const int steps = std::max(1, static_cast<int>(std::wcstol(arguments[2], nullptr, 10)));
    try {
        const TStarted notepad(L"notepad.exe", L"Notepad");
        const TStarted own(L"\"" + std::wstring(arguments[1]) + L"\"", TMainWindow::kClass);
        const TMainWindow main = TMainWindow::WaitFor(own.Id());
        main.WaitReady();
        if (count == 4) main.Click(arguments[3]);
        WaitSettled(main);
        TPairs resize;
        TPairs redraw;
        for (int i = -kWarmUp; i < steps; ++i) {
            const auto [notepadStep, notepadRedraw] = Measure(notepad.Window(), i + kWarmUp);
            const auto [ownStep, ownRedraw] = Measure(own.Window(), i + kWarmUp);
            if (i < 0) continue;
            resize.Add(notepadStep, ownStep);
            redraw.Add(notepadRedraw, ownRedraw);
        }
        std::printf("medians of %d pairs\n", steps);
        resize.Print("resize step");
        redraw.Print("full repaint");
    } catch (const TAutomationError& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    return 0;
}
