// The words in which catalogue rows say what is stored at a place and what is written there.
#pragma once

#include <limits>

#include "settings/captions.h"
#include "settings/place.h"

/// What one state of a control does to its place.
struct TDatum {
    enum class TKind : std::uint8_t {
        Dword,
        Text,
        Caption,   ///< text in the user's language
        AsStored,  ///< the number, in the type that the value has already; a DWORD when there is no value
        YesOrNo,   ///< "yes" or "no", but the number where a number is stored
        SetBits,   ///< the number that is there, with the bits of this one
        DeleteValue,
        DeleteKey,
        Nothing,
    };

    const wchar_t* Characters = L"";
    std::int32_t Number = 0;
    TKind Kind = TKind::Dword;
    TCaption Translation = TCaption::General;
};

constexpr TDatum Dword(std::int32_t number) { return {.Number = number, .Kind = TDatum::TKind::Dword}; }
constexpr TDatum Text(const wchar_t* characters) {
    return {.Characters = characters, .Kind = TDatum::TKind::Text};
}
constexpr TDatum Translated(TCaption caption) {
    return {.Kind = TDatum::TKind::Caption, .Translation = caption};
}
constexpr TDatum AsStored(std::int32_t number) { return {.Number = number, .Kind = TDatum::TKind::AsStored}; }
constexpr TDatum YesNoAsStored(bool yes) { return {.Number = yes ? 1 : 0, .Kind = TDatum::TKind::YesOrNo}; }
constexpr TDatum SetBits(std::int32_t bits) { return {.Number = bits, .Kind = TDatum::TKind::SetBits}; }
inline constexpr TDatum kDeleteValue{.Kind = TDatum::TKind::DeleteValue};
inline constexpr TDatum kDeleteKey{.Kind = TDatum::TKind::DeleteKey};
inline constexpr TDatum kNothing{.Kind = TDatum::TKind::Nothing};

/// A question about a stored value: is it this number, this text?
class TMatch {
  public:
    // Rows write the number or the text itself.
    // NOLINTBEGIN(google-explicit-constructor)

    /// The value means this number, whatever its type.
    constexpr TMatch(std::int32_t number) : FKind(TKind::Number), FNumber(number) {}
    /// The value reads as exactly this text, whatever its type.
    constexpr TMatch(const wchar_t* text) : FKind(TKind::Text), FText(text) {}
    // NOLINTEND(google-explicit-constructor)

    static constexpr TMatch AnyCase(const wchar_t* text) {
        TMatch match(text);
        match.FKind = TKind::TextAnyCase;
        return match;
    }
    /// The value is "yes" or 1, as Windows reads what it once kept as a text and later as a number.
    static constexpr TMatch Yes() {
        TMatch match(1);
        match.FKind = TKind::NumberOrText;
        match.FText = L"YES";
        return match;
    }
    /// The value is "no" or 0.
    static constexpr TMatch No() {
        TMatch match(0);
        match.FKind = TKind::NumberOrText;
        match.FText = L"NO";
        return match;
    }
    /// The value means 0 or is empty.
    static constexpr TMatch EmptyOrZero() {
        TMatch match(0);
        match.FKind = TKind::EmptyOrZero;
        return match;
    }

    /// The value is "no" in any case, means 0 or is empty.
    static constexpr TMatch EmptyOrNo() {
        TMatch match = No();
        match.FKind = TKind::EmptyOrNo;
        return match;
    }
    /// The value means no number, or one outside these bounds.
    static constexpr TMatch Outside(std::int32_t least, std::int32_t most) {
        TMatch match(least);
        match.FKind = TKind::Outside;
        match.FMost = most;
        return match;
    }

    [[nodiscard]] bool operator()(const TRegValue& value) const;
    /// The question in words, for a reference of the settings.
    [[nodiscard]] std::wstring Words() const;

  private:
    enum class TKind : std::uint8_t {
        Number,
        Text,
        TextAnyCase,
        NumberOrText,
        EmptyOrZero,
        EmptyOrNo,
        Outside
    };

    TKind FKind;
    std::int32_t FNumber = 0;
    std::int32_t FMost = 0;
    const wchar_t* FText = L"";
};

constexpr TMatch AnyCase(const wchar_t* text) { return TMatch::AnyCase(text); }
inline constexpr TMatch kYes = TMatch::Yes();
inline constexpr TMatch kNo = TMatch::No();
inline constexpr TMatch kEmptyOrZero = TMatch::EmptyOrZero();
inline constexpr TMatch kEmptyOrNo = TMatch::EmptyOrNo();
/// The value means no number, or a smaller one.
constexpr TMatch Below(std::int32_t least) {
    return TMatch::Outside(least, std::numeric_limits<std::int32_t>::max());
}
constexpr TMatch Outside(std::int32_t least, std::int32_t most) { return TMatch::Outside(least, most); }
