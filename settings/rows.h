// The row kinds of the settings catalogue. One row is one setting: the control that stands for it, where it lives,
// how a stored value shows, what each state records, and whether Windows must restart for it.
//
// How a value shows and what a state records are separate on purpose: many settings are not symmetric.
#pragma once

#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "settings/datum.h"

class TComponent;
struct TPageContext;

/// Names of controls, in an array beside the rows.
using TControlNames = std::span<const wchar_t* const>;

/// A range of Windows levels: 7 Windows 7, 6 Vista, 5 XP, 4 Windows 2000, 0 any other (Server 2003 is one).
struct TLevels {
    int First = 0;
    int Last = 99;
    int Except = -1;  ///< a level of the range that does not belong to it

    [[nodiscard]] constexpr bool Include(int level) const {
        return First <= level && level <= Last && level != Except;
    }
};
inline constexpr TLevels kEveryLevel{};
inline constexpr TLevels kUntil2000{.Last = 4};
inline constexpr TLevels kNotWindows2000{.Except = 4};
inline constexpr TLevels kUntilXp{.Last = 5};
inline constexpr TLevels kOnlyXp{.First = 5, .Last = 5};
inline constexpr TLevels kSinceXp{.First = 5};
inline constexpr TLevels kXpAndVista{.First = 5, .Last = 6};
inline constexpr TLevels kUntilVista{.Last = 6};
inline constexpr TLevels kOnlyVista{.First = 6, .Last = 6};
inline constexpr TLevels kSinceVista{.First = 6};
inline constexpr TLevels kSinceWindows7{.First = 7};

/// What a stored value makes of a check box.
enum class TBoxState : std::uint8_t {
    Keep,  ///< the box keeps the state it has
    Clear,
    Checked,
};
inline constexpr TBoxState kKeep = TBoxState::Keep;
inline constexpr TBoxState kClear = TBoxState::Clear;
inline constexpr TBoxState kChecked = TBoxState::Checked;

/// How a stored value shows in a check box.
struct TBoxRule {
    struct TCase {
        TMatch Value;
        TBoxState Shows;
    };

    TBoxState Missing = kKeep;  ///< the key or the value cannot be read
    std::optional<TCase> When;  ///< this value, …
    TBoxState Otherwise;        ///< … and any other, of whatever type
};

/// What the two states of a check box record at one place.
struct TBoxRecord {
    TDatum Checked;
    TDatum Clear;
};

/// A second change of the same click, recorded under the control's name with `Suffix` behind it.
struct TBoxFurther {
    const wchar_t* Suffix;
    TPlace Value;
    TBoxRecord Records;
};

struct TCheckBoxRow {
    const wchar_t* Control;
    TPlace Value;
    TBoxRule Shows;
    TBoxRecord Records;
    std::optional<TBoxFurther> Further = std::nullopt;
    bool Restart = false;               ///< Windows must restart before the change takes effect
    TLevels LoadedOn = kEveryLevel;     ///< elsewhere the box keeps its state; it records everywhere
    TControlNames Enables = {};         ///< of use only while the box is checked
    TControlNames EnablesOnClick = {};  ///< the same, but left alone by the loader
    std::optional<TPlace> LoadedFrom = std::nullopt;  ///< what shows, where it is not `Value`
    /// A policy that takes away what the box stands for while it is 1: the box is clear then, and checking it turns the
    /// policy off.
    std::optional<TPlace> Policy = std::nullopt;
    TLevels Levels = kEveryLevel;  ///< elsewhere another row of the control holds
};

/// A key that exists while the box is checked, with an empty text as its default value.
struct TKeyRow {
    const wchar_t* Control;
    TPlace Value;
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
};

/// Which radio button of a pair a stored value checks.
enum class TPairState : std::uint8_t {
    Keep,  ///< both keep the state they have
    First,
    Second,
};

/// Two radio buttons that share one value. Both record under one change name, so that the last click wins.
struct TRadioPairRow {
    const wchar_t* First;
    const wchar_t* Second;
    const wchar_t* ChangeName;
    TPlace Value;
    TPairState Missing = TPairState::Keep;
    TMatch FirstWhen;      ///< the value that checks the first button; any other checks the second
    TDatum FirstRecords;   ///< while the first button is checked
    TDatum SecondRecords;  ///< while it is not
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
};

/// A drop-down list whose items stand for values. A value that is no item's leaves the choice alone.
struct TChoiceRow {
    const wchar_t* Control;
    TPlace Value;
    std::span<const TDatum> Items;  ///< what each item records, and which value chooses it
    int Missing = -1;               ///< the item that a missing value chooses; -1 leaves the choice alone
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
};

/// How a number is stored.
enum class TNumberType : std::uint8_t {
    Dword,
    Text,  ///< decimal, as REG_SZ
};

/// An up-down or track bar whose position is the value. A value that means no number leaves the position alone.
struct TNumberRow {
    const wchar_t* Control;
    TPlace Value;
    TNumberType Type = TNumberType::Dword;
    std::optional<std::int32_t> Missing = std::nullopt;  ///< the position that a missing value gives
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;  ///< elsewhere another row of the control holds
};

/// An edit whose text is the value, recorded as REG_SZ whenever it changes.
struct TTextRow {
    const wchar_t* Control;
    TPlace Value;
    const wchar_t* MissingShows = nullptr;  ///< the edit whose text shows when there is no value
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
};

/// Which argument of SystemParametersInfoW carries the value that is set.
enum class TParameterSlot : std::uint8_t {
    Param,  ///< uiParam
    Data,   ///< pvParam, the number itself
};

/// A system parameter that is on or off, behind a check box or a drop-down list whose first item is "off".
struct TParameterSwitchRow {
    const wchar_t* Control;
    std::uint32_t Get;  ///< SPI_GET… code
    std::uint32_t Set;  ///< SPI_SET… code
    TParameterSlot Slot = TParameterSlot::Data;
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
    /// A control that the loader enables or disables with the switch. A click turns it over, whatever it was.
    const wchar_t* Toggles = nullptr;
};

/// A system parameter that is a number, behind an up-down or track bar.
struct TParameterNumberRow {
    const wchar_t* Control;
    std::uint32_t Get;
    std::uint32_t Set;
    TParameterSlot Slot = TParameterSlot::Param;
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
};

/// A setting that no other kind of row describes: functions beside the table do its work.
struct TSpecialRow {
    TControlNames Controls;  ///< those that record, in an array beside the rows
    TPlace Value;            ///< the place, or the main one
    const wchar_t* Rule;     ///< one line for the reader of a reference: how it shows and what it records
    void (*Load)(TPageContext& context, const TSpecialRow& row);  ///< null = another row's loader shows it
    void (*Record)(TPageContext& context, const TSpecialRow& row, TComponent& sender);
    std::int32_t Parameter = 0;  ///< whatever number the functions share among rows
    bool Restart = false;
    TLevels LoadedOn = kEveryLevel;
};

using TRow = std::variant<TCheckBoxRow, TKeyRow, TRadioPairRow, TChoiceRow, TNumberRow, TTextRow,
                          TParameterSwitchRow, TParameterNumberRow, TSpecialRow>;

/// The rows of one loader, in the order in which they are loaded.
using TLoader = std::span<const TRow>;

/// The controls that record through the row.
[[nodiscard]] std::vector<std::wstring> ControlsOf(const TRow& row);

/// Where the row holds. A setting whose place differs from one Windows to another has a row for each.
[[nodiscard]] TLevels LevelsOf(const TRow& row);

/// Shows the stored value in the row's controls. Called with the window's loading flag set.
void LoadRow(TPageContext& context, const TRow& row);

/// Records what the sender's state means for this row; nothing when the sender is not the row's control.
void RecordRow(TPageContext& context, const TRow& row, TComponent& sender);
