#include "engine/reg_value.h"

#include "base/decimal.h"
#include "platform/text.h"

std::optional<std::int32_t> AsInteger(const TRegValue& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
    if (const auto* text = std::get_if<std::wstring>(&value)) return ParseInteger(Trim(*text));
    if (const auto* bytes = std::get_if<TBytes>(&value)) {
        if (bytes->empty() || bytes->size() > sizeof(std::int32_t)) return std::nullopt;
        std::uint32_t number = 0;
        for (std::size_t i = bytes->size(); i-- > 0;) number = number << 8 | (*bytes)[i];
        return static_cast<std::int32_t>(number);
    }
    return std::nullopt;
}

std::optional<std::uint32_t> AsBits(const TRegValue& value) {
    if (const auto* text = std::get_if<std::wstring>(&value)) return ParseBits(Trim(*text));
    if (const auto number = AsInteger(value)) return static_cast<std::uint32_t>(*number);
    return std::nullopt;
}

std::wstring AsText(const TRegValue& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) return DecimalText(*number);
    if (const auto* text = std::get_if<std::wstring>(&value)) return *text;
    if (const auto* bytes = std::get_if<TBytes>(&value)) return {bytes->begin(), bytes->end()};
    return {};
}

TBytes AsBytes(const TRegValue& value) {
    TBytes bytes;
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint32_t>(*number) >> shift));
    } else if (const auto* text = std::get_if<std::wstring>(&value)) {
        for (const wchar_t c : *text) bytes.push_back(static_cast<std::uint8_t>(c));
    } else if (const auto* stored = std::get_if<TBytes>(&value)) {
        bytes = *stored;
    }
    return bytes;
}

std::optional<TRegValue> ConvertTo(TRegDataType type, const TRegValue& value) {
    switch (type) {
        case TRegDataType::String:
        case TRegDataType::ExpandString:
            return AsText(value);
        case TRegDataType::Dword:
            if (std::holds_alternative<std::monostate>(value)) return std::int32_t{0};
            if (const auto number = AsInteger(value)) return *number;
            return std::nullopt;
        case TRegDataType::Binary:
            return AsBytes(value);
        case TRegDataType::Unknown:
            break;
    }
    return TRegValue{};
}
