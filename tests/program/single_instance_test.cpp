// A first instance that does not answer, played by the test itself.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

class TSingleInstance : public TProgramTest {
  protected:
    TSingleInstance() : FMutex(CreateMutexW(nullptr, TRUE, L"_Vandrel_Quilltune_")) {}
    ~TSingleInstance() override { CloseHandle(FMutex); }

    /// How long a second instance takes to end, in milliseconds.
    static DWORD EndOfSecond() {
        const DWORD start = GetTickCount();
        EXPECT_EQ(TProcess().ExitCode(), 0u);
        return GetTickCount() - start;
    }

  private:
    HANDLE FMutex;
};

TEST_F(TSingleInstance, ASecondOneEndsWhenTheFirstHasNoWindow) { EXPECT_LT(EndOfSecond(), 4000u); }

/// What the first instance was handed.
std::vector<std::wstring> Files;

LRESULT CALLBACK TakeFile(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_COPYDATA) return DefWindowProcW(window, message, wParam, lParam);
    const auto& sent = *reinterpret_cast<const COPYDATASTRUCT*>(lParam);
    Files.emplace_back(static_cast<const wchar_t*>(sent.lpData), sent.cbData / sizeof(wchar_t));
    return TRUE;
}

TEST_F(TSingleInstance, ASecondOneHandsItsFileOver) {
    WNDCLASSW description{};
    description.lpfnWndProc = TakeFile;
    description.lpszClassName = TMainWindow::kClass;
    ASSERT_NE(RegisterClassW(&description), 0);
    HWND window = nullptr;
    const auto second = [&](const wchar_t* arguments) {
        const TProcess process(arguments);
        MSG message;
        for (int round = 0; process.IsRunning() && round < 1000; ++round) {
            // The first window may come late.
            if (round == 50 && window == nullptr)
                window = CreateWindowW(TMainWindow::kClass, L"", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr,
                                       nullptr, nullptr, nullptr);
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
            Sleep(10);
        }
        EXPECT_EQ(process.ExitCode(), 0u);
    };
    second(L"\"some \u00FC.reg\"");
    second(L"C:\\a\\..\\b.reg second.reg");
    second(L"");
    second(L"\"\"");
    wchar_t folder[MAX_PATH]{};
    GetCurrentDirectoryW(MAX_PATH, folder);
    EXPECT_EQ(Files, (std::vector{std::wstring(folder) + L"\\some \u00FC.reg", std::wstring(L"C:\\b.reg")}));
    DestroyWindow(window);
    UnregisterClassW(TMainWindow::kClass, nullptr);
}

TEST_F(TSingleInstance, ASecondOneGivesUpWhenTheFirstHangs) {
    WNDCLASSW description{};
    description.lpfnWndProc = DefWindowProcW;
    description.lpszClassName = TMainWindow::kClass;
    ASSERT_NE(RegisterClassW(&description), 0);
    // This thread waits for the program and handles no messages meanwhile.
    const HWND window =
        CreateWindowW(TMainWindow::kClass, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_MINIMIZE, 0, 0, 100,
                      100, nullptr, nullptr, nullptr, nullptr);
    EXPECT_LT(EndOfSecond(), 9000u);
    DestroyWindow(window);
    UnregisterClassW(TMainWindow::kClass, nullptr);
}

}  // namespace
