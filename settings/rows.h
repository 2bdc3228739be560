// The row kinds of the settings catalogue. One row is one setting: the control that stands for it, where it lives,
// how a stored value shows, what each state records, and whether Windows must restart for it.
//
// How a value shows and what a state records are separate on purpose: many settings are not symmetric. Whatever kind of place
// a setting has (see settings/place.h), the same rows serve it.
//
// Changes are recorded under the control's name, unless a row gives another one: controls of several pages that stand for one
// setting share a name, so that the last click wins.
#pragma once

#include <optional>
#include <set>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "engine/restart.h"
#include "settings/datum.h"
#include "settings/levels.h"
#include "settings/registry_keys.h"

class TComponent;
struct TPageContext;

/// Names of controls, in an array beside the rows.
using TControlNames = std::span<const wchar_t* const>;

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

/// A second change of the same click, recorded under the first one's name with `Suffix` behind it. No two
/// changes of a row have the same suffix.
struct TBoxFurther {
    const wchar_t* Suffix;
    TPlace Value;
    TBoxRecord Records;
};

/// A label that repeats the number of a control.
struct TDigits {
    const wchar_t* Label;
    const wchar_t* Number;
};

/// What a click brings up to date besides, and the loader leaves alone.
struct TOnClick {
    TControlNames Enables = {};  ///< of use only while the box is checked
    const TDigits* Digits = nullptr;
};

/// A policy of Explorer's.
[[nodiscard]] constexpr TPlace ExplorerPolicy(const wchar_t* policy) {
    return {kCurrentUser, kExplorerPolicies, policy};
}

/// There are many of them: what few have is in constants beside the rows.
struct TCheckBoxRow {
    const wchar_t* Control;
    TPlace Value;
    TBoxRule Shows;
    TBoxRecord Records;
    const TDatum* RecordsWhenMissing = nullptr;  ///< by either state, while there is no value
    std::span<const TBoxFurther> Further = {};   ///< what the click writes beside `Value`
    const wchar_t* ChangeName = nullptr;         ///< null = the control's name
    TRestart Restart = TRestart::None;           ///< before the change takes effect
    TLevels LoadedOn = kEveryLevel;              ///< elsewhere the box keeps its state; it records everywhere
    TControlNames Enables = {};                  ///< of use only while the box is checked
    /// A control that the loader enables or disables with the box. A click turns it over, whatever it was.
    const wchar_t* Toggles = nullptr;
    const TOnClick* OnClick = nullptr;
    const TPlace* LoadedFrom = nullptr;  ///< what shows, where it is not `Value`
    /// A policy of Explorer's that takes away what the box stands for while it is 1: the box is clear then, and a click
    /// turns the policy off or on as well, under the suffix 1.
    const wchar_t* Policy = nullptr;
    /// Elsewhere another row of the control holds, or it is hidden with its label. So it is with the rows of all kinds.
    TLevels Levels = kEveryLevel;
};

/// A key that exists while the box is checked, or while it is clear, with an empty text as its default value.
struct TKeyRow {
    const wchar_t* Control;
    TPlace Value;
    bool WhileChecked = true;
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// An edit whose text is kept at a place of its own while a box is checked.
struct TBoxField {
    const wchar_t* Edit;
    TPlace Value;
    const wchar_t* Suffix;  ///< of the change name; see TBoxFurther
    /// What is written instead of a deletion when a write of the same Apply comes before it; null = the edit's text.
    const wchar_t* Replaces;
};

/// A check box whose fields' values are written while it is checked and deleted when it is cleared. What the user types
/// later is recorded by rows of the edits.
struct TFieldsRow {
    const wchar_t* Control;
    TPlace Value;  ///< what shows
    TBoxRule Shows;
    std::optional<TBoxRecord> Records = std::nullopt;  ///< at `Value`; nothing = that is a field's
    std::span<const TBoxField> Fields;
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// A Windows service that runs while the box is checked.
struct TServiceRow {
    const wchar_t* Control;
    TPlace Value;
    int Order;  ///< in which Apply switches services
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TControlNames Enables = {};  ///< of use only while the box can be and is checked
    TLevels Levels = kEveryLevel;
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
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    const wchar_t* FirstShows = nullptr;   ///< a picture that is visible while the first button is checked
    const wchar_t* SecondShows = nullptr;  ///< one that is visible while the second is
    TLevels Levels = kEveryLevel;
};

/// A second change of the same choice, recorded under the first one's name with `Suffix` behind it.
struct TChoiceFurther {
    const wchar_t* Suffix;
    TPlace Value;
    std::span<const TDatum> Items;
    TLevels Levels = kEveryLevel;  ///< where the place means something
};

/// A drop-down list whose items stand for values. A value that is no item's leaves the choice alone; where there are two
/// places, both must be the item's.
struct TChoiceRow {
    const wchar_t* Control;
    TPlace Value;
    /// What each item records, which is also the value that chooses it. Any value chooses an item that records nothing.
    std::span<const TDatum> Items;
    int Missing = -1;  ///< the item that a missing value chooses; -1 leaves the choice alone
    std::optional<TChoiceFurther> Further = std::nullopt;
    const wchar_t* ChangeName = nullptr;  ///< null = the control's name
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// A second place of the same number.
struct TNumberFurther {
    const wchar_t* Suffix;
    TPlace Value;
};

/// What a row takes for the number.
enum class TNumberSource : std::uint8_t {
    Position,
    Typed,  ///< what stands in the up-down's edit, which may be empty or out of bounds while the user types; as a
            ///< Decimal to the letter
};

/// An up-down or track bar whose position is the value, or a list whose value is the number of the item; a number that is
/// no item's chooses none. A value that means no number leaves the control alone.
struct TNumberRow {
    const wchar_t* Control;
    TPlace Value;
    std::optional<std::int32_t> Missing = std::nullopt;  ///< the position that a missing value gives
    bool NoNumberIsFault = false;                        ///< which ends the loader
    TNumberSource Source = TNumberSource::Position;
    const wchar_t* Edit = nullptr;                         ///< the up-down's edit, where it records too
    std::optional<std::int32_t> RemovedAt = std::nullopt;  ///< the position that removes a preference
    std::optional<TNumberFurther> Further = std::nullopt;
    const wchar_t* ChangeName = nullptr;  ///< null = the control's name
    const wchar_t* Suffix = L"";          ///< of the first change's name
    const wchar_t* Digits = nullptr;      ///< a label that repeats the number
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    const TPlace* LoadedFrom = nullptr;  ///< what shows, where it is not `Value`
    TLevels Levels = kEveryLevel;
};

/// An edit whose text is the value, recorded whenever it changes.
struct TTextRow {
    const wchar_t* Control;
    TPlace Value;
    const wchar_t* MissingShows = nullptr;  ///< the edit whose text shows when there is no value
    bool MissingClears = false;             ///< nothing shows then
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// A switch and an amount that share one value: the amount while the switch is on, and what stands for off.
struct TSwitchRow {
    const wchar_t* On;             ///< a check box, or the radio button that stands for on
    const wchar_t* Off = nullptr;  ///< the one that stands for off
    /// An up-down or track bar, whose position is the value and whose bounds stand in the design; or a list, or a pair of
    /// radio buttons, with `Items`. It records the same change as the switch, and while that is off what stands for off.
    TControlNames Amount;
    TPlace Value;
    TMatch OffWhen;
    TDatum OffRecords;
    TBoxState Missing = kKeep;
    std::span<const TDatum> Items = {};  ///< what each item of the amount records, and which value chooses it
    int OtherItem = -1;     ///< the item that any other value chooses; -1 leaves the choice alone
    TControlNames Enables;  ///< of use only while it is on
    const wchar_t* ChangeName = nullptr;  ///< null = the name of `On`
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// A list that stands for some bits of a number.
struct TBitsList {
    const wchar_t* Control;
    std::uint32_t Mask;
    /// The bits of each item; other bits choose the first one. Empty = the item's number is what the bits are.
    std::span<const std::uint32_t> Items = {};
};

/// Lists that make up one number, which they record together.
struct TListsRow {
    std::span<const TBitsList> Lists;
    TPlace Value;
    std::int32_t Missing;  ///< what counts where there is no value, …
    std::int32_t Least =
        std::numeric_limits<std::int32_t>::min();  ///< … or one that means no number or is below this
    const wchar_t* ChangeName;
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// A button that lets the user pick a colour, and the swatch that shows it. What is no colour leaves the swatch alone.
struct TColorRow {
    const wchar_t* Button;
    const wchar_t* Swatch;
    TPlace Value;
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// A button that lets the user choose a program, and the edit that shows the command line. What he types there is recorded
/// by other rows.
struct TProgramRow {
    const wchar_t* Button;
    const wchar_t* Edit;
    TPlace Value;
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

/// A setting that no other kind of row describes: functions beside the table do its work.
struct TSpecialRow {
    TControlNames Controls;          ///< those that record, in an array beside the rows
    std::span<const TPlace> Places;  ///< all that it writes
    void (*Load)(TPageContext& context, const TSpecialRow& row);  ///< null = another row's loader shows it
    void (*Record)(TPageContext& context, const TSpecialRow& row, TComponent& sender);
    TRestart Restart = TRestart::None;
    TLevels LoadedOn = kEveryLevel;
    TLevels Levels = kEveryLevel;
};

using TRow = std::variant<TCheckBoxRow, TKeyRow, TFieldsRow, TServiceRow, TRadioPairRow, TChoiceRow,
                          TNumberRow, TTextRow, TSwitchRow, TListsRow, TColorRow, TProgramRow, TSpecialRow>;

/// The rows of one loader, in the order in which they are loaded.
using TLoader = std::span<const TRow>;

/// The controls that record through the row.
[[nodiscard]] std::vector<std::wstring> ControlsOf(const TRow& row);

/// Other controls that it shows something in, or enables and disables.
[[nodiscard]] std::set<std::wstring> TouchedBy(const TRow& row);

/// The places that the row writes.
[[nodiscard]] std::vector<TPlace> PlacesOf(const TRow& row);

/// Where the row holds. A setting whose place differs from one Windows to another has a row for each; where none holds, it
/// is not offered.
[[nodiscard]] TLevels LevelsOf(const TRow& row);

/// Where its loader shows something. Elsewhere its controls have the state that the user gives them.
[[nodiscard]] TLevels LoadedOn(const TRow& row);

/// Whether Windows must restart before a change takes effect.
[[nodiscard]] TRestart RestartOf(const TRow& row);

/// Shows the stored value in the row's controls. Called with the window's loading flag set.
void LoadRow(TPageContext& context, const TRow& row);

/// Records what the sender's state means for this row; nothing when the sender is not the row's control.
void RecordRow(TPageContext& context, const TRow& row, TComponent& sender);
