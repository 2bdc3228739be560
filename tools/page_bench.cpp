// How long the pages take until they are painted when they are chosen for the first and for the second time, side by
// side with the tabs of winecfg, a property sheet that creates each page when it is first chosen; and the most memory
// that the program has used by then, beside notepad. One program is used as soon as it is ready, before its idle time has
// created the pages; another one after that.
//   page_bench <program> <runs>
#include <cstdio>
#include <cstdlib>

#include "tools/bench.h"

namespace {

/// Times of a page or tab, over the runs.
struct TShowings {
    std::vector<double> First;
    std::vector<double> Second;
    std::vector<double> FirstCreated;  ///< the first ones where the windows exist already
};
using TTable = std::map<std::wstring, TShowings>;

/// All steps once, then all once more.
void ShowAll(HWND window, const std::map<std::wstring, std::function<void()>>& steps, TTable& table) {
    for (const auto& [name, step] : steps) table[name].First.push_back(Timed(window, 0, step));
    for (const auto& [name, step] : steps) table[name].Second.push_back(Timed(window, 0, step));
}

void ShowTabs(TTable& table) {
    const TStarted peer(L"winecfg.exe", L"#32770");
    const HWND tabs = FindWindowExW(peer.Window(), nullptr, WC_TABCONTROLW, nullptr);
    std::map<std::wstring, std::function<void()>> steps;
    // The first tab is shown, and the last but one plays a part of its own: it looks for sound cards.
    for (const WPARAM tab : {1, 2, 3, 4, 6})
        steps[std::to_wstring(tab)] = [=] { SendMessageW(tabs, TCM_SETCURFOCUS, tab, 0); };
    ShowAll(peer.Window(), steps, table);
}

/// Chooses the item of every page but the one that is shown.
std::map<std::wstring, std::function<void()>> PageSteps(const TMainWindow& main) {
    std::map<std::wstring, std::function<void()>> steps;
    for (const auto& [item, name] : main.Controls()) {
        const bool isFirst = name == L"RzGroup_CommonSettings.Items[0]";  // its page is shown
        if (isFirst || name.find(L".Items[") == std::wstring::npos || !IsWindowVisible(item)) continue;
        steps[name] = [window = item] { SendMessageW(window, BM_CLICK, 0, 0); };
    }
    return steps;
}

/// The answer is the peak of the program's memory in MB.
double ShowPages(const std::wstring& program, TTable& table) {
    const TStarted own(L"\"" + program + L"\"", TMainWindow::kClass);
    const TMainWindow main = TMainWindow::WaitFor(own.Id());
    main.WaitReady();
    ShowAll(own.Window(), PageSteps(main), table);
    return own.PeakMegabytes();
}

void ShowCreatedPages(const std::wstring& program, TTable& table) {
    const TStarted own(L"\"" + program + L"\"", TMainWindow::kClass);
    const TMainWindow main = TMainWindow::WaitFor(own.Id());
    main.WaitReady();
    WaitSettled(main);
    for (const auto& [name, step] : PageSteps(main))
        table[name].FirstCreated.push_back(Timed(own.Window(), 0, step));
}

/// The median of all tabs.
double MedianOf(const TTable& table, std::vector<double> TShowings::*showing) {
    std::vector<double> all;
    for (const auto& [name, times] : table)
        all.insert(all.end(), (times.*showing).begin(), (times.*showing).end());
    return Median(all);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    const int runs = std::max(1, static_cast<int>(std::wcstol(arguments[2], nullptr, 10)));
    TTable tabs;
    TTable pages;
    std::vector<double> notepadMemory;
    std::vector<double> ownMemory;
    try {
        for (int i = 0; i < runs; ++i) {
            ShowTabs(tabs);
            ownMemory.push_back(ShowPages(arguments[1], pages));
            ShowCreatedPages(arguments[1], pages);
            notepadMemory.push_back(TStarted(L"notepad.exe", L"Notepad").PeakMegabytes());
        }
    } catch (const TAutomationError& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    const double first = MedianOf(tabs, &TShowings::First);
    const double second = MedianOf(tabs, &TShowings::Second);
    std::printf("medians of %d runs\n", runs);
    std::printf("%-32s first %7.2f ms            second %7.2f ms\n", "a tab of winecfg", first, second);
    for (const auto& [name, times] : pages)
        std::printf(
            "%-32s first %7.2f ms ratio %4.2f second %7.2f ms ratio %4.2f first, created %7.2f ms ratio "
            "%4.2f\n",
            Utf8(name).c_str(), Median(times.First), Median(times.First) / first, Median(times.Second),
            Median(times.Second) / second, Median(times.FirstCreated), Median(times.FirstCreated) / first);
    std::printf("peak memory      notepad %7.1f MB   Quilltune %7.1f MB   ratio %6.2f\n",
                Median(notepadMemory), Median(ownMemory), Median(ownMemory) / Median(notepadMemory));
    return 0;
}
