#include "platform/win32/clock_win32.h"

#include <windows.h>

namespace {

/// Longer than any locale writes a date or a time.
constexpr int kLongestText = 256;

/// Milliseconds from one look at the message queue to the next: no user notices them, and looking costs a hundred times
/// as much as asking for the time.
constexpr DWORD kRoundInterval = 10;

}  // namespace

TLocalTime TWin32Clock::LocalTime() const {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {.Year = now.wYear,
            .Month = now.wMonth,
            .Day = now.wDay,
            .Hour = now.wHour,
            .Minute = now.wMinute,
            .Second = now.wSecond,
            .Millisecond = now.wMilliseconds};
}

std::wstring TWin32Clock::DateTimeText() const {
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t date[kLongestText]{};
    wchar_t time[kLongestText]{};
    GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, date, kLongestText);
    GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &now, nullptr, time, kLongestText);
    return std::wstring(date) + L' ' + time;
}

void TWin32Clock::Sleep(std::uint32_t milliseconds) { ::Sleep(milliseconds); }

void TWin32Clock::ProcessMessages() {
    if (GetTickCount() - FLastRound < kRoundInterval) return;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    FLastRound = GetTickCount();
}
