// What other programs' windows hear of a broadcast.
#include "platform/win32/shell_win32.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

std::wstring HeardArea;

LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTINGCHANGE && wParam == 0 && lParam != 0)
        HeardArea = reinterpret_cast<const wchar_t*>(lParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

/// A top-level window of a thread of its own, which handles its messages or hangs.
class TOtherProgram {
  public:
    explicit TOtherProgram(bool hangs) : FHangs(hangs) {
        FThread = CreateThread(nullptr, 0, Run, this, 0, nullptr);
        WaitForSingleObject(FReady, INFINITE);
    }
    ~TOtherProgram() {
        SetEvent(FEnd);
        WaitForSingleObject(FThread, INFINITE);
        for (const HANDLE handle : {FReady, FEnd, FThread}) CloseHandle(handle);
    }
    TOtherProgram(const TOtherProgram&) = delete;
    TOtherProgram& operator=(const TOtherProgram&) = delete;

  private:
    static DWORD WINAPI Run(void* self) {
        const auto& program = *static_cast<const TOtherProgram*>(self);
        const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPED, 0, 0, 9, 9, nullptr, nullptr,
                                            GetModuleHandleW(nullptr), nullptr);
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Listen));
        SetEvent(program.FReady);
        while (MsgWaitForMultipleObjects(1, &program.FEnd, FALSE, INFINITE,
                                         program.FHangs ? 0 : QS_ALLINPUT) != WAIT_OBJECT_0) {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        }
        DestroyWindow(window);
        return 0;
    }

    bool FHangs;
    HANDLE FReady = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE FEnd = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE FThread = nullptr;
};

TEST(TWin32Shell, ABroadcastReachesEveryWindowAndDoesNotWaitForAHungOne) {
    const TOtherProgram hung(true);
    const TOtherProgram listener(false);
    const TOtherProgram alsoHung(true);
    const DWORD before = GetTickCount();
    TWin32Shell().BroadcastSettingChange(L"TraySettings");
    EXPECT_EQ(HeardArea, L"TraySettings");
    EXPECT_LT(GetTickCount() - before, 3'000U);
}

TEST(TWin32Shell, OpensNothingThatIsNoFolder) {
    wchar_t file[MAX_PATH]{};
    GetModuleFileNameW(nullptr, file, MAX_PATH);
    const std::wstring program = file;
    const DWORD before = GetTickCount();
    TWin32Shell shell;
    // The last is what Windows would take for the program.
    for (const std::wstring& path : {std::wstring(), std::wstring(L"C:\\no such folder"), program,
                                     program.substr(0, program.size() - 4)})
        EXPECT_FALSE(shell.OpenFolder(path));
    EXPECT_LT(GetTickCount() - before, 2000U) << "nobody is asked";
}

}  // namespace
