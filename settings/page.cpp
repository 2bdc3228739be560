#include "settings/page.h"

#include "platform/numeric_fields.h"
#include "ui/controls.h"

TPage::TPage(const TPageDefinition& definition, TPageContext& context, TControl& notebook,
             std::function<void()> changed)
    : FDefinition(definition), FContext(context), FChanged(std::move(changed)) {
    FContext.Form.Build(notebook, definition.Design());
    Listen(*FContext.Form.Find(std::to_wstring(definition.Tag)));
    BindNumericFields(FContext.Form, definition.SharedHandler,
                      [this](TComponent& sender) { Changed(sender); });
    for (const TPreset& preset : definition.Presets) {
        if (auto* button = FContext.Form.Find<TButton>(preset.Button))
            button->OnClick = [this, &preset](TComponent&) { ApplyPreset(preset); };
    }
}

void TPage::Load() {
    const TLoadingScope loading(FContext);
    for (const TLoader& loader : FDefinition.Loaders)
        for (const TRow& row : loader) LoadRow(FContext, row);
}

void TPage::Changed(TComponent& sender) {
    if (FContext.Loading) return;
    for (const TLoader& loader : FDefinition.Loaders)
        for (const TRow& row : loader) RecordRow(FContext, row, sender);
    FChanged();
}

void TPage::Listen(TControl& container) {
    const TNotifyEvent changed = [this](TComponent& sender) { Changed(sender); };
    for (TControl* control : container.Children()) {
        switch (control->Kind()) {
            case TComponentKind::CheckBox:
                static_cast<TCheckBox*>(control)->OnClick = changed;
                break;
            case TComponentKind::RadioButton:
                static_cast<TRadioButton*>(control)->OnClick = changed;
                break;
            case TComponentKind::ComboBox:
                static_cast<TComboBox*>(control)->OnChange = changed;
                break;
            case TComponentKind::TrackBar:
            case TComponentKind::UpDown:
                static_cast<TRangeControl*>(control)->OnChange = changed;
                break;
            default:
                Listen(*control);
                break;
        }
    }
}

void TPage::ApplyPreset(const TPreset& preset) const {
    for (const TPresetState& state : preset.States) {
        TControl* control = FContext.Form.Find(state.Control);
        if (control == nullptr) continue;
        switch (control->Kind()) {
            case TComponentKind::CheckBox:
                static_cast<TCheckBox*>(control)->SetChecked(state.State != 0);
                break;
            case TComponentKind::RadioButton:
                static_cast<TRadioButton*>(control)->SetChecked(state.State != 0);
                break;
            case TComponentKind::ComboBox:
                static_cast<TComboBox*>(control)->SetItemIndex(state.State);
                break;
            case TComponentKind::TrackBar:
            case TComponentKind::UpDown:
                static_cast<TRangeControl*>(control)->SetPosition(state.State);
                break;
            default:
                break;
        }
    }
}
