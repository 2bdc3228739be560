#include "app/win32/file_argument.h"

#include <shellapi.h>

#include <utility>

namespace {

constexpr UINT kOpenMessage = WM_USER + 157;       // posted to itself
constexpr ULONG_PTR kFileHandedOver = 0x51544631;  // of nobody else, it is hoped
constexpr DWORD kLongestArgument = 32767;

/// In milliseconds, for a window that does not answer.
constexpr UINT kAnswerTime = 3000;

/// The path in what was sent, with or without a NUL at its end; empty when it is none.
std::wstring SentPath(const COPYDATASTRUCT& sent) {
    if (sent.dwData != kFileHandedOver || sent.lpData == nullptr || sent.cbData % sizeof(wchar_t) != 0 ||
        sent.cbData > (kLongestArgument + 1) * sizeof(wchar_t))
        return {};
    std::wstring path(static_cast<const wchar_t*>(sent.lpData), sent.cbData / sizeof(wchar_t));
    if (path.ends_with(L'\0')) path.pop_back();
    return path.size() > kLongestArgument || path.find(L'\0') != std::wstring::npos ? std::wstring() : path;
}

}  // namespace

std::wstring FileArgument() {
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr) return {};
    std::wstring path(kLongestArgument + 1, L'\0');
    const DWORD length =
        count < 2 ? 0 : GetFullPathNameW(arguments[1], kLongestArgument + 1, path.data(), nullptr);
    path.resize(length > kLongestArgument ? 0 : length);
    LocalFree(arguments);
    return path;
}

void HandOverFile(HWND window, const std::wstring& path) {
    COPYDATASTRUCT data{.dwData = kFileHandedOver,
                        .cbData = static_cast<DWORD>(path.size() * sizeof(wchar_t)),
                        .lpData = const_cast<wchar_t*>(path.data())};
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_ABORTIFHUNG,
                        kAnswerTime, &answer);
}

void TFileRequests::Add(HWND window, std::wstring path) {
    FPath = std::move(path);
    PostMessageW(window, kOpenMessage, 0, 0);
}

bool TFileRequests::HandleMessage(HWND window, UINT message, LPARAM lParam) {
    if (message == WM_COPYDATA) {
        if (lParam == 0) return true;
        if (std::wstring path = SentPath(*reinterpret_cast<const COPYDATASTRUCT*>(lParam)); !path.empty())
            Add(window, std::move(path));
        return true;
    }
    if (message != kOpenMessage) return false;
    const std::wstring path = std::exchange(FPath, {});
    if (!path.empty() && IsWindowEnabled(window)) OpenFile(path);
    return true;
}
