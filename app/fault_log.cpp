#include "app/fault_log.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <span>
#include <typeinfo>

#include "platform/app_frame.h"
#include "platform/file_version.h"
#include "platform/text.h"
#include "platform/unicode.h"
#include "platform/windows_version.h"

namespace {

using TBytes = std::vector<std::uint8_t>;

constexpr std::wstring_view kLineEnd = L"\r\n";
constexpr std::size_t kSample = 0x100000;  // bytes at the end of a log that tell how it is written
constexpr std::uint8_t kUtf8Mark[] = {0xEF, 0xBB, 0xBF};
constexpr std::uint8_t kUtf16Mark[] = {0xFF, 0xFE};
constexpr std::uint8_t kUtf16BigEndianMark[] = {0xFE, 0xFF};
constexpr int kFileVersion = 3;  // for GetFileVersionField

std::wstring FromUtf8(std::string_view text, const TWindowsInfo& windows) {
    TBytes bytes(std::begin(kUtf8Mark), std::end(kUtf8Mark));  // it tells the decoder what follows
    bytes.insert(bytes.end(), text.begin(), text.end());
    return DecodeText(bytes, windows);
}

/// The name of a class as it stands in the source: the compiler writes it as "St" for std and each part after its length,
/// between N and E when there are several. What is written otherwise stays as it is; the C++ library could read all of it,
/// but with printf's help it is 60 KB of program.
std::string ClassName(const std::type_info& type) {
    std::string_view rest = type.name();
    if (rest.starts_with('N') && rest.ends_with('E')) rest = rest.substr(1, rest.size() - 2);
    std::string name;
    if (rest.starts_with("St")) {
        name = "std";
        rest.remove_prefix(2);
    }
    while (!rest.empty()) {
        const char* const end = rest.data() + rest.size();
        std::size_t length = 0;
        const auto [part, fault] = std::from_chars(rest.data(), end, length);
        if (fault != std::errc() || length > static_cast<std::size_t>(end - part)) return type.name();
        if (!name.empty()) name += "::";
        const std::string_view word(part, length);
        name += word.starts_with("_GLOBAL__N") ? "(anonymous namespace)" : word;
        rest = {part + length, end};
    }
    return name;
}

/// What a fault says must not break its block.
std::wstring OneLine(std::wstring_view text) {
    std::wstring line(text);
    std::ranges::replace_if(
        line, [](wchar_t c) { return c < L' '; }, L' ');
    return line;
}

bool StartsWith(const TBytes& bytes, std::span<const std::uint8_t> mark) {
    return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

/// `highByte` is the place of the high byte in a unit, 0 or 1.
TBytes Utf16(std::wstring_view text, std::size_t highByte) {
    TBytes bytes;
    for (const char16_t unit : ToUtf16(text)) {
        const std::uint8_t halves[] = {static_cast<std::uint8_t>(unit & 0xFF),
                                       static_cast<std::uint8_t>(unit >> 8)};
        bytes.push_back(halves[1 - highByte]);
        bytes.push_back(halves[highByte]);
    }
    return bytes;
}

/// The end of the last line of a text that has one; CR LF when none has.
std::wstring_view LastLineEnd(std::wstring_view text) {
    const std::size_t last = text.find_last_of(kLineEnd);
    if (last == std::wstring_view::npos) return kLineEnd;
    return text.substr(0, last + 1).ends_with(kLineEnd) ? kLineEnd : text.substr(last, 1);
}

/// The lines as they follow a text; its bytes may lack all between its byte-order mark and its end.
TBytes Continuation(const TBytes& text, const std::vector<std::wstring>& lines, const TWindowsInfo& windows) {
    const TDecodedText before = DecodeUtf8OrAnsi(text, windows);
    const std::wstring_view lineEnd = LastLineEnd(before.Text);
    const bool endsLine = before.Text.empty() || kLineEnd.find(before.Text.back()) != std::wstring_view::npos;
    std::wstring added(endsLine ? std::wstring_view() : lineEnd);
    for (const std::wstring& line : lines) added.append(line).append(lineEnd);
    if (StartsWith(text, kUtf16Mark)) return Utf16(added, 1);
    if (StartsWith(text, kUtf16BigEndianMark)) return Utf16(added, 0);
    return EncodeText(added, before.Encoding, windows);
}

/// A file's bytes; of a long one, its byte-order mark and whole characters at its end.
std::optional<TBytes> ReadSample(const TFiles& files, const std::wstring& path, std::uint64_t size) {
    if (size <= kSample) return files.ReadPart(path, 0, kSample);
    std::optional<TBytes> text = files.ReadPart(path, 0, std::size(kUtf8Mark));
    const std::uint64_t start = (size - kSample) / 2 * 2;  // a multiple of a UTF-16 unit
    const std::optional<TBytes> end = files.ReadPart(path, start, kSample + 1);
    if (!text || !end) return std::nullopt;
    if (StartsWith(*text, kUtf16Mark) || StartsWith(*text, kUtf16BigEndianMark)) {
        text->resize(std::size(kUtf16Mark));
        text->insert(text->end(), end->begin(), end->end());
        return text;
    }
    if (!StartsWith(*text, kUtf8Mark)) text->clear();
    const auto isInner = [](std::uint8_t byte) { return (byte & 0xC0) == 0x80; };  // of a character in UTF-8
    text->insert(text->end(), std::ranges::find_if_not(*end, isInner), end->end());
    return text;
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
        Append(LinesOf(type, message));
    } catch (...) {
        // There is nobody left to tell.
    }
    FWriting = false;
}

std::vector<std::wstring> TFaultLog::LinesOf(std::wstring_view type, std::wstring_view message) const {
    const std::wstring program = FSystem.Windows.ProgramFile();
    std::wstring osName;
    GetOSName(FSystem, osName);
    return {
        FSystem.Clock.DateTimeText(),
        L"Application=" + program,
        L"Version=" + GetFileVersionField(FSystem, program, kFileVersion),
        L"OS Info=" + osName,
        FSystem.Windows.IsWow64() ? L"64bit=Yes" : L"64bit=No",
        L"Exception Type=" + std::wstring(type),
        L"Error Message=" + OneLine(message),
        {},
    };
}

void TFaultLog::Append(const std::vector<std::wstring>& block) const {
    const std::wstring path = ProgramFolder(FSystem) + L"Error_Log.txt";
    TFiles& files = FSystem.Files;
    const std::uint64_t size = files.Size(path).value_or(0);
    const auto text =
        size > 0 ? ReadSample(files, path, size) : TBytes(std::begin(kUtf8Mark), std::end(kUtf8Mark));
    if (!text) return;
    TBytes bytes = Continuation(*text, block, FSystem.Windows);
    if (size == 0) bytes.insert(bytes.begin(), text->begin(), text->end());
    (void)files.Append(path, bytes);
}
