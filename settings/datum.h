// The words in which catalogue rows say where a setting lives and what is written there.
#pragma once

#include "platform/registry.h"

inline constexpr TRootKey kLocalMachine = TRootKey::LocalMachine;
inline constexpr TRootKey kCurrentUser = TRootKey::CurrentUser;
inline constexpr TRootKey kClassesRoot = TRootKey::ClassesRoot;

/// The registry place of a setting; `Key` begins with a backslash.
struct TPlace {
    TRootKey Root;
    const wchar_t* Key;
    const wchar_t* ValueName;
};

/// What one state of a control does to its place.
struct TDatum {
    enum class TKind : std::uint8_t { Dword, Text, DeleteValue, DeleteKey };

    TKind Kind = TKind::Dword;
    std::int32_t Number = 0;
    const wchar_t* Characters = L"";
};

constexpr TDatum Dword(std::int32_t number) { return {.Kind = TDatum::TKind::Dword, .Number = number}; }
constexpr TDatum Text(const wchar_t* characters) {
    return {.Kind = TDatum::TKind::Text, .Characters = characters};
}
inline constexpr TDatum kDeleteValue{.Kind = TDatum::TKind::DeleteValue};
inline constexpr TDatum kDeleteKey{.Kind = TDatum::TKind::DeleteKey};
