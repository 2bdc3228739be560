// How long the pages take until they are drawn when they are chosen for the first and for the second time, side by
// side with the tabs of winecfg, a property sheet that creates each page when it is first chosen; and the most memory
// that the program has used by then, beside notepad. Each page is chosen in a program that has just become ready, before
// its idle time has created the page; then each in one that has created all of them.
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

/// What can be seen of a window: lines from top to bottom, so close to each other that no control lies between them.
class TLook {
  public:
    explicit TLook(HWND window) {
        GetWindowRect(window, &FPlace);
        BITMAPINFO format{};
        format.bmiHeader = {sizeof format.bmiHeader, Lines(), Height(), 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        FBitmap = CreateDIBSection(FMemory, &format, DIB_RGB_COLORS, &FBits, nullptr, 0);
        SelectObject(FMemory, FBitmap);
        HasChanged();
    }
    ~TLook() {
        DeleteDC(FMemory);
        DeleteObject(FBitmap);
        ReleaseDC(nullptr, FScreen);
    }
    TLook(const TLook&) = delete;
    TLook& operator=(const TLook&) = delete;

    /// Since the last question.
    bool HasChanged() {
        for (int i = 0; i < Lines(); ++i)
            BitBlt(FMemory, i, 0, 1, Height(), FScreen, FPlace.left + i * kDistance, FPlace.top, SRCCOPY);
        GdiFlush();
        const auto* bits = static_cast<const DWORD*>(FBits);
        std::vector<DWORD> now(bits, bits + Lines() * Height());
        return std::exchange(FBefore, now) != now;
    }

  private:
    static constexpr int kDistance = 40;
    [[nodiscard]] int Lines() const { return (FPlace.right - FPlace.left) / kDistance; }
    [[nodiscard]] int Height() const { return FPlace.bottom - FPlace.top; }

    RECT FPlace{};
    HDC FScreen = GetDC(nullptr);
    HDC FMemory = CreateCompatibleDC(FScreen);
    HBITMAP FBitmap = nullptr;
    void* FBits = nullptr;
    std::vector<DWORD> FBefore;
};

/// How long a message that chooses a page takes until nothing changes any more in the window that the page is part of.
double Drawn(HWND window, HWND receiver, UINT message, WPARAM parameter) {
    constexpr double kStill = 300;  // milliseconds, after which nothing more is to be expected
    TLook look(window);
    const TStopwatch watch;
    SendNotifyMessageW(receiver, message, parameter, 0);
    double drawn = 0;
    while (drawn == 0 || watch.Milliseconds() < drawn + kStill) {
        if (watch.Milliseconds() > kPatience) throw TAutomationError(L"a page did not come up");
        if (look.HasChanged()) drawn = watch.Milliseconds();
        Sleep(1);
    }
    return drawn;
}

/// Chooses each tab twice.
void ChooseTabs(TTable& table) {
    const TStarted peer(L"winecfg.exe", L"#32770");
    const HWND tabs = FindWindowExW(peer.Window(), nullptr, WC_TABCONTROLW, nullptr);
    // The first tab is shown, and the last but one plays a part of its own: it looks for sound cards.
    for (auto TShowings::*showing : {&TShowings::First, &TShowings::Second}) {
        for (const WPARAM tab : {1, 2, 3, 4, 6})
            (table[std::to_wstring(tab)].*showing).push_back(Drawn(tabs, tabs, TCM_SETCURFOCUS, tab));
    }
}

/// The program that is measured, ready for the user.
class TReady : public TStarted {
  public:
    explicit TReady(const std::wstring& program) : TStarted(L"\"" + program + L"\"", TMainWindow::kClass) {
        FMain.WaitReady();
    }
    [[nodiscard]] const TMainWindow& Main() const { return FMain; }

    /// The items of all pages but the one that is shown.
    [[nodiscard]] std::vector<std::wstring> Items() const {
        std::vector<std::wstring> items;
        for (const auto& [item, name] : FMain.Controls()) {
            const bool isFirst = name == L"RzGroup_CommonSettings.Items[0]";  // its page is shown
            if (!isFirst && name.find(L".Items[") != std::wstring::npos && IsWindowVisible(item))
                items.push_back(name);
        }
        return items;
    }

    [[nodiscard]] double Choose(const std::wstring& item) const {
        return Drawn(FMain.Find(L"Notebook_Main"), FMain.Find(item), BM_CLICK, 0);
    }

  private:
    TMainWindow FMain = TMainWindow::WaitFor(Id());
};

void ChooseNewPages(const std::wstring& program, TTable& table) {
    for (const std::wstring& item : TReady(program).Items())
        table[item].First.push_back(TReady(program).Choose(item));
}

/// The answer is the peak of the program's memory in MB.
double ChooseCreatedPages(const std::wstring& program, TTable& table) {
    const TReady own(program);
    WaitSettled(own.Main());
    for (auto TShowings::*showing : {&TShowings::FirstCreated, &TShowings::Second}) {
        for (const std::wstring& item : own.Items()) (table[item].*showing).push_back(own.Choose(item));
    }
    return own.PeakMegabytes();
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
            ChooseTabs(tabs);
            ChooseNewPages(arguments[1], pages);
            ownMemory.push_back(ChooseCreatedPages(arguments[1], pages));
            notepadMemory.push_back(TStarted(L"notepad.exe", L"Notepad").PeakMegabytes());
        }
    } catch (const TAutomationError& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    const double first = MedianOf(tabs, &TShowings::First);
    const double second = MedianOf(tabs, &TShowings::Second);
    std::printf("medians of %d runs, in ms and beside a tab of winecfg\n", runs);
    std::printf("%-32s first %5.1f       second %5.1f\n", "a tab of winecfg", first, second);
    for (const auto& [name, times] : pages)
        std::printf("%-32s first %5.1f %4.2f  second %5.1f %4.2f  first, created %5.1f %4.2f\n",
                    Utf8(name).c_str(), Median(times.First), Median(times.First) / first,
                    Median(times.Second), Median(times.Second) / second, Median(times.FirstCreated),
                    Median(times.FirstCreated) / first);
    std::printf("peak memory      notepad %7.1f MB   Quilltune %7.1f MB   ratio %6.2f\n",
                Median(notepadMemory), Median(ownMemory), Median(ownMemory) / Median(notepadMemory));
    return 0;
}
