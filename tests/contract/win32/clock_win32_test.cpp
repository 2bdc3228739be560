#include <windows.h>

#include <chrono>

#include "tests/contract/subject.h"

namespace {

using TClockWin32 = TContractTest;

TEST_F(TClockWin32, HandlesWaitingMessagesAndKeepsTheEnd) {
    const HWND window =
        CreateWindowExW(0, L"EDIT", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    // Time passes before each of them.
    const auto process = [this] {
        Sleep(20);
        System().Clock.ProcessMessages();
    };
    PostMessageW(window, WM_CHAR, L'x', 0);
    process();
    EXPECT_EQ(GetWindowTextLengthW(window), 1);

    PostQuitMessage(7);
    process();
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7U);
    DestroyWindow(window);
}

TEST_F(TClockWin32, CostsAFractionOfALookAtTheMessages) {
    const auto time = [](const auto& action) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < 1'000; ++i) action();
        return std::chrono::steady_clock::now() - start;
    };
    MSG message;
    const auto looks = time([&] { PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); });
    EXPECT_LT(time([this] { System().Clock.ProcessMessages(); }) * 4, looks);
}

}  // namespace
