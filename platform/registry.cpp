#include "platform/registry.h"

#include <algorithm>

namespace {

// The REG_… types, as documented, by TRegDataType.
constexpr std::uint32_t kTypes[] = {0, 1, 2, 4, 3};

void AppendUnit(TBytes& bytes, std::uint32_t unit) {
    bytes.push_back(static_cast<std::uint8_t>(unit));
    bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
}

/// UTF-16 with its NUL. What is no character stays as it is.
TBytes BytesOf(const std::wstring& text) {
    TBytes bytes;
    for (const wchar_t c : text) {
        const auto code = static_cast<char32_t>(c);
        if (code > 0xFFFF) AppendUnit(bytes, 0xD800 + ((code - 0x10000) >> 10));
        AppendUnit(bytes, code > 0xFFFF ? 0xDC00 + ((code - 0x10000) & 0x3FF) : code);
    }
    AppendUnit(bytes, 0);
    return bytes;
}

TBytes BytesOf(std::int32_t number) {
    TBytes bytes;
    AppendUnit(bytes, static_cast<std::uint32_t>(number));
    AppendUnit(bytes, static_cast<std::uint32_t>(number) >> 16);
    return bytes;
}

/// Anybody may have stored text without its NUL, or half a character at its end.
std::wstring TextOf(const TBytes& bytes) {
    std::wstring text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto unit = static_cast<wchar_t>(bytes[i] | bytes[i + 1] << 8);
        if (unit == 0) break;
        const bool endsPair = sizeof(wchar_t) > 2 && (unit & 0xFC00) == 0xDC00 && !text.empty() &&
                              (text.back() & ~0x3FF) == 0xD800;
        if (endsPair)
            text.back() = static_cast<wchar_t>(0x10000 + ((text.back() & 0x3FF) << 10) + (unit & 0x3FF));
        else
            text += unit;
    }
    return text;
}

std::int32_t NumberOf(const TBytes& bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < sizeof number; ++i) number |= std::uint32_t{bytes[i]} << 8 * i;
    return static_cast<std::int32_t>(number);
}

}  // namespace

std::wstring_view TrimmedKey(std::wstring_view key) {
    const std::size_t first = key.find_first_not_of(L'\\');
    if (first == std::wstring_view::npos) return {};
    return key.substr(first, key.find_last_not_of(L'\\') - first + 1);
}

std::optional<TRawValue> RawValueOf(const TRegistryData& data) {
    const std::uint32_t type = kTypes[static_cast<std::size_t>(data.Type)];
    const auto* text = std::get_if<std::wstring>(&data.Value);
    const auto* number = std::get_if<std::int32_t>(&data.Value);
    const auto* bytes = std::get_if<TBytes>(&data.Value);
    switch (data.Type) {
        case TRegDataType::String:
        case TRegDataType::ExpandString:
            if (text != nullptr) return TRawValue{type, BytesOf(*text)};
            break;
        case TRegDataType::Dword:
            if (number != nullptr) return TRawValue{type, BytesOf(*number)};
            break;
        case TRegDataType::Binary:
            if (bytes != nullptr) return TRawValue{type, *bytes};
            break;
        case TRegDataType::Unknown:
            break;
    }
    return std::nullopt;
}

TRegistryData DataOf(TRawValue value) {
    const auto type =
        static_cast<TRegDataType>(std::ranges::find(kTypes, value.Type) - std::ranges::begin(kTypes));
    switch (type) {
        case TRegDataType::String:
        case TRegDataType::ExpandString:
            return {type, TextOf(value.Bytes)};
        case TRegDataType::Dword:
            if (value.Bytes.size() == sizeof(std::int32_t)) return {type, NumberOf(value.Bytes)};
            break;
        case TRegDataType::Binary:
            return {type, std::move(value.Bytes)};
        default:
            break;
    }
    return {};
}
