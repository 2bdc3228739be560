// The words in which catalogue rows say where a setting lives, what is stored there and what is written there.
#pragma once

#include "platform/registry.h"
#include "settings/captions.h"

inline constexpr TRootKey kLocalMachine = TRootKey::LocalMachine;
inline constexpr TRootKey kCurrentUser = TRootKey::CurrentUser;
inline constexpr TRootKey kClassesRoot = TRootKey::ClassesRoot;
inline constexpr TRootKey kUsers = TRootKey::Users;

/// Where a setting lives: at a place in the registry, whose `Key` begins with a backslash, or in the preferences of the
/// user's Firefox profile.
struct TPlace {
    TRootKey Root;
    const wchar_t* Key;
    const wchar_t* ValueName;  ///< empty = the key's default value; of a preference its name with the quotes
    bool IsFirefoxPref = false;
};

/// A preference by its name with the quotes. Its values are texts; writing the empty text removes it.
constexpr TPlace Pref(const wchar_t* quotedName) { return {kCurrentUser, L"", quotedName, true}; }

/// What one state of a control does to its place.
struct TDatum {
    enum class TKind : std::uint8_t {
        Dword,
        Text,
        Caption,   ///< text in the user's language
        AsStored,  ///< the number, in the type that the value has already; a DWORD when there is no value
        DeleteValue,
        DeleteKey,
        Nothing,
    };

    TKind Kind = TKind::Dword;
    std::int32_t Number = 0;
    const wchar_t* Characters = L"";
    TCaption Translation = TCaption::General;
};

constexpr TDatum Dword(std::int32_t number) { return {.Kind = TDatum::TKind::Dword, .Number = number}; }
constexpr TDatum Text(const wchar_t* characters) {
    return {.Kind = TDatum::TKind::Text, .Characters = characters};
}
constexpr TDatum Translated(TCaption caption) {
    return {.Kind = TDatum::TKind::Caption, .Translation = caption};
}
constexpr TDatum AsStored(std::int32_t number) { return {.Kind = TDatum::TKind::AsStored, .Number = number}; }
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

    [[nodiscard]] bool operator()(const TRegValue& value) const;
    /// The question in words, for a reference of the settings.
    [[nodiscard]] std::wstring Words() const;

  private:
    enum class TKind : std::uint8_t { Number, Text, TextAnyCase, NumberOrText, EmptyOrZero };

    TKind FKind;
    std::int32_t FNumber = 0;
    const wchar_t* FText = L"";
};

constexpr TMatch AnyCase(const wchar_t* text) { return TMatch::AnyCase(text); }
inline constexpr TMatch kYes = TMatch::Yes();
inline constexpr TMatch kNo = TMatch::No();
inline constexpr TMatch kEmptyOrZero = TMatch::EmptyOrZero();
