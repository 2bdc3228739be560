#include "settings/rows.h"

#include <algorithm>
#include <utility>

#include "engine/reg_value.h"
#include "settings/page_context.h"
#include "settings/store.h"
#include "ui/controls.h"
#include "ui/decimal.h"

namespace {

void EnableAll(const TPageContext& context, TControlNames names, bool enabled) {
    for (const wchar_t* name : names)
        if (TControl* control = context.Form.Find(name)) control->SetEnabled(enabled);
}

bool SaysNo(const TPageContext& context, const std::optional<TPlace>& policy) {
    return policy && StoredNumber(context, *policy) == 1;
}

void Load(TPageContext& context, const TCheckBoxRow& row) {
    auto* box = context.Form.Find<TCheckBox>(row.Control);
    if (box == nullptr) return;
    TBoxState state = row.Shows.Missing;
    if (const auto value = Stored(context, row.LoadedFrom.value_or(row.Value)))
        state = row.Shows.When && row.Shows.When->Value(*value) ? row.Shows.When->Shows : row.Shows.Otherwise;
    if (SaysNo(context, row.Policy)) state = kClear;
    if (state != kKeep) box->SetChecked(state == kChecked);
    EnableAll(context, row.Enables, box->Checked());
}

void RecordFrom(TPageContext& context, const TCheckBoxRow& row, TComponent& sender) {
    const bool checked = static_cast<TCheckBox&>(sender).Checked();
    const auto datum = [checked](const TBoxRecord& records) {
        return checked ? records.Checked : records.Clear;
    };
    Record(context, sender.Name(), row.Value, datum(row.Records));
    if (row.Further)
        Record(context, sender.Name() + row.Further->Suffix, row.Further->Value, datum(row.Further->Records));
    if (SaysNo(context, row.Policy)) {
        context.RestartNeeded = true;
        RecordNumber(context, sender.Name() + L"1", *row.Policy, checked ? 0 : 1);
    }
    EnableAll(context, row.Enables, checked);
    EnableAll(context, row.EnablesOnClick, checked);
}

void Load(TPageContext& context, const TKeyRow& row) {
    TRegRecor record = RecordAt(row.Value, {});
    context.Changes.ReadCurrent(record);
    // A key without a default value is one, too.
    context.Form.Find<TCheckBox>(row.Control)->SetChecked(record.ReadResult != TReadStatus::KeyUnavailable);
}

void RecordFrom(TPageContext& context, const TKeyRow& row, TComponent& sender) {
    Record(context, sender.Name(), row.Value,
           static_cast<TCheckBox&>(sender).Checked() ? Text(L"") : kDeleteKey);
}

void Load(TPageContext& context, const TRadioPairRow& row) {
    TPairState state = row.Missing;
    if (const auto value = Stored(context, row.Value))
        state = row.FirstWhen(*value) ? TPairState::First : TPairState::Second;
    if (state == TPairState::Keep) return;
    const wchar_t* chosen = state == TPairState::First ? row.First : row.Second;
    if (auto* button = context.Form.Find<TRadioButton>(chosen)) button->SetChecked(true);
}

void RecordFrom(TPageContext& context, const TRadioPairRow& row, TComponent& /*sender*/) {
    const auto* first = context.Form.Find<TRadioButton>(row.First);
    if (first == nullptr) return;
    Record(context, row.ChangeName, row.Value, first->Checked() ? row.FirstRecords : row.SecondRecords);
}

bool Chooses(const TDatum& item, const TRegValue& value) {
    return item.Kind == TDatum::TKind::Text ? AsText(value) == item.Characters
                                            : AsInteger(value) == item.Number;
}

void Load(TPageContext& context, const TChoiceRow& row) {
    int chosen = row.Missing;
    if (const auto value = Stored(context, row.Value)) {
        const auto item = std::find_if(row.Items.begin(), row.Items.end(),
                                       [&](const TDatum& datum) { return Chooses(datum, *value); });
        chosen = item == row.Items.end() ? -1 : static_cast<int>(item - row.Items.begin());
    }
    auto* box = context.Form.Find<TComboBox>(row.Control);
    if (box != nullptr && chosen >= 0) box->SetItemIndex(chosen);
}

void RecordFrom(TPageContext& context, const TChoiceRow& row, TComponent& sender) {
    const auto chosen = static_cast<std::size_t>(static_cast<TComboBox&>(sender).ItemIndex());
    if (chosen < row.Items.size()) Record(context, sender.Name(), row.Value, row.Items[chosen]);
}

void Load(TPageContext& context, const TNumberRow& row) {
    auto* control = context.Form.Find<TRangeControl>(row.Control);
    const auto value = Stored(context, row.Value);
    const auto position = value ? AsInteger(*value) : row.Missing;
    if (control != nullptr && position) control->SetPosition(*position);
}

void RecordFrom(TPageContext& context, const TNumberRow& row, TComponent& sender) {
    const int position = static_cast<TRangeControl&>(sender).Position();
    if (row.Type == TNumberType::Text)
        RecordText(context, sender.Name(), row.Value, DecimalText(position));
    else
        RecordNumber(context, sender.Name(), row.Value, position);
}

void Load(TPageContext& context, const TTextRow& row) {
    auto* edit = context.Form.Find<TEdit>(row.Control);
    if (edit == nullptr) return;
    if (const auto value = Stored(context, row.Value)) {
        edit->SetText(AsText(*value));
    } else if (row.MissingShows != nullptr) {
        if (const auto* other = context.Form.Find<TEdit>(row.MissingShows)) edit->SetText(other->Text());
    }
}

void RecordFrom(TPageContext& context, const TTextRow& row, TComponent& sender) {
    RecordText(context, sender.Name(), row.Value, static_cast<TEdit&>(sender).Text());
}

void RecordInSlot(TPageContext& context, const TComponent& sender, std::uint32_t action, TParameterSlot slot,
                  std::uint32_t value) {
    const bool isParam = slot == TParameterSlot::Param;
    RecordParameter(context, sender.Name(), action, isParam ? value : 0, isParam ? 0 : value);
}

void Load(TPageContext& context, const TParameterSwitchRow& row) {
    const bool on = ReadSwitch(context, row.Get);
    if (auto* box = context.Form.Find<TCheckBox>(row.Control)) box->SetChecked(on);
    if (auto* list = context.Form.Find<TComboBox>(row.Control)) list->SetItemIndex(on ? 1 : 0);
    if (row.Toggles != nullptr) context.Form.Find(row.Toggles)->SetEnabled(on);
}

void RecordFrom(TPageContext& context, const TParameterSwitchRow& row, TComponent& sender) {
    const bool on = sender.Kind() == TComponentKind::CheckBox
                        ? static_cast<TCheckBox&>(sender).Checked()
                        : static_cast<TComboBox&>(sender).ItemIndex() != 0;
    RecordInSlot(context, sender, row.Set, row.Slot, on ? 1 : 0);
    if (row.Toggles == nullptr) return;
    TControl& other = *context.Form.Find(row.Toggles);
    other.SetEnabled(!other.Enabled());
}

void Load(TPageContext& context, const TParameterNumberRow& row) {
    if (auto* control = context.Form.Find<TRangeControl>(row.Control))
        control->SetPosition(static_cast<int>(ReadParameter(context, row.Get)));
}

void RecordFrom(TPageContext& context, const TParameterNumberRow& row, TComponent& sender) {
    const int position = static_cast<TRangeControl&>(sender).Position();
    RecordInSlot(context, sender, row.Set, row.Slot, static_cast<std::uint32_t>(position));
}

/// Marks the changes that are recorded in a scope. Scopes nest: a special row may use another row.
class TRecordingScope {
  public:
    TRecordingScope(TPageContext& context, const std::wstring& setting, bool restartNeeded)
        : FContext(context),
          FOuter(std::exchange(context.Setting, setting)),
          FOuterNeeded(context.RestartNeeded) {
        context.RestartNeeded |= restartNeeded;
    }
    ~TRecordingScope() {
        FContext.Setting = FOuter;
        FContext.RestartNeeded = FOuterNeeded;
    }
    TRecordingScope(const TRecordingScope&) = delete;
    TRecordingScope& operator=(const TRecordingScope&) = delete;

  private:
    TPageContext& FContext;
    std::wstring FOuter;
    bool FOuterNeeded;
};

void Load(TPageContext& context, const TSpecialRow& row) {
    if (row.Load != nullptr) row.Load(context, row);
}

void RecordFrom(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    row.Record(context, row, sender);
}

}  // namespace

std::vector<std::wstring> ControlsOf(const TRow& row) {
    if (const auto* pair = std::get_if<TRadioPairRow>(&row)) return {pair->First, pair->Second};
    if (const auto* special = std::get_if<TSpecialRow>(&row))
        return {special->Controls.begin(), special->Controls.end()};
    return std::visit(
        [](const auto& kind) -> std::vector<std::wstring> {
            if constexpr (requires { kind.Control; }) return {kind.Control};
            return {};
        },
        row);
}

TLevels LevelsOf(const TRow& row) {
    return std::visit(
        [](const auto& kind) {
            if constexpr (requires { kind.Levels; }) return kind.Levels;
            return kEveryLevel;
        },
        row);
}

void LoadRow(TPageContext& context, const TRow& row) {
    if (!LevelsOf(row).Include(context.WindowsLevel)) return;
    std::visit(
        [&](const auto& kind) {
            if (kind.LoadedOn.Include(context.WindowsLevel)) Load(context, kind);
        },
        row);
}

void RecordRow(TPageContext& context, const TRow& row, TComponent& sender) {
    if (!LevelsOf(row).Include(context.WindowsLevel)) return;
    const auto names = ControlsOf(row);
    if (std::find(names.begin(), names.end(), sender.Name()) == names.end()) return;
    std::visit(
        [&](const auto& kind) {
            const TRecordingScope recording(context, sender.Name(), kind.Restart);
            RecordFrom(context, kind, sender);
        },
        row);
}
