// The Windows registry as the program sees it: single values at a place, read and written whole.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Predefined registry roots; the numbers are those of the Windows handles HKEY_….
enum class TRootKey : std::uint32_t {
    ClassesRoot = 0x80000000,
    CurrentUser = 0x80000001,
    LocalMachine = 0x80000002,
    Users = 0x80000003,  ///< below it `.DEFAULT`, the user of the logon screen
    CurrentConfig = 0x80000005,
    DynData = 0x80000006,
};

/// Type of a stored value, in the program's own numbering (not the REG_… codes).
enum class TRegDataType : std::uint8_t {
    Unknown = 0,       ///< any type that is not listed here
    String = 1,        ///< REG_SZ
    ExpandString = 2,  ///< REG_EXPAND_SZ, kept unexpanded
    Dword = 3,         ///< REG_DWORD
    Binary = 4,        ///< REG_BINARY
};

using TBytes = std::vector<std::uint8_t>;

/// A value's data: absent, a DWORD read as a signed number, text, or bytes.
using TRegValue = std::variant<std::monostate, std::int32_t, std::wstring, TBytes>;

/// Where a value lives. `Key` may begin and end with backslashes. An empty `ValueName` is the default value.
struct TRegistryPlace {
    TRootKey Root = TRootKey::CurrentUser;
    std::wstring Key;
    std::wstring ValueName;
};

/// The key without the backslashes at its ends, as Windows wants it.
[[nodiscard]] std::wstring_view TrimmedKey(std::wstring_view key);

/// A stored value with its type. For type Unknown the value is absent.
struct TRegistryData {
    TRegDataType Type = TRegDataType::Unknown;
    TRegValue Value;

    bool operator==(const TRegistryData&) const = default;
};

/// A stored value to the byte, with its REG_… type.
struct TRawValue {
    std::uint32_t Type = 0;
    TBytes Bytes;

    bool operator==(const TRawValue&) const = default;
};

/// What Write stores of the data, which must fit its type. Of type Unknown nothing is stored.
[[nodiscard]] std::optional<TRawValue> RawValueOf(const TRegistryData& data);

/// Which registry a 32-bit process on 64-bit Windows sees; everywhere else the two are the same.
enum class TRegistryView {
    Native,   ///< the 64-bit view (KEY_WOW64_64KEY), the one that Windows itself uses
    Process,  ///< the view that Windows gives the process by itself
};

enum class TReadStatus : std::uint32_t {
    Found = 0,
    KeyUnavailable = 1,  ///< the key is missing or cannot be opened for full access
    ValueMissing = 2,
};

enum class TWriteStatus {
    Done,
    KeyUnavailable,  ///< the key cannot be opened (or created); nothing was written
    Refused,         ///< the key opened, but the registry refused the operation
};

/// Keys are opened for full (read and write) access, so a key the user may only read counts as unavailable.
/// No operation throws; outputs are left untouched on failure.
class TRegistry {
  public:
    virtual ~TRegistry() = default;

    /// Whether the key opens and, if `ValueName` is not empty, the value exists. With an empty `ValueName`
    /// an existing key answers Found.
    [[nodiscard]] virtual TReadStatus Check(const TRegistryPlace& place, TRegistryView view) const = 0;

    /// Reads the value (an empty name reads the key's default value, which may be missing).
    [[nodiscard]] virtual TReadStatus Read(const TRegistryPlace& place, TRegistryData& data) const = 0;

    /// Reads the value whatever its type and size, also where the user may only read.
    [[nodiscard]] virtual TReadStatus ReadRaw(const TRegistryPlace& place, TRawValue& value) const = 0;

    /// Opens or creates the key and writes the value. Data of type Unknown creates the key and writes nothing.
    /// The alternative held by `data.Value` must fit `data.Type`; if it does not, the answer is Refused.
    [[nodiscard]] virtual TWriteStatus Write(const TRegistryPlace& place, const TRegistryData& data) = 0;

    /// Deletes the value. A missing key answers KeyUnavailable, a missing value Done.
    [[nodiscard]] virtual TWriteStatus DeleteValue(const TRegistryPlace& place) = 0;

    /// Deletes the key with everything below it. A missing key answers KeyUnavailable.
    [[nodiscard]] virtual TWriteStatus DeleteKey(TRootKey root, const std::wstring& key) = 0;

    /// The names of the key's subkeys in the registry's order; empty when the key cannot be opened.
    [[nodiscard]] virtual std::vector<std::wstring> SubKeys(TRootKey root, const std::wstring& key) const = 0;
};
