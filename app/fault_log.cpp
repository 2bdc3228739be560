#include "app/fault_log.h"

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <typeinfo>

#include "platform/app_frame.h"
#include "platform/file_version.h"
#include "platform/text.h"
#include "platform/unicode.h"
#include "platform/windows_version.h"

namespace {

using TBytes = std::vector<std::uint8_t>;

constexpr std::wstring_view kLineEnd = L"\r\n";
constexpr int kFileVersion = 3;  // for GetFileVersionField

std::wstring FromUtf8(std::string_view text, const TWindowsInfo& windows) {
    TBytes bytes{0xEF, 0xBB, 0xBF};  // the mark tells the decoder what follows
    bytes.insert(bytes.end(), text.begin(), text.end());
    return DecodeText(bytes, windows);
}

/// The name of a class as it stands in the source.
std::string ClassName(const std::type_info& type) {
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
    return name ? name.get() : type.name();
}

/// What a fault says must not break its block.
std::wstring OneLine(std::wstring_view text) {
    std::wstring line(text);
    std::ranges::replace_if(
        line, [](wchar_t c) { return c < L' '; }, L' ');
    return line;
}

bool StartsWith(const TBytes& bytes, std::initializer_list<std::uint8_t> mark) {
    return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

/// `highByte` is the place of the high byte in a unit, 0 or 1.
void AppendUtf16(TBytes& bytes, std::wstring_view text, std::size_t highByte) {
    for (const char16_t unit : ToUtf16(text)) {
        const std::uint8_t halves[] = {static_cast<std::uint8_t>(unit & 0xFF),
                                       static_cast<std::uint8_t>(unit >> 8)};
        bytes.push_back(halves[1 - highByte]);
        bytes.push_back(halves[highByte]);
    }
}

void AppendText(TBytes& bytes, std::wstring_view text) {
    if (StartsWith(bytes, {0xFF, 0xFE})) return AppendUtf16(bytes, text, 1);
    if (StartsWith(bytes, {0xFE, 0xFF})) return AppendUtf16(bytes, text, 0);
    const std::string utf8 = ToUtf8(text);
    bytes.insert(bytes.end(), utf8.begin(), utf8.end());
}

}  // namespace

void TFaultLog::Add(const std::exception_ptr& fault) noexcept {
    try {
        std::rethrow_exception(fault);
    } catch (const std::exception& exception) {
        try {
            Add(FromUtf8(ClassName(typeid(exception)), FSystem.Windows),
                FromUtf8(exception.what(), FSystem.Windows));
        } catch (...) {
            return;  // no memory to describe it
        }
    } catch (...) {
        Add(L"unknown", {});
    }
}

void TFaultLog::Add(std::wstring_view type, std::wstring_view message) noexcept {
    if (FWriting) return;
    FWriting = true;
    try {
        Append(Block(type, message));
    } catch (...) {
        // There is nobody left to tell.
    }
    FWriting = false;
}

std::wstring TFaultLog::Block(std::wstring_view type, std::wstring_view message) const {
    const std::wstring program = FSystem.Windows.ProgramFile();
    std::wstring osName;
    GetOSName(FSystem, osName);
    const std::wstring lines[] = {
        FSystem.Clock.DateTimeText(),
        L"Application=" + program,
        L"Version=" + GetFileVersionField(FSystem, program, kFileVersion),
        L"OS Info=" + osName,
        FSystem.Windows.IsWow64() ? L"64bit=Yes" : L"64bit=No",
        L"Exception Type=" + std::wstring(type),
        L"Error Message=" + OneLine(message),
        {},
    };
    std::wstring block;
    for (const std::wstring& line : lines) block.append(line).append(kLineEnd);
    return block;
}

void TFaultLog::Append(std::wstring_view block) const {
    const std::wstring path = ProgramFolder(FSystem) + L"Error_Log.txt";
    std::optional<TBytes> bytes = FSystem.Files.Read(path);
    if (!bytes) {
        if (FSystem.Files.Exists(path)) return;  // it holds faults that must not be lost
        bytes.emplace();
    }
    const std::wstring text = DecodeText(*bytes, FSystem.Windows);
    if (!text.empty() && text.back() != L'\n' && text.back() != L'\r') AppendText(*bytes, kLineEnd);
    AppendText(*bytes, block);
    (void)FSystem.Files.Replace(path, *bytes);
}
