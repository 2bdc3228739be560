#include <windows.h>

#include "tests/contract/subject.h"

namespace {

using TClockWin32 = TContractTest;

TEST_F(TClockWin32, HandlesWaitingMessagesAndKeepsTheEnd) {
    const HWND window =
        CreateWindowExW(0, L"EDIT", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    PostMessageW(window, WM_CHAR, L'x', 0);
    System().Clock.ProcessMessages();
    EXPECT_EQ(GetWindowTextLengthW(window), 1);

    PostQuitMessage(7);
    System().Clock.ProcessMessages();
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7U);
    DestroyWindow(window);
}

}  // namespace
