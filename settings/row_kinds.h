// What each kind of row does; settings/rows.cpp chooses among them.
#pragma once

#include <utility>

#include "settings/page_context.h"
#include "settings/rows.h"

void Load(TPageContext& context, const TCheckBoxRow& row);
void Load(TPageContext& context, const TKeyRow& row);
void Load(TPageContext& context, const TFieldsRow& row);
void Load(TPageContext& context, const TServiceRow& row);
void Load(TPageContext& context, const TRadioPairRow& row);
void Load(TPageContext& context, const TChoiceRow& row);
void Load(TPageContext& context, const TNumberRow& row);
void Load(TPageContext& context, const TTextRow& row);
void Load(TPageContext& context, const TSwitchRow& row);
void Load(TPageContext& context, const TListsRow& row);
void Load(TPageContext& context, const TColorRow& row);
void Load(TPageContext& context, const TProgramRow& row);
void Load(TPageContext& context, const TSpecialRow& row);

void RecordFrom(TPageContext& context, const TCheckBoxRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TKeyRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TFieldsRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TServiceRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TRadioPairRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TChoiceRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TNumberRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TTextRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TSwitchRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TListsRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TColorRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TProgramRow& row, TComponent& sender);
void RecordFrom(TPageContext& context, const TSpecialRow& row, TComponent& sender);

/// Lets the label repeat the number.
void ShowDigits(const TPageContext& context, const TDigits& digits);

/// Enables or disables the controls that are there.
void EnableAll(const TPageContext& context, TControlNames names, bool enabled);

/// The name under which the row's change is recorded.
[[nodiscard]] inline std::wstring NameOf(const wchar_t* changeName, const wchar_t* control) {
    return changeName != nullptr ? changeName : control;
}

/// Whether the value is what the datum writes.
[[nodiscard]] bool IsWhatWrites(const TDatum& datum, const TRegValue& value);
