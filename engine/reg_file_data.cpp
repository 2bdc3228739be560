#include "engine/reg_file_data.h"

#include <algorithm>

namespace {

// The REG_… types, as documented.
constexpr std::uint32_t kRegString = 1;
constexpr std::uint32_t kRegExpandString = 2;
constexpr std::uint32_t kRegBinary = 3;
constexpr std::uint32_t kRegDword = 4;
constexpr std::uint32_t kRegMultiString = 7;

std::optional<TRegFileData> TakeDword(TRegFileText& text) {
    text.SkipBlanks();
    const std::size_t length = text.Rest().size();
    const auto number = text.TakeHex();
    constexpr std::size_t kMostDigits = 8;
    if (!number || length - text.Rest().size() > kMostDigits || !text.TakeEnd()) return std::nullopt;
    return TRegFileData{*RawValueOf({TRegDataType::Dword, static_cast<std::int32_t>(*number)})};
}

std::optional<TRegFileData> TakeTypedBytes(TRegFileText& text, std::uint32_t type, bool overLines) {
    TRegFileData data{.Value = {.Type = type, .Bytes = {}}, .IsBytes = true};
    if (!text.TakeBytes(data.Value.Bytes, overLines) || !text.TakeEnd()) return std::nullopt;
    return data;
}

/// The text of a value that is one and nothing else.
std::optional<std::wstring> PlainText(const TRawValue& value) {
    if (value.Type != kRegString || value.Bytes.empty() || value.Bytes.size() % 2 != 0) return std::nullopt;
    std::wstring text = FromUtf16Bytes(value.Bytes);
    if (text.find_first_of(std::wstring_view(L"\0\r\n", 3)) != text.size() - 1 || text.back() != L'\0')
        return std::nullopt;
    text.pop_back();
    return text;
}

void AppendLinesOfBytes(std::wstring& line, std::size_t begin, const TBytes& bytes, std::size_t width) {
    constexpr std::wstring_view kBreak = L"\\\r\n";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        AppendHex(line, bytes[i], 2);
        if (i + 1 == bytes.size()) return;
        line += L',';
        if (width == 0 || line.size() - begin < width) continue;
        line += kBreak;
        begin = line.size();
        line += L"  ";
    }
}

}  // namespace

std::optional<TRegFileData> TakeRegData(TRegFileText& text, TRegFileText::TQuotes place) {
    const bool overLines = place == TRegFileText::TQuotes::Value;
    if (text.Rest().starts_with(L'"')) {
        std::wstring string;
        if (!text.TakeQuoted(string, place) || !text.TakeEnd()) return std::nullopt;
        return TRegFileData{*RawValueOf({TRegDataType::String, std::move(string)})};
    }
    if (text.Take(L"dword:")) return TakeDword(text);
    if (text.Take(L"hex:")) return TakeTypedBytes(text, kRegBinary, overLines);
    if (!text.Take(L"hex(")) return std::nullopt;
    const auto type = text.TakeHex();
    if (!type || !text.Take(L"):")) return std::nullopt;
    return TakeTypedBytes(text, *type, overLines);
}

bool IsTextType(std::uint32_t type) {
    return type == kRegString || type == kRegExpandString || type == kRegMultiString;
}

bool LacksEnd(const TRawValue& value) {
    const TBytes& bytes = value.Bytes;
    return IsTextType(value.Type) && !bytes.empty() && bytes.size() % 2 == 0 &&
           (bytes.back() != 0 || bytes[bytes.size() - 2] != 0);
}

void AppendRegData(std::wstring& line, const TRawValue& value, std::size_t width) {
    const std::size_t begin = line.rfind(L'\n') + 1;
    if (const auto text = PlainText(value)) return AppendQuoted(line, *text);
    if (value.Type == kRegDword && value.Bytes.size() == sizeof(std::uint32_t)) {
        line += L"dword:";
        for (std::size_t i = value.Bytes.size(); i-- > 0;) AppendHex(line, value.Bytes[i], 2);
        return;
    }
    line += L"hex";
    if (value.Type != kRegBinary) {
        line += L'(';
        int digits = 1;
        while (digits < 8 && value.Type >> (4 * digits) != 0) ++digits;
        AppendHex(line, value.Type, digits);
        line += L')';
    }
    line += L':';
    AppendLinesOfBytes(line, begin, value.Bytes, width);
}
