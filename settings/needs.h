// What a setting needs to have an effect: a state of another one, or something that this computer may lack.
#pragma once

#include "settings/captions.h"
#include "settings/rows.h"

struct TPageContext;
struct TPageDefinition;

/// Controls that have an effect only in some state of another control of their page.
struct TNeed {
    TControlNames Controls;
    const wchar_t* Of;
    std::int32_t State = 1;  ///< of that control: 1 checked and 0 clear; an item of a list
    bool IsNot = false;      ///< they need any state but this one
    bool Disables = true;    ///< otherwise they can be changed all the same
    TLevels Levels = kEveryLevel;
};

/// A control that is disabled where something is not there.
struct TLack {
    const wchar_t* Control;
    bool (*IsThere)(const TPageContext& context);
    TCaption Reason;  ///< a sentence
};

/// What rows that enable other controls need for these.
[[nodiscard]] std::vector<TNeed> NeedsOf(const TRow& row);

[[nodiscard]] bool IsMet(const TPageContext& context, const TNeed& need);

/// Disables the page's controls whose needs are not met, and enables the others of them.
void ApplyNeeds(const TPageContext& context, const TPageDefinition& page);

/// Disables what this computer has no use for. Before the loaders run: some of them ask whether a control is enabled.
void ApplyLacks(const TPageContext& context, const TPageDefinition& page);

/// Why the control's setting has no effect, or cannot be changed, as things are: sentences in the user's language. Its page
/// is loaded. Empty when it has an effect.
[[nodiscard]] std::wstring ReasonsFor(const TPageContext& context, const std::wstring& control);
