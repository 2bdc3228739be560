// What anybody may send to the main window.
#include "app/win32/file_argument.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

TEST(TFileRequestsTest, OpensWhatIsAPathOnceTheSenderIsDone) {
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    TFileRequests requests;
    std::vector<std::wstring> opened;
    requests.OpenFile = [&](const std::wstring& path) { opened.push_back(path); };
    const auto send = [&](ULONG_PTR number, const std::wstring& text, DWORD size) {
        COPYDATASTRUCT data{number, size, size == 0 ? nullptr : const_cast<wchar_t*>(text.data())};
        EXPECT_TRUE(requests.HandleMessage(window, WM_COPYDATA, reinterpret_cast<LPARAM>(&data)));
        EXPECT_TRUE(opened.empty());
        MSG message;
        while (PeekMessageW(&message, window, WM_USER, 0xFFFF, PM_REMOVE))
            EXPECT_TRUE(requests.HandleMessage(window, message.message, message.lParam));
        return std::exchange(opened, {});
    };
    const auto bytes = [](const std::wstring& text) {
        return static_cast<DWORD>(text.size() * sizeof(wchar_t));
    };
    constexpr ULONG_PTR kNumber = 0x51544631;
    const std::wstring path = L"C:\\a \u03C0.reg";
    const std::wstring longest(32767, L'x');
    for (const std::wstring& good : {path, longest}) {
        EXPECT_EQ(send(kNumber, good, bytes(good)), std::vector{good});
        EXPECT_EQ(send(kNumber, good, bytes(good) + 2), std::vector{good}) << "with its NUL";
        EXPECT_TRUE(send(kNumber + 1, good, bytes(good)).empty());
        EXPECT_TRUE(send(kNumber, good, bytes(good) - 1).empty());
    }
    for (const std::wstring& bad :
         {std::wstring(), std::wstring(1, L'\0'), path + std::wstring(2, L'\0'), L'\0' + path,
          std::wstring(L"a\0b", 3), longest + L'x', longest + longest})
        EXPECT_TRUE(send(kNumber, bad, bytes(bad)).empty()) << bad.size();
    EXPECT_FALSE(requests.HandleMessage(window, WM_USER, 0));
    EnableWindow(window, FALSE);
    EXPECT_TRUE(send(kNumber, path, bytes(path)).empty()) << "it waits for a dialog";
    DestroyWindow(window);
}

}  // namespace
