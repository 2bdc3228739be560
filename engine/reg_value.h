// Registry values read as another type than they are stored in. Settings turn up in the registry in types that
// Windows itself never writes (a number as text, a DWORD as four bytes); a page shows what they mean.
#pragma once

#include <optional>

#include "platform/registry.h"

/// The value as a number: a DWORD, decimal text with an optional sign and blanks around it, or one to four bytes with the
/// lowest first. Nothing when the value is absent or means no number.
[[nodiscard]] std::optional<std::int32_t> AsInteger(const TRegValue& value);

/// The value as a set of bits: AsInteger, or decimal text above the largest signed number.
[[nodiscard]] std::optional<std::uint32_t> AsBits(const TRegValue& value);

/// The value as text: numbers in decimal, bytes as one character each, absent as empty text.
[[nodiscard]] std::wstring AsText(const TRegValue& value);

/// The value as bytes: text as one byte per character, a number as its four bytes with the lowest first.
[[nodiscard]] TBytes AsBytes(const TRegValue& value);

/// The value in the form in which a registry value of `type` is written. An absent value is 0, empty text or no
/// bytes. Nothing when a DWORD is asked for and the value means no number.
[[nodiscard]] std::optional<TRegValue> ConvertTo(TRegDataType type, const TRegValue& value);
