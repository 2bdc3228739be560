// The row kinds of the settings catalogue. One row is one setting: the control that stands for it, where it lives,
// how a stored value shows, what each state records, and whether Windows must restart for it.
//
// How a value shows and what a state records are separate on purpose: many settings are not symmetric.
#pragma once

#include <optional>
#include <span>
#include <variant>

#include "settings/datum.h"

class TComponent;
struct TPageContext;

/// What a stored value makes of a check box.
enum class TBoxState : std::uint8_t {
    Keep,  ///< the box keeps the state it has
    Clear,
    Checked,
};
inline constexpr TBoxState kKeep = TBoxState::Keep;
inline constexpr TBoxState kClear = TBoxState::Clear;
inline constexpr TBoxState kChecked = TBoxState::Checked;

/// How a stored number shows in a check box.
struct TBoxRule {
    struct TCase {
        std::int32_t Value;
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
    bool Restart = false;  ///< Windows must restart before the change takes effect
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
    std::int32_t FirstWhen;  ///< the value that checks the first button; any other checks the second
    TDatum FirstRecords;     ///< while the first button is checked
    TDatum SecondRecords;    ///< while it is not
    bool Restart = false;
};

/// A setting that no other kind of row describes: functions beside the table do its work.
struct TSpecialRow {
    const wchar_t* Control;
    TPlace Value;
    const wchar_t* Rule;  ///< one line for the reader of a reference: how it shows and what it records
    void (*Load)(TPageContext& context, const TSpecialRow& row);
    void (*Record)(TPageContext& context, const TSpecialRow& row, TComponent& sender);
    std::int32_t Parameter = 0;  ///< whatever number the functions share among rows
};

using TRow = std::variant<TCheckBoxRow, TRadioPairRow, TSpecialRow>;

/// The rows of one loader, in the order in which they are loaded.
using TLoader = std::span<const TRow>;

/// Shows the stored value in the row's controls. Called with the window's loading flag set.
void LoadRow(TPageContext& context, const TRow& row);

/// Records what the sender's state means for this row; nothing when the sender is not the row's control.
void RecordRow(TPageContext& context, const TRow& row, TComponent& sender);
