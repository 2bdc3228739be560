// Rows of what has more than two states: lists, numbers, texts, colours, programs.
#include <algorithm>
#include <bit>

#include "base/decimal.h"
#include "engine/reg_value.h"
#include "platform/faults.h"
#include "platform/text.h"
#include "settings/row_kinds.h"
#include "settings/store.h"
#include "ui/controls.h"

bool IsWhatWrites(const TDatum& datum, const TRegValue& value) {
    return datum.Kind == TDatum::TKind::Nothing ||
           (datum.Kind == TDatum::TKind::Text ? AsText(value) == datum.Characters
                                              : AsInteger(value) == datum.Number);
}

namespace {

bool HasFurther(const TPageContext& context, const TChoiceRow& row) {
    return row.Further && row.Further->Levels.Include(context.Release);
}

}  // namespace

void Load(TPageContext& context, const TChoiceRow& row) {
    int chosen = row.Missing;
    if (const auto value = Stored(context, row.Value)) {
        const bool hasFurther = HasFurther(context, row);
        const auto further = hasFurther ? Stored(context, row.Further->Value) : std::nullopt;
        const auto isItem = [&](std::size_t item) {
            return IsWhatWrites(row.Items[item], *value) &&
                   (!hasFurther || IsWhatWrites(row.Further->Items[item], further.value_or(TRegValue{})));
        };
        // The first one; but 0 is rather an item's that writes it than one's that deletes the value.
        chosen = -1;
        for (std::size_t item = 0; item < row.Items.size(); ++item) {
            const bool mayBeBetter =
                chosen < 0 || row.Items[static_cast<std::size_t>(chosen)].Kind == TDatum::TKind::DeleteValue;
            if (mayBeBetter && isItem(item)) chosen = static_cast<int>(item);
        }
    }
    auto* box = context.Form.Find<TComboBox>(row.Control);
    if (box != nullptr && chosen >= 0) box->SetItemIndex(chosen);
}

void RecordFrom(TPageContext& context, const TChoiceRow& row, TComponent& sender) {
    const auto chosen = static_cast<std::size_t>(static_cast<TComboBox&>(sender).ItemIndex());
    if (chosen >= row.Items.size()) return;
    const std::wstring name = NameOf(row.ChangeName, row.Control);
    Record(context, name, row.Value, row.Items[chosen]);
    if (HasFurther(context, row))
        Record(context, name + row.Further->Suffix, row.Further->Value, row.Further->Items[chosen]);
}

namespace {

/// The number that a range control or a list shows.
int NumberOf(const TControl& control) {
    return control.Kind() == TComponentKind::ComboBox ? static_cast<const TComboBox&>(control).ItemIndex()
                                                      : static_cast<const TRangeControl&>(control).Position();
}

void SetNumber(TControl& control, int number) {
    if (control.Kind() == TComponentKind::ComboBox)
        static_cast<TComboBox&>(control).SetItemIndex(number);
    else
        static_cast<TRangeControl&>(control).SetPosition(number);
}

void RecordTyped(TPageContext& context, const std::wstring& changeName, const TNumberRow& row) {
    const std::wstring& text = context.Form.Find<TUpDown>(row.Control)->Associate()->Text();
    if (row.Value.Coding == TCoding::Decimal)
        RecordText(context, changeName, row.Value, text);
    else
        RecordNumber(context, changeName, row.Value, ParseInteger(Trim(text)).value_or(0));
}

/// One click of the arrows may come twice, as the edit's change and as theirs, and removing a preference that is gone
/// would leave an empty one.
void RemovePreference(TPageContext& context, const std::wstring& changeName, const TPlace& place) {
    context.FirefoxChanged = true;
    if (Stored(context, place)) RecordText(context, changeName, place, L"");
}

}  // namespace

void ShowDigits(const TPageContext& context, const TDigits& digits) {
    context.Form.Find(digits.Label)->SetCaption(DecimalText(NumberOf(*context.Form.Find(digits.Number))));
}

void Load(TPageContext& context, const TNumberRow& row) {
    TControl* control = context.Form.Find(row.Control);
    if (control == nullptr) return;
    const auto value = Stored(context, row.LoadedFrom == nullptr ? row.Value : *row.LoadedFrom);
    const auto number = value ? AsInteger(*value) : row.Missing;
    if (value && !number && row.NoNumberIsFault) throw EConvertError(AsText(*value));
    if (number) SetNumber(*control, *number);
    if (row.Digits != nullptr) ShowDigits(context, {row.Digits, row.Control});
}

void RecordFrom(TPageContext& context, const TNumberRow& row, TComponent& /*sender*/) {
    const std::wstring base = NameOf(row.ChangeName, row.Control);
    const std::wstring name = base + row.Suffix;
    const int number = NumberOf(*context.Form.Find(row.Control));
    if (row.Source == TNumberSource::Typed)
        RecordTyped(context, name, row);
    else if (row.RemovedAt == number)
        RemovePreference(context, name, row.Value);
    else
        RecordNumber(context, name, row.Value, number);
    if (row.Further) RecordNumber(context, base + row.Further->Suffix, row.Further->Value, number);
    if (row.Digits != nullptr) ShowDigits(context, {row.Digits, row.Control});
}

void Load(TPageContext& context, const TTextRow& row) {
    auto* edit = context.Form.Find<TEdit>(row.Control);
    if (edit == nullptr) return;
    if (const auto value = Stored(context, row.Value)) {
        edit->SetText(AsText(*value));
    } else if (row.MissingClears) {
        edit->SetText({});
    } else if (row.MissingShows != nullptr) {
        if (const auto* other = context.Form.Find<TEdit>(row.MissingShows)) edit->SetText(other->Text());
    }
}

void RecordFrom(TPageContext& context, const TTextRow& row, TComponent& sender) {
    RecordText(context, sender.Name(), row.Value, static_cast<TEdit&>(sender).Text());
}

namespace {

int ItemOf(const TBitsList& list, std::uint32_t number) {
    const std::uint32_t bits = number & list.Mask;
    if (list.Items.empty()) return static_cast<int>(bits >> std::countr_zero(list.Mask));
    const auto item = std::ranges::find(list.Items, bits);
    return item == list.Items.end() ? 0 : static_cast<int>(item - list.Items.begin());
}

/// A list without a choice counts as its first item.
std::uint32_t BitsOf(const TBitsList& list, int item) {
    const auto index = static_cast<std::uint32_t>(std::max(item, 0));
    return list.Items.empty() ? index << std::countr_zero(list.Mask) : list.Items[index];
}

}  // namespace

void Load(TPageContext& context, const TListsRow& row) {
    const std::int32_t stored = StoredNumber(context, row.Value).value_or(row.Missing);
    const auto number = static_cast<std::uint32_t>(stored < row.Least ? row.Missing : stored);
    for (const TBitsList& list : row.Lists)
        context.Form.Find<TComboBox>(list.Control)->SetItemIndex(ItemOf(list, number));
}

void RecordFrom(TPageContext& context, const TListsRow& row, TComponent& /*sender*/) {
    std::uint32_t number = 0;
    for (const TBitsList& list : row.Lists)
        number |= BitsOf(list, context.Form.Find<TComboBox>(list.Control)->ItemIndex());
    RecordNumber(context, row.ChangeName, row.Value, static_cast<std::int32_t>(number));
}

void Load(TPageContext& context, const TColorRow& row) {
    if (const auto color = StoredNumber(context, row.Value))
        context.Form.Find<TColorSwatch>(row.Swatch)->SetColor(static_cast<TColor>(*color));
}

void RecordFrom(TPageContext& context, const TColorRow& row, TComponent& sender) {
    auto& swatch = *context.Form.Find<TColorSwatch>(row.Swatch);
    const auto color = context.System.Dialogs.PickColor(context.Form, swatch.Color());
    if (!color) return;
    swatch.SetColor(*color);
    RecordNumber(context, sender.Name(), row.Value, static_cast<std::int32_t>(*color));
}

void Load(TPageContext& context, const TProgramRow& row) {
    if (const auto command = Stored(context, row.Value))
        context.Form.Find<TEdit>(row.Edit)->SetText(AsText(*command));
}

void RecordFrom(TPageContext& context, const TProgramRow& row, TComponent& sender) {
    const auto path = context.System.Dialogs.OpenFile(
        context.Form, context.Captions[TCaption::ExeFile] + L"(*.exe,*.com,*.bat)|*.exe;*.com;*.bat;|" +
                          context.Captions[TCaption::AllFile] + L"(*.*)|*.*;");
    if (!path) return;
    const std::wstring command = L'"' + *path + L"\" \"%1\"";
    context.Form.Find<TEdit>(row.Edit)->SetText(command);
    RecordText(context, sender.Name(), row.Value, command);
}

void Load(TPageContext& context, const TSpecialRow& row) {
    if (row.Load != nullptr) row.Load(context, row);
}

void RecordFrom(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    row.Record(context, row, sender);
}
