#include "console/win32/console_win32.h"

#include <algorithm>

#include "platform/unicode.h"

TWin32Console::TStream::TStream(DWORD standard) : FHandle(GetStdHandle(standard)) {
    DWORD mode = 0;
    FIsConsole = GetConsoleMode(FHandle, &mode) != FALSE;
}

void TWin32Console::TStream::Write(std::wstring_view line) const {
    if (FIsConsole) return WriteCharacters(std::wstring(line) + L"\r\n");
    const std::string bytes = ToUtf8(line) + '\n';
    DWORD written = 0;
    WriteFile(FHandle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

void TWin32Console::TStream::WriteCharacters(const std::wstring& text) const {
    // Old consoles take no more at once.
    constexpr std::size_t kMostCharacters = 8192;
    DWORD written = 0;
    for (std::size_t i = 0; i < text.size(); i += written) {
        const std::size_t count = std::min(text.size() - i, kMostCharacters);
        if (!WriteConsoleW(FHandle, text.data() + i, static_cast<DWORD>(count), &written, nullptr) ||
            written == 0)
            return;
    }
}
