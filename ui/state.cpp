#include "ui/state.h"

#include <algorithm>

#include "ui/controls.h"

TControlState StateOf(const TControl& control) {
    switch (control.Kind()) {
        case TComponentKind::CheckBox:
            return static_cast<const TCheckBox&>(control).Checked();
        case TComponentKind::RadioButton:
            return static_cast<const TRadioButton&>(control).Checked();
        case TComponentKind::ComboBox:
            return TItemState{static_cast<const TComboBox&>(control).ItemIndex()};
        case TComponentKind::TrackBar:
        case TComponentKind::UpDown:
            return TNumberState{static_cast<const TRangeControl&>(control).Position()};
        case TComponentKind::Edit:
            return static_cast<const TEdit&>(control).Text();
        case TComponentKind::ColorSwatch:
            return TColorState{static_cast<const TColorSwatch&>(control).Color()};
        case TComponentKind::ListView: {
            const auto& list = static_cast<const TListView&>(control);
            if (list.IsTable()) return {};
            TChecksState checks;
            for (const TListView::TRow& row : list.Rows()) checks.push_back(row.Checked);
            return checks;
        }
        default:
            return {};
    }
}

void SetState(TControl& control, const TControlState& state) {
    if (state.index() != StateOf(control).index()) return;
    switch (control.Kind()) {
        case TComponentKind::CheckBox:
            return static_cast<TCheckBox&>(control).SetChecked(std::get<bool>(state));
        case TComponentKind::RadioButton:
            return static_cast<TRadioButton&>(control).SetChecked(std::get<bool>(state));
        case TComponentKind::ComboBox:
            return static_cast<TComboBox&>(control).SetItemIndex(std::get<TItemState>(state).Index);
        case TComponentKind::TrackBar:
        case TComponentKind::UpDown:
            return static_cast<TRangeControl&>(control).SetPosition(std::get<TNumberState>(state).Number);
        case TComponentKind::Edit:
            return static_cast<TEdit&>(control).SetText(std::get<std::wstring>(state));
        case TComponentKind::ColorSwatch:
            return static_cast<TColorSwatch&>(control).SetColor(std::get<TColorState>(state).Color);
        case TComponentKind::ListView: {
            auto& list = static_cast<TListView&>(control);
            const auto& checks = std::get<TChecksState>(state);
            for (std::size_t i = 0; i < std::min(checks.size(), list.Rows().size()); ++i)
                list.SetRowChecked(i, checks[i]);
            return;
        }
        default:
            return;
    }
}

TControlState StateFromNumber(const TControl& control, int number) {
    const TControlState state = StateOf(control);
    if (std::holds_alternative<bool>(state)) return number != 0;
    if (std::holds_alternative<TItemState>(state)) return TItemState{number};
    if (std::holds_alternative<TNumberState>(state)) return TNumberState{number};
    return {};
}
