#include "settings/coding.h"

#include <algorithm>
#include <bit>

#include "base/decimal.h"
#include "engine/reg_value.h"
#include "platform/text.h"

namespace {

constexpr std::int32_t kNoBlink = -1;
constexpr std::uint32_t kMillisecondsPerSecond = 1000;
constexpr std::uint32_t kLowestByte = 0xFF;

std::int32_t SpeedOf(std::int32_t blinkTime) {
    return blinkTime == kNoBlink ? kNoBlinkSpeed
                                 : MirrorBlink(std::clamp(blinkTime, kFastestBlink, kSlowestBlink));
}

std::int32_t BlinkTimeOf(std::int32_t speed) {
    const std::int32_t time = MirrorBlink(speed);
    return time > kSlowestBlink ? kNoBlink : time;
}

std::optional<TRegValue> AsSeconds(const TRegValue& value) {
    const auto milliseconds = AsBits(value);
    if (!milliseconds) return std::nullopt;
    return static_cast<std::int32_t>(*milliseconds / kMillisecondsPerSecond +
                                     (*milliseconds % kMillisecondsPerSecond != 0 ? 1 : 0));
}

std::optional<TRegValue> FirstByteOf(const TRegValue& value) {
    const TBytes bytes = AsBytes(value);
    return bytes.empty() ? 0 : std::int32_t{bytes[0]};
}

TBytes WithFirstByte(std::int32_t byte, const std::optional<TRegValue>& stored) {
    TBytes bytes = stored ? AsBytes(*stored) : TBytes{};
    if (bytes.empty()) bytes.push_back(0);
    bytes[0] = static_cast<std::uint8_t>(byte);
    return bytes;
}

// A colour is a number with red in its lowest byte.

std::optional<TRegValue> ColorOfBytes(const TRegValue& value) {
    const TBytes bytes = AsBytes(value);
    if (bytes.size() < 3) return std::nullopt;
    return std::int32_t{bytes[0]} | std::int32_t{bytes[1]} << 8 | std::int32_t{bytes[2]} << 16;
}

std::optional<TRegValue> ColorOfText(std::wstring_view text) {
    std::int32_t color = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        text = Trim(text);
        const std::size_t length = std::min(text.find(L' '), text.size());
        const auto part = ParseInteger(text.substr(0, length));
        if (!part || *part < 0 || *part > 0xFF) return std::nullopt;
        color |= *part << shift;
        text.remove_prefix(length);
    }
    if (!Trim(text).empty()) return std::nullopt;
    return color;
}

std::wstring ColorText(std::int32_t color) {
    return DecimalText(color & 0xFF) + L' ' + DecimalText(color >> 8 & 0xFF) + L' ' +
           DecimalText(color >> 16);
}

std::wstring Quoted(const std::wstring& text) {
    std::wstring value(1, L'"');
    for (const wchar_t c : text) {
        if (c == L'"' || c == L'\\') value += L'\\';
        value += c;
    }
    return value + L'"';
}

std::wstring Unquoted(const std::wstring& value) {
    std::wstring text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const wchar_t next = i + 1 < value.size() ? value[i + 1] : L'\0';
        if (value[i] == L'\\' && (next == L'"' || next == L'\\'))
            text += value[++i];
        else if (value[i] != L'"')
            text += value[i];
    }
    return text;
}

/// The value, or nothing when there is no number.
std::optional<TRegValue> Known(const std::optional<std::int32_t>& number) {
    if (!number) return std::nullopt;
    return TRegValue(*number);
}

}  // namespace

std::optional<TRegValue> Decode(const TPlace& place, TRegValue stored) {
    if (place.Mask != 0) {
        const auto bits = AsBits(stored);
        if (!bits) return std::nullopt;
        return static_cast<std::int32_t>((*bits & place.Mask) >> std::countr_zero(place.Mask));
    }
    switch (place.Coding) {
        case TCoding::Plain:
        case TCoding::Decimal:
            return stored;
        case TCoding::Number:
            return Known(AsInteger(stored));
        case TCoding::Switch:
            return (AsBits(stored).value_or(0) & kLowestByte) != 0 ? 1 : 0;
        case TCoding::Seconds:
            return AsSeconds(stored);
        case TCoding::BlinkRate: {
            const auto time = AsInteger(stored);
            return time ? Known(SpeedOf(*time)) : std::nullopt;
        }
        case TCoding::FirstByte:
            return FirstByteOf(stored);
        case TCoding::ColorBytes:
            return ColorOfBytes(stored);
        case TCoding::ColorText:
            return ColorOfText(AsText(stored));
        case TCoding::Quoted:
            return Unquoted(AsText(stored));
    }
    return stored;
}

TKept Encode(const TPlace& place, std::int32_t number, const std::optional<TRegValue>& stored) {
    auto bits = static_cast<std::uint32_t>(number);
    if (place.Mask != 0) {
        const std::uint32_t others = (stored ? AsBits(*stored) : std::nullopt).value_or(0) & ~place.Mask;
        bits = others | (bits << std::countr_zero(place.Mask) & place.Mask);
    }
    const auto whole = static_cast<std::int32_t>(bits);
    switch (place.Coding) {
        case TCoding::Plain:
        case TCoding::Number:
        case TCoding::Switch:
        case TCoding::Quoted:
            break;
        case TCoding::Decimal:
            return {TRegDataType::String, place.Mask != 0 ? DecimalText(bits) : DecimalText(whole)};
        case TCoding::Seconds:
            return {TRegDataType::Dword, static_cast<std::int32_t>(bits * kMillisecondsPerSecond)};
        case TCoding::BlinkRate:
            return {TRegDataType::String, DecimalText(BlinkTimeOf(whole))};
        case TCoding::FirstByte:
            return {TRegDataType::Binary, WithFirstByte(whole, stored)};
        case TCoding::ColorBytes:
            return {TRegDataType::Binary, AsBytes(whole)};
        case TCoding::ColorText:
            return {TRegDataType::String, ColorText(whole)};
    }
    return {TRegDataType::Dword, whole};
}

TKept Encode(const TPlace& place, const std::wstring& text) {
    return {TRegDataType::String, place.Coding == TCoding::Quoted ? Quoted(text) : text};
}
