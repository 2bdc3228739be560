#include "engine/reg_file_text.h"

#include <algorithm>

namespace {

constexpr std::wstring_view kDigits = L"0123456789abcdef";

bool IsRegBlank(wchar_t c) { return c == L' ' || c == L'\t'; }

/// Nothing for what is no hexadecimal digit.
std::optional<std::uint32_t> DigitOf(wchar_t c) {
    if (c >= L'0' && c <= L'9') return static_cast<std::uint32_t>(c - L'0');
    if (c >= L'a' && c <= L'f') return static_cast<std::uint32_t>(c - L'a' + 10);
    if (c >= L'A' && c <= L'F') return static_cast<std::uint32_t>(c - L'A' + 10);
    return std::nullopt;
}

/// The character that a backslash and `c` stand for. Registry editors take the backslash off all that they do not know.
wchar_t Unescaped(wchar_t c) {
    switch (c) {
        case L'n':
            return L'\n';
        case L'r':
            return L'\r';
        case L'0':
            return L'\0';
        default:
            return c;
    }
}

}  // namespace

bool TRegFileText::NextLine() {
    if (FNext == FText.size()) return false;
    FEnd = FNext;
    while (FEnd < FText.size() && FText[FEnd] != L'\r' && FText[FEnd] != L'\n') ++FEnd;
    FRest = FText.substr(FNext, FEnd - FNext);
    const std::wstring_view tail = FText.substr(FEnd);
    FNext = FEnd + (tail.empty() ? 0 : tail.starts_with(L"\r\n") ? 2 : 1);
    ++FNumber;
    return true;
}

void TRegFileText::SkipBlanks() {
    while (!FRest.empty() && IsRegBlank(FRest.front())) FRest.remove_prefix(1);
}

bool TRegFileText::TakeEnd() {
    SkipBlanks();
    if (!FRest.empty() && FRest.front() != L';') return false;
    FRest = {};
    return true;
}

bool TRegFileText::Take(std::wstring_view part) {
    if (!FRest.starts_with(part)) return false;
    FRest.remove_prefix(part.size());
    return true;
}

bool TRegFileText::TakeWord(std::wstring_view word) {
    SkipBlanks();
    if (!FRest.starts_with(word)) return false;
    if (FRest.size() > word.size() && !IsRegBlank(FRest[word.size()])) return false;
    FRest.remove_prefix(word.size());
    SkipBlanks();
    return true;
}

bool TRegFileText::TakeQuoted(std::wstring& text, TQuotes place) {
    if (!Take(L"\"")) return false;
    text.clear();
    for (;;) {
        for (std::size_t i = 0; i < FRest.size(); ++i) {
            wchar_t c = FRest[i];
            if (c == L'"') {
                FRest.remove_prefix(i + 1);
                return true;
            }
            if (c == L'\\') {
                if (++i == FRest.size()) return false;
                c = Unescaped(FRest[i]);
            }
            if (c == L'\0' && place == TQuotes::Value) return false;
            text.push_back(c);
        }
        if (place == TQuotes::Note) return false;
        text += FText.substr(FEnd, FNext - FEnd);
        if (!NextLine()) return false;
    }
}

std::optional<std::uint32_t> TRegFileText::TakeHex() {
    std::uint64_t number = 0;
    std::size_t count = 0;
    for (; count < FRest.size() && DigitOf(FRest[count]); ++count) {
        number = number << 4 | *DigitOf(FRest[count]);
        if (number > 0xFFFFFFFF) return std::nullopt;
    }
    if (count == 0) return std::nullopt;
    FRest.remove_prefix(count);
    return static_cast<std::uint32_t>(number);
}

bool TRegFileText::TakeByte(TBytes& bytes) {
    if (FRest.size() > 2 && FRest[0] == L'0' && (FRest[1] == L'x' || FRest[1] == L'X') && DigitOf(FRest[2]))
        FRest.remove_prefix(2);
    const auto byte = TakeHex();
    if (!byte || *byte > 0xFF) return false;
    bytes.push_back(static_cast<std::uint8_t>(*byte));
    return true;
}

/// Comments and empty lines may come between the two. At the end of the file the bytes end, too.
bool TRegFileText::GoOnInAnotherLine() {
    if (!TakeEnd()) return false;
    while (NextLine()) {
        SkipBlanks();
        if (FRest.starts_with(kRegNote)) return false;
        if (!TakeEnd()) return DigitOf(FRest.front()).has_value();
    }
    return true;
}

bool TRegFileText::TakeBytes(TBytes& bytes, bool overLines) {
    while (!FRest.empty()) {
        SkipBlanks();
        if (FRest.empty() || FRest.front() == L';') return true;
        if (Take(L"\\")) {
            if (!overLines || !GoOnInAnotherLine()) return false;
            continue;
        }
        if (!TakeByte(bytes)) return false;
        if (!Take(L",")) return true;
    }
    return true;
}

void AppendQuoted(std::wstring& line, std::wstring_view text) {
    line += L'"';
    for (const wchar_t c : text) {
        const bool isPlain = c != L'"' && c != L'\\' && c != L'\r' && c != L'\n' && c != L'\0';
        if (!isPlain) line += L'\\';
        line += c == L'\r' ? L'r' : c == L'\n' ? L'n' : c == L'\0' ? L'0' : c;
    }
    line += L'"';
}

void AppendHex(std::wstring& line, std::uint32_t number, int digits) {
    while (digits-- > 0) line += kDigits[number >> (4 * digits) & 0xF];
}

void AppendBytes(std::wstring& line, std::span<const std::uint8_t> bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0) line += L',';
        AppendHex(line, bytes[i], 2);
    }
}

TBytes Utf16Bytes(std::wstring_view text) {
    TBytes bytes = RawValueOf({TRegDataType::String, std::wstring(text)})->Bytes;
    bytes.resize(bytes.size() - 2);  // its NUL
    return bytes;
}

std::wstring FromUtf16Bytes(std::span<const std::uint8_t> bytes, bool highFirst) {
    std::wstring text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const std::uint32_t low = bytes[highFirst ? i + 1 : i];
        const std::uint32_t unit = low | static_cast<std::uint32_t>(bytes[highFirst ? i : i + 1]) << 8;
        if constexpr (sizeof(wchar_t) > 2) {
            const auto last = static_cast<char32_t>(text.empty() ? L'\0' : text.back());
            if (last >= 0xD800 && last <= 0xDBFF && unit >= 0xDC00 && unit <= 0xDFFF) {
                text.back() = static_cast<wchar_t>(0x10000 + ((last - 0xD800) << 10) + (unit - 0xDC00));
                continue;
            }
        }
        text.push_back(static_cast<wchar_t>(unit));
    }
    return text;
}
