#include "settings/rows.h"

#include "engine/reg_value.h"
#include "settings/page_context.h"
#include "ui/controls.h"

namespace {

TRegRecor RecordAt(const TPlace& place) {
    TRegRecor record;
    record.RootKey = place.Root;
    record.Key = place.Key;
    record.ValueName = place.ValueName;
    return record;
}

/// The stored value, or nothing when the key or the value cannot be read.
std::optional<TRegValue> Stored(const TPageContext& context, const TPlace& place) {
    TRegRecor record = RecordAt(place);
    context.Changes.ReadCurrent(record);
    if (record.ReadResult != TReadStatus::Found) return std::nullopt;
    return std::move(record.Value);
}

void Add(TPageContext& context, const std::wstring& changeName, const TPlace& place, const TDatum& datum) {
    TRegRecor record = RecordAt(place);
    record.Name = changeName;
    switch (datum.Kind) {
        case TDatum::TKind::Dword:
            record.DataType = TRegDataType::Dword;
            record.Value = datum.Number;
            break;
        case TDatum::TKind::Text:
            record.DataType = TRegDataType::String;
            record.Value = std::wstring(datum.Characters);
            break;
        case TDatum::TKind::DeleteValue:
            record.Action = TRegAction::DeleteValue;
            break;
        case TDatum::TKind::DeleteKey:
            record.Action = TRegAction::DeleteKey;
            break;
    }
    context.Changes.Add(record);
}

void Load(TPageContext& context, const TCheckBoxRow& row) {
    auto* box = context.Form.Find<TCheckBox>(row.Control);
    if (box == nullptr) return;
    TBoxState state = row.Shows.Missing;
    if (const auto value = Stored(context, row.Value)) {
        const auto number = AsInteger(*value);
        state =
            row.Shows.When && number == row.Shows.When->Value ? row.Shows.When->Shows : row.Shows.Otherwise;
    }
    if (state != kKeep) box->SetChecked(state == kChecked);
}

void Record(TPageContext& context, const TCheckBoxRow& row, TComponent& sender) {
    if (sender.Name() != row.Control) return;
    const bool checked = static_cast<TCheckBox&>(sender).Checked();
    const auto datum = [checked](const TBoxRecord& records) {
        return checked ? records.Checked : records.Clear;
    };
    Add(context, sender.Name(), row.Value, datum(row.Records));
    if (row.Further) {
        Add(context, sender.Name() + row.Further->Suffix, row.Further->Value, datum(row.Further->Records));
    }
    if (row.Restart) context.RestartNeeded = true;
}

void Load(TPageContext& context, const TRadioPairRow& row) {
    TPairState state = row.Missing;
    if (const auto value = Stored(context, row.Value))
        state = AsInteger(*value) == row.FirstWhen ? TPairState::First : TPairState::Second;
    if (state == TPairState::Keep) return;
    const wchar_t* chosen = state == TPairState::First ? row.First : row.Second;
    if (auto* button = context.Form.Find<TRadioButton>(chosen)) button->SetChecked(true);
}

void Record(TPageContext& context, const TRadioPairRow& row, TComponent& sender) {
    if (sender.Name() != row.First && sender.Name() != row.Second) return;
    const auto* first = context.Form.Find<TRadioButton>(row.First);
    if (first == nullptr) return;
    Add(context, row.ChangeName, row.Value, first->Checked() ? row.FirstRecords : row.SecondRecords);
    if (row.Restart) context.RestartNeeded = true;
}

void Load(TPageContext& context, const TSpecialRow& row) { row.Load(context, row); }

void Record(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    if (sender.Name() == row.Control) row.Record(context, row, sender);
}

}  // namespace

void LoadRow(TPageContext& context, const TRow& row) {
    std::visit([&](const auto& kind) { Load(context, kind); }, row);
}

void RecordRow(TPageContext& context, const TRow& row, TComponent& sender) {
    std::visit([&](const auto& kind) { Record(context, kind, sender); }, row);
}
