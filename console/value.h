// What a command answers: one value, from which both kinds of output follow, text for people and simple programs, and JSON.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

struct TValue;
struct TField;
using TList = std::vector<TValue>;
using TRecord = std::vector<TField>;

struct TValue {
    std::variant<bool, std::int64_t, std::wstring, TList, TRecord> Content;
};

struct TField {
    const wchar_t* Name;  ///< in JSON; part of the contract with whoever reads it
    TValue Value;
    bool InText = true;  ///< otherwise in JSON only
};

/// JSON on one line, in ASCII.
[[nodiscard]] std::wstring JsonOf(const TValue& value);

/// A list gives a line for each element, a record a line for each field, which begins with its name, and for each element
/// of a list in it. Within a line tabs stand between the values; tabs and line breaks in a text are blanks.
[[nodiscard]] std::vector<std::wstring> LinesOf(const TValue& value);
