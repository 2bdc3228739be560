#include "settings/page_model.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/decimal.h"
#include "platform/text.h"
#include "ui/containers.h"
#include "ui/controls.h"

namespace {

/// The up-down beside an edit that takes a number; null of any other edit.
const TUpDown* UpDownOf(const TControl& edit) {
    for (const TControl* sibling : edit.Parent()->Children()) {
        const auto* upDown = dynamic_cast<const TUpDown*>(sibling);
        if (upDown != nullptr && upDown->Associate() == &edit) return upDown;
    }
    return nullptr;
}

/// The state of an edit that holds this number.
TControlState StateFor(const TControl& control, const TControlState& state) {
    const auto* number = std::get_if<TNumberState>(&state);
    if (number == nullptr || control.Kind() != TComponentKind::Edit) return state;
    return DecimalText(number->Number);
}

/// Presses the button even where other settings disable it: what it does, or shall do in spite of them.
void Press(TButton& button) {
    const bool isEnabled = button.Enabled();
    if (!isEnabled) button.SetEnabled(true);
    button.Click();
    if (!isEnabled) button.SetEnabled(false);
}

}  // namespace

TPageModel::TPageModel(const TPageDefinition& definition, TPageContext& context, TScratchSystem& scratch,
                       TControl& container, TNotifyEvent changed)
    : FDefinition(definition),
      FContext(context),
      FScratch(scratch),
      FPage(definition, context, container, std::move(changed)),
      FRoot(*container.Children().back()) {}

void TPageModel::Load() {
    if (FIsLoaded) return;
    FPage.Reset();  // what loaders leave alone is as it was built
    try {
        FPage.Load();
    } catch (const std::exception&) {
        // Like the window, whose fault log hears of it.
    }
    FIsLoaded = true;
}

const TScratchDialogs& TPageModel::Probe(TButton& button) {
    FScratch.Dialogs = {};
    Press(button);
    return FScratch.Dialogs;
}

TStates TPageModel::StatesOf(TControl& control) {
    switch (control.Kind()) {
        case TComponentKind::CheckBox:
            return {TStateKind::OnOff};
        case TComponentKind::RadioButton:
            return {TStateKind::On};
        case TComponentKind::ComboBox:
            return {TStateKind::Item, static_cast<TComboBox&>(control).Items()};
        case TComponentKind::TrackBar:
        case TComponentKind::UpDown: {
            const auto& range = static_cast<TRangeControl&>(control);
            return {TStateKind::Number, {}, range.Min(), range.Max()};
        }
        case TComponentKind::Edit:
            if (const TUpDown* upDown = UpDownOf(control))
                return {TStateKind::Number, {}, upDown->Min(), upDown->Max()};
            return {TStateKind::Text};
        case TComponentKind::ListView: {
            TStates states{TStateKind::Checks};
            for (const TListView::TRow& row : static_cast<TListView&>(control).Rows())
                states.Items.push_back(row.Cells.front());
            return states;
        }
        case TComponentKind::Button:
            break;
        default:
            return {};
    }
    for (const TPreset& preset : FDefinition.Presets)
        if (control.Name() == preset.Button) return {TStateKind::Press};
    const TScratchDialogs& asked = Probe(static_cast<TButton&>(control));
    if (asked.AskedColor) return {TStateKind::Color};
    if (asked.AskedFile) return {TStateKind::Text};
    return {asked.AskedQuestion ? TStateKind::None : TStateKind::Press};
}

TControlState TPageModel::StateOfSetting(TControl& control) {
    if (control.Kind() == TComponentKind::Button) {
        const bool isPreset = std::ranges::any_of(
            FDefinition.Presets, [&](const TPreset& preset) { return control.Name() == preset.Button; });
        if (isPreset) return {};
        const auto color = Probe(static_cast<TButton&>(control)).AskedColor;
        return color ? TControlState(TColorState{*color}) : TControlState();
    }
    TControlState state = StateOf(control);
    if (control.Kind() != TComponentKind::Edit || UpDownOf(control) == nullptr) return state;
    const auto number = ParseInteger(std::get<std::wstring>(state));
    return number ? TNumberState{*number} : state;
}

bool TPageModel::IsShown(const TControl& control) {
    for (const TControl* c = &control; c != nullptr && c->Kind() != TComponentKind::NotebookPage;
         c = c->Parent()) {
        const bool isSheet = c->Kind() == TComponentKind::TabSheet;
        if (isSheet ? !static_cast<const TTabSheet*>(c)->TabVisible() : !c->Visible()) return false;
    }
    return true;
}

/// Brings the control into some other state, as if it had been loaded so.
void TPageModel::LeaveState(TControl& control, const TControlState& state) {
    const TLoadingScope loading(FContext);
    if (const auto* checked = std::get_if<bool>(&state); checked != nullptr) {
        if (control.Kind() == TComponentKind::CheckBox) return SetState(control, !*checked);
        for (TControl* sibling : control.Parent()->Children())
            if (sibling != &control && sibling->Kind() == TComponentKind::RadioButton)
                SetState(*sibling, true);
    } else if (const auto* item = std::get_if<TItemState>(&state)) {
        SetState(control, TItemState{item->Index == 0 ? 1 : 0});
    } else if (const auto* number = std::get_if<TNumberState>(&state)) {
        const auto& range = static_cast<TRangeControl&>(control);
        SetState(control, TNumberState{number->Number == range.Min() ? range.Max() : range.Min()});
    } else if (const auto* text = std::get_if<std::wstring>(&state)) {
        SetState(control, text->empty() ? std::wstring(L"0") : std::wstring());
    } else if (const auto* checks = std::get_if<TChecksState>(&state)) {
        TChecksState others = *checks;
        if (!others.empty()) others[0] = !others[0];
        SetState(control, others);
    }
}

void TPageModel::Change(TControl& control, const TControlState& state) {
    const TControlState wanted = StateFor(control, state);
    try {
        if (control.Kind() == TComponentKind::Button) {
            FScratch.Dialogs = {};
            if (const auto* color = std::get_if<TColorState>(&state)) FScratch.Dialogs.Color = color->Color;
            if (const auto* file = std::get_if<std::wstring>(&state)) FScratch.Dialogs.File = *file;
            return Press(static_cast<TButton&>(control));
        }
        if (StateOf(control) == wanted) LeaveState(control, wanted);
        auto* edit = control.Kind() == TComponentKind::Edit ? &static_cast<TEdit&>(control) : nullptr;
        if (edit != nullptr) edit->SetFocused(true);
        SetState(control, wanted);
        if (edit != nullptr) edit->SetFocused(false);
    } catch (const std::exception&) {
        // Like the window, whose fault log hears of it; what was recorded until then is recorded.
    }
}
