// Registry values as the tests store and find them.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Where a value lives; always the 64-bit view, which is the one that Windows itself uses.
struct TValuePlace {
    HKEY Root;
    const wchar_t* Key;
    const wchar_t* Name;
};

/// A value: its type (REG_…) and its bytes.
using TStoredValue = std::pair<DWORD, std::vector<BYTE>>;

[[nodiscard]] TStoredValue Dword(DWORD number);
[[nodiscard]] TStoredValue Text(const std::wstring& text);

/// The stored value; nothing when it or its key is missing.
[[nodiscard]] std::optional<TStoredValue> Stored(const TValuePlace& place);
/// Stores a value, creating the key, or deletes it.
void Store(const TValuePlace& place, const std::optional<TStoredValue>& value);

/// Puts values back when it goes.
class TValueKeeper {
  public:
    explicit TValueKeeper(const std::vector<TValuePlace>& places);
    ~TValueKeeper();
    TValueKeeper(const TValueKeeper&) = delete;
    TValueKeeper& operator=(const TValueKeeper&) = delete;

  private:
    std::vector<std::pair<TValuePlace, std::optional<TStoredValue>>> FKept;
};
