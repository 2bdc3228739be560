// Where a setting lives and how it is kept there: a registry value, a parameter of SystemParametersInfoW, a service or a
// preference of the user's Firefox profile; whole, or some bits of it; as it is, or in a coding of its own.
#pragma once

#include "platform/registry.h"

inline constexpr TRootKey kLocalMachine = TRootKey::LocalMachine;
inline constexpr TRootKey kCurrentUser = TRootKey::CurrentUser;
inline constexpr TRootKey kClassesRoot = TRootKey::ClassesRoot;
inline constexpr TRootKey kUsers = TRootKey::Users;

/// Which argument of SystemParametersInfoW carries the number that is set.
enum class TParameterSlot : std::uint8_t {
    Param,  ///< uiParam
    Data,   ///< pvParam, the number itself
};

/// A parameter of SystemParametersInfoW. It reads as 0 when Windows does not tell it.
struct TParameter {
    std::uint32_t Get = 0;  ///< SPI_GET… code; 0 = Windows tells it in other ways only
    std::uint32_t Set = 0;  ///< SPI_SET… code
    TParameterSlot Slot = TParameterSlot::Data;
    /// Of the structure that pvParam points to. A structure that Windows does not tell counts as missing. 0 = the parameter is
    /// a number.
    std::uint8_t BlockSize = 0;
    std::uint8_t Offset = 0;      ///< in bytes, of the number in the structure
    bool BeginsWithSize = false;  ///< the structure
};

/// How a place keeps what a control shows.
enum class TCoding : std::uint8_t {
    Plain,       ///< as it is; a number as a DWORD, a text as REG_SZ
    Number,      ///< the same, but what means no number counts as missing
    Decimal,     ///< a number as decimal text
    Switch,      ///< 0 or 1, of which only the lowest byte is sure to be written
    Seconds,     ///< kept in milliseconds; a part of a second counts as one
    BlinkRate,   ///< a speed, kept as the time of the cursor's blinking; see settings/coding.h
    FirstByte,   ///< the first of some bytes, of which the others stay
    ColorBytes,  ///< a colour as the bytes red, green, blue, 0
    ColorText,   ///< a colour as "red green blue" in decimal
    Quoted,      ///< a text in quotes, with a backslash before quotes and backslashes
};

enum class TPlaceKind : std::uint8_t { Registry, Parameter, Service, Preference };

// Its first members are in the order in which rows say them.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct TPlace {
    TRootKey Root = TRootKey::CurrentUser;
    const wchar_t* Key = L"";  ///< begins with a backslash
    const wchar_t* ValueName =
        L"";  ///< empty = the key's default value; of a preference its name with the quotes, of a service its name
    TPlaceKind Kind = TPlaceKind::Registry;
    TCoding Coding = TCoding::Plain;
    /// The bits of the number that are the setting; the others stay as they are. Where the number that is there is none,
    /// they are 0. 0 = the setting is all of it.
    std::uint32_t Mask = 0;
    TParameter Parameter{};
};

/// A preference by its name with the quotes. Its values are texts; writing the empty text removes it.
[[nodiscard]] constexpr TPlace Pref(const wchar_t* quotedName) {
    return {.ValueName = quotedName, .Kind = TPlaceKind::Preference};
}

/// Whether a service runs. Rows of services read and switch it.
[[nodiscard]] constexpr TPlace Service(const wchar_t* name) {
    return {.ValueName = name, .Kind = TPlaceKind::Service};
}

[[nodiscard]] constexpr TPlace NumberParameter(std::uint32_t get, std::uint32_t set,
                                               TParameterSlot slot = TParameterSlot::Param) {
    return {.Kind = TPlaceKind::Parameter, .Parameter = {.Get = get, .Set = set, .Slot = slot}};
}

[[nodiscard]] constexpr TPlace SwitchParameter(std::uint32_t get, std::uint32_t set,
                                               TParameterSlot slot = TParameterSlot::Data) {
    return {.Kind = TPlaceKind::Parameter,
            .Coding = TCoding::Switch,
            .Parameter = {.Get = get, .Set = set, .Slot = slot}};
}

/// A number of 32 bits in a structure whose first field is its size.
[[nodiscard]] constexpr TPlace BlockParameter(std::uint32_t get, std::uint32_t set, std::uint8_t size,
                                              std::uint8_t offset) {
    return {
        .Kind = TPlaceKind::Parameter,
        .Parameter = {.Get = get, .Set = set, .BlockSize = size, .Offset = offset, .BeginsWithSize = true}};
}

/// One of some numbers of 32 bits that pvParam points to.
[[nodiscard]] constexpr TPlace PointedParameter(std::uint32_t get, std::uint32_t set, std::uint8_t count,
                                                std::uint8_t index) {
    TPlace place =
        BlockParameter(get, set, static_cast<std::uint8_t>(4 * count), static_cast<std::uint8_t>(4 * index));
    place.Parameter.BeginsWithSize = false;
    return place;
}

/// The place, with another coding.
[[nodiscard]] constexpr TPlace As(TCoding coding, TPlace place) {
    place.Coding = coding;
    return place;
}

/// Some bits of the place.
[[nodiscard]] constexpr TPlace Bits(std::uint32_t mask, TPlace place) {
    place.Mask = mask;
    return place;
}
