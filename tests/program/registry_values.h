// Registry values as the tests store and find them.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// Where a value lives; always the 64-bit view, which is the one that Windows itself uses.
struct TValuePlace {
    HKEY Root;
    const wchar_t* Key;
    const wchar_t* Name;
};

/// A value with its type (REG_…) and its bytes.
struct TStoredValue {
    DWORD Type;
    std::vector<BYTE> Bytes;

    bool operator==(const TStoredValue&) const = default;
};
/// For the messages of failed tests.
void PrintTo(const TStoredValue& value, std::ostream* stream);

[[nodiscard]] TStoredValue Dword(DWORD number);
[[nodiscard]] TStoredValue Text(const std::wstring& text);
[[nodiscard]] TStoredValue Binary(std::initializer_list<BYTE> bytes);
[[nodiscard]] TStoredValue Qword(ULONGLONG number);

/// The stored value; nothing when it or its key is missing.
[[nodiscard]] std::optional<TStoredValue> Stored(const TValuePlace& place);
/// Stores a value, creating the key, or deletes it.
void Store(const TValuePlace& place, const std::optional<TStoredValue>& value);

/// Puts values back when it goes.
class TValueKeeper {
  public:
    explicit TValueKeeper(std::vector<TValuePlace> places);
    ~TValueKeeper();
    TValueKeeper(const TValueKeeper&) = delete;
    TValueKeeper& operator=(const TValueKeeper&) = delete;

  private:
    struct TKept {
        TValuePlace Place;
        std::optional<TStoredValue> Value;
    };

    std::vector<TKept> FKept;
};

/// While it lives, nobody may do more than read the key, which must exist.
class TReadOnlyKey {
  public:
    TReadOnlyKey(HKEY root, const wchar_t* key);
    ~TReadOnlyKey();
    TReadOnlyKey(const TReadOnlyKey&) = delete;
    TReadOnlyKey& operator=(const TReadOnlyKey&) = delete;

    /// Whether the system really refuses full access (where nobody checks rights, nothing can be tested).
    [[nodiscard]] bool Effective() const { return FEffective; }

  private:
    HKEY FKey = nullptr;
    std::vector<BYTE> FRights;  ///< the security descriptor as it was
    bool FEffective = false;
};
