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
