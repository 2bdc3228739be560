// Rows of what is on or off: boxes, pairs of radio buttons, switches with an amount.
#include <algorithm>

#include "engine/reg_value.h"
#include "platform/service_control.h"
#include "settings/row_kinds.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

/// What the value makes of the box.
TBoxState Shown(const TBoxRule& rule, const std::optional<TRegValue>& value) {
    if (!value) return rule.Missing;
    return rule.When && rule.When->Value(*value) ? rule.When->Shows : rule.Otherwise;
}

bool SaysNo(const TPageContext& context, const wchar_t* policy) {
    return policy != nullptr && StoredNumber(context, ExplorerPolicy(policy)) == 1;
}

bool IsChecked(const TComponent& box) { return static_cast<const TCheckBox&>(box).Checked(); }

const TDatum& DatumOf(const TBoxRecord& records, bool checked) {
    return checked ? records.Checked : records.Clear;
}

}  // namespace

void EnableAll(const TPageContext& context, TControlNames names, bool enabled) {
    for (const wchar_t* name : names)
        if (TControl* control = context.Form.Find(name)) control->SetEnabled(enabled);
}

void Load(TPageContext& context, const TCheckBoxRow& row) {
    auto* box = context.Form.Find<TCheckBox>(row.Control);
    if (box == nullptr) return;
    const TBoxState state =
        SaysNo(context, row.Policy)
            ? kClear
            : Shown(row.Shows, Stored(context, row.LoadedFrom == nullptr ? row.Value : *row.LoadedFrom));
    if (state != kKeep) box->SetChecked(state == kChecked);
    EnableAll(context, row.Enables, box->Checked());
    if (row.Toggles != nullptr) context.Form.Find(row.Toggles)->SetEnabled(box->Checked());
}

void RecordFrom(TPageContext& context, const TCheckBoxRow& row, TComponent& sender) {
    const bool checked = IsChecked(sender);
    const std::wstring name = NameOf(row.ChangeName, row.Control);
    const bool isMissing = row.RecordsWhenMissing != nullptr && !Stored(context, row.Value);
    Record(context, name, row.Value, isMissing ? *row.RecordsWhenMissing : DatumOf(row.Records, checked));
    for (const TBoxFurther& further : row.Further)
        Record(context, name + further.Suffix, further.Value, DatumOf(further.Records, checked));
    if (SaysNo(context, row.Policy)) {
        context.RestartNeeded = TRestart::Windows;
        RecordNumber(context, name + L"1", ExplorerPolicy(row.Policy), checked ? 0 : 1);
    }
    EnableAll(context, row.Enables, checked);
    if (row.OnClick != nullptr) {
        EnableAll(context, row.OnClick->Enables, checked);
        if (row.OnClick->Digits != nullptr) ShowDigits(context, *row.OnClick->Digits);
    }
    if (row.Toggles != nullptr) {
        TControl& other = *context.Form.Find(row.Toggles);
        other.SetEnabled(!other.Enabled());
    }
}

void Load(TPageContext& context, const TKeyRow& row) {
    TRegRecor record = RecordAt(row.Value, {});
    context.Changes.ReadCurrent(record);
    // A key without a default value is one, too.
    const bool exists = record.ReadResult != TReadStatus::KeyUnavailable;
    context.Form.Find<TCheckBox>(row.Control)->SetChecked(exists == row.WhileChecked);
}

void RecordFrom(TPageContext& context, const TKeyRow& row, TComponent& sender) {
    Record(context, sender.Name(), row.Value, IsChecked(sender) == row.WhileChecked ? Text(L"") : kDeleteKey);
}

namespace {

TEdit& EditOf(const TPageContext& context, const TBoxField& field) {
    return *context.Form.Find<TEdit>(field.Edit);
}

void EnableFields(const TPageContext& context, const TFieldsRow& row, bool enabled) {
    for (const TBoxField& field : row.Fields) EditOf(context, field).SetEnabled(enabled);
}

/// Deletes the value. If a write is recorded under that name already, it remains a write, and of `text`.
void RecordFieldDeletion(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                         const std::wstring& text) {
    TRegRecor record = RecordAt(place, changeName);
    record.Action = TRegAction::DeleteValue;
    record.Value = text;
    AddChange(context, std::move(record));
}

}  // namespace

void Load(TPageContext& context, const TFieldsRow& row) {
    const TBoxState state = Shown(row.Shows, Stored(context, row.Value));
    context.Form.Find<TCheckBox>(row.Control)->SetChecked(state == kChecked);
    EnableFields(context, row, state == kChecked);
}

void RecordFrom(TPageContext& context, const TFieldsRow& row, TComponent& sender) {
    const bool checked = IsChecked(sender);
    EnableFields(context, row, checked);
    if (row.Records) Record(context, sender.Name(), row.Value, DatumOf(*row.Records, checked));
    for (const TBoxField& field : row.Fields) {
        const std::wstring name = sender.Name() + field.Suffix;
        const std::wstring& text = EditOf(context, field).Text();
        if (checked)
            RecordText(context, name, field.Value, text);
        else
            RecordFieldDeletion(context, name, field.Value,
                                field.Replaces == nullptr ? text : field.Replaces);
    }
}

void Load(TPageContext& context, const TServiceRow& row) {
    auto& box = *context.Form.Find<TCheckBox>(row.Control);
    box.SetChecked(QueryServiceRunning(context.System, row.Value.ValueName) == TServiceAnswer::Running);
    EnableAll(context, row.Enables, box.Enabled() && box.Checked());
}

void RecordFrom(TPageContext& context, const TServiceRow& row, TComponent& sender) {
    const bool checked = IsChecked(sender);
    context.Changes.Switch(
        {.Service = row.Value.ValueName, .Order = row.Order, .On = checked, .Setting = context.Setting});
    EnableAll(context, row.Enables, checked);
}

namespace {

void ShowPicture(const TPageContext& context, const wchar_t* picture, bool visible) {
    if (picture != nullptr) context.Form.Find(picture)->SetVisible(visible);
}

void ShowPictures(const TPageContext& context, const TRadioPairRow& row, bool first) {
    ShowPicture(context, row.FirstShows, first);
    ShowPicture(context, row.SecondShows, !first);
}

}  // namespace

void Load(TPageContext& context, const TRadioPairRow& row) {
    TPairState state = row.Missing;
    if (const auto value = Stored(context, row.Value))
        state = row.FirstWhen(*value) ? TPairState::First : TPairState::Second;
    if (state == TPairState::Keep) return;
    const bool first = state == TPairState::First;
    if (auto* button = context.Form.Find<TRadioButton>(first ? row.First : row.Second))
        button->SetChecked(true);
    ShowPictures(context, row, first);
}

void RecordFrom(TPageContext& context, const TRadioPairRow& row, TComponent& /*sender*/) {
    const auto* first = context.Form.Find<TRadioButton>(row.First);
    if (first == nullptr) return;
    Record(context, row.ChangeName, row.Value, first->Checked() ? row.FirstRecords : row.SecondRecords);
    ShowPictures(context, row, first->Checked());
}

namespace {

/// Checks the box; of two radio buttons the one that stands for it.
void ShowSwitch(const TPageContext& context, const TSwitchRow& row, bool on) {
    if (row.Off == nullptr)
        context.Form.Find<TCheckBox>(row.On)->SetChecked(on);
    else
        context.Form.Find<TRadioButton>(on ? row.On : row.Off)->SetChecked(true);
}

bool IsOn(const TPageContext& context, const TSwitchRow& row) {
    return row.Off == nullptr ? IsChecked(*context.Form.Find(row.On))
                              : context.Form.Find<TRadioButton>(row.On)->Checked();
}

int ItemOf(const TSwitchRow& row, const std::optional<TRegValue>& value) {
    for (std::size_t i = 0; value && i < row.Items.size(); ++i)
        if (IsWhatWrites(row.Items[i], *value)) return static_cast<int>(i);
    return row.OtherItem;
}

void ShowItem(const TPageContext& context, const TSwitchRow& row, int item) {
    if (item < 0) return;
    if (auto* list = context.Form.Find<TComboBox>(row.Amount.front())) return list->SetItemIndex(item);
    context.Form.Find<TRadioButton>(row.Amount[static_cast<std::size_t>(item)])->SetChecked(true);
}

int ChosenItem(const TPageContext& context, const TSwitchRow& row) {
    if (const auto* list = context.Form.Find<TComboBox>(row.Amount.front())) return list->ItemIndex();
    return context.Form.Find<TRadioButton>(row.Amount.front())->Checked() ? 0 : 1;
}

}  // namespace

void Load(TPageContext& context, const TSwitchRow& row) {
    const auto value = Stored(context, row.Value);
    const bool isKept = !value && row.Missing == kKeep;
    const bool on = isKept ? IsOn(context, row) : value ? !row.OffWhen(*value) : row.Missing == kChecked;
    if (!isKept) ShowSwitch(context, row, on);
    EnableAll(context, row.Enables, on);
    if (isKept) return;
    auto* range = context.Form.Find<TRangeControl>(row.Amount.front());
    if (range == nullptr) return ShowItem(context, row, ItemOf(row, value));
    if (on && value) range->SetPosition(AsInteger(*value).value_or(range->Position()));
}

void RecordFrom(TPageContext& context, const TSwitchRow& row, TComponent& /*sender*/) {
    const std::wstring name = NameOf(row.ChangeName, row.On);
    const bool on = IsOn(context, row);
    EnableAll(context, row.Enables, on);
    if (!on) return Record(context, name, row.Value, row.OffRecords);
    if (const auto* range = context.Form.Find<TRangeControl>(row.Amount.front()))
        return RecordNumber(context, name, row.Value, range->Position());
    const auto item = static_cast<std::size_t>(ChosenItem(context, row));
    if (item < row.Items.size()) Record(context, name, row.Value, row.Items[item]);
}
