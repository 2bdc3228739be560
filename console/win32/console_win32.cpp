#include "console/win32/console_win32.h"

#include <algorithm>

#include "platform/unicode.h"

void TWin32Console::Write(HANDLE stream, std::wstring_view line) {
    DWORD mode = 0;
    DWORD written = 0;
    if (!GetConsoleMode(stream, &mode)) {
        const std::string bytes = ToUtf8(line) + '\n';
        WriteFile(stream, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        return;
    }
    std::wstring text = std::wstring(line) + L"\r\n";
    // Old consoles take no more at once.
    constexpr std::size_t kMostCharacters = 8192;
    for (std::size_t i = 0; i < text.size(); i += written) {
        const std::size_t count = std::min(text.size() - i, kMostCharacters);
        if (!WriteConsoleW(stream, text.data() + i, static_cast<DWORD>(count), &written, nullptr) ||
            written == 0)
            return;
    }
}
