#include "settings/page.h"

#include <algorithm>
#include <map>

#include "engine/reg_value.h"
#include "platform/numeric_fields.h"
#include "settings/rights.h"
#include "settings/store.h"
#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/spoken_name.h"
#include "ui/state.h"

namespace {

void Hide(TControl& control) {
    control.SetVisible(false);
    if (control.Kind() == TComponentKind::TabSheet)
        static_cast<TPageControl&>(*control.Parent()).SetTabVisible(static_cast<TTabSheet&>(control), false);
}

/// With the edit and the label that belong to it.
void HideField(TControl& control) {
    control.SetVisible(false);
    if (control.Kind() == TComponentKind::UpDown)
        static_cast<TUpDown&>(control).Associate()->SetVisible(false);
    TControl& label = CaptionedBy(control);
    if (label.Kind() == TComponentKind::Label) label.SetVisible(false);
}

/// Whether the control is that one or lies in it.
bool Holds(const TControl& container, const TControl* control) {
    while (control != nullptr && control != &container) control = control->Parent();
    return control != nullptr;
}

std::set<std::wstring> NamesOf(const TRow& row) {
    const auto names = ControlsOf(row);
    return {names.begin(), names.end()};
}

bool Meet(const std::set<std::wstring>& some, const std::set<std::wstring>& others) {
    return std::ranges::any_of(some, [&](const std::wstring& name) { return others.contains(name); });
}

/// Whether the control lies in the container and is seen wherever that is. A sheet may be out of sight for a while.
bool IsLeftIn(const TControl& container, const TControl& control) {
    const TControl* c = &control;
    while (c != nullptr && c != &container && c->Visible()) c = c->Parent();
    return c == &container;
}

}  // namespace

TPage::TPage(const TPageDefinition& definition, TPageContext& context, TControl& container,
             TNotifyEvent changed)
    : FDefinition(definition), FContext(context), FChanged(std::move(changed)) {
    const TControlDesign design = definition.Design();
    FContext.Form.Build(container, design);
    TControl& root = *container.Children().back();
    FRoot = &root;
    if (root.Kind() == TComponentKind::NotebookPage)
        static_cast<TNotebookPage&>(root).OnCreate = [this](TComponent&) { Fit(); };
    Listen(root);
    for (const TLoader& loader : definition.Loaders)
        for (const TRow& row : loader) ListenToRow(row);
    for (const TPreset& preset : definition.Presets) {
        if (auto* button = FContext.Form.Find<TButton>(preset.Button))
            button->OnClick = [this, &preset](TComponent&) { ApplyPreset(preset); };
    }
}

void TPage::Fit() const {
    HideWhatIsNotOffered();
    HideWhatHasNoRow();
    NameAsThisWindowsDoes();
}

void TPage::Load() {
    const TLoadingScope loading(FContext, FDefinition.ShowsPending);
    if (FBuilt.empty()) TakeDown(*FRoot);
    Fit();
    if (!HasAdministratorRights(FContext.System)) MarkControlsForAllUsers(FContext, FDefinition);
    ApplyLacks(FContext, FDefinition);
    if (FDefinition.Prepare != nullptr && !FDefinition.Prepare(FContext)) return;
    RunLoaders(FDefinition.Loaders, {});
}

void TPage::Reload(const TIsPending& isPending, const std::set<std::wstring>& takenBack) {
    const TLoadingScope loading(FContext, FDefinition.ShowsPending);
    const std::set<std::wstring> left = Left(isPending, takenBack);
    std::set<std::wstring> kept = left;
    for (const TLoader& loader : FDefinition.Loaders)
        for (const TRow& row : loader)
            if (left.contains(ControlsOf(row).front())) kept.merge(TouchedBy(row));
    for (const std::wstring& name : left)  // a number goes where its edit goes
        if (const auto* upDown = FContext.Form.Find<TUpDown>(name);
            upDown != nullptr && upDown->Associate() != nullptr)
            kept.insert(upDown->Associate()->Name());
    Reset(kept);
    ApplyLacks(FContext, FDefinition);
    if (FDefinition.Prepare == nullptr || FDefinition.Prepare(FContext))
        RunLoaders(FDefinition.Loaders, left);
}

std::set<std::wstring> TPage::Left(const TIsPending& isPending,
                                   const std::set<std::wstring>& takenBack) const {
    std::set<std::wstring> shown;
    for (const TLoader& loader : FDefinition.Loaders)
        for (const TRow& row : loader)
            if (LoadedOn(row).Include(FContext.Release)) shown.merge(NamesOf(row));
    for (const wchar_t* name : FDefinition.StartsFromOther) shown.erase(name);
    std::set<std::wstring> left;
    for (const TLoader& loader : FDefinition.Loaders) {
        // A command goes back with the last of what was recorded of it, which other rows of its loader do as well.
        const auto isSome = [&](const auto& is) {
            return std::ranges::any_of(loader, [&](const TRow& row) { return is(NamesOf(row)); });
        };
        const bool isTakenBack =
            isSome([&](const auto& names) { return Meet(names, takenBack); }) &&
            !isSome([&](const auto& names) { return std::ranges::any_of(names, isPending); });
        for (const TRow& row : loader) {
            std::set<std::wstring> names = NamesOf(row);
            const auto* program = std::get_if<TProgramRow>(&row);
            const bool isUsers = (!Meet(names, shown) && !Meet(names, takenBack)) ||
                                 (program != nullptr && !isTakenBack && IsTyped(*program));
            if (isUsers || std::ranges::any_of(names, isPending)) left.merge(names);
        }
    }
    return left;
}

bool TPage::IsTyped(const TProgramRow& row) const {
    const std::wstring& text = FContext.Form.Find<TEdit>(row.Edit)->Text();
    const auto shown = FCommands.find(row.Edit);
    if (shown == FCommands.end() || shown->second == text) return false;
    const auto stored = Stored(FContext, row.Value);
    return !stored || AsText(*stored) != text;
}

void TPage::NoteCommands(const std::set<std::wstring>& left) {
    for (const TLoader& loader : FDefinition.Loaders)
        for (const TRow& row : loader)
            if (const auto* program = std::get_if<TProgramRow>(&row);
                program != nullptr && !left.contains(program->Button))
                FCommands[program->Edit] = FContext.Form.Find<TEdit>(program->Edit)->Text();
}

void TPage::Reset() {
    const TLoadingScope loading(FContext);
    Reset({});
}

void TPage::TakeDown(const TControl& container) {
    for (TControl* control : container.Children()) {
        FBuilt.push_back({control, StateOf(*control), control->Enabled(), control->Visible()});
        TakeDown(*control);
    }
}

void TPage::Reset(const std::set<std::wstring>& kept) {
    for (const TBuilt& built : FBuilt) {
        if (kept.contains(built.Control->Name())) continue;
        SetState(*built.Control, built.State);
        built.Control->SetEnabled(built.IsEnabled);
        // What else comes and goes does so with the Windows that runs.
        if (built.Control->Kind() == TComponentKind::Image) built.Control->SetVisible(built.IsVisible);
    }
}

void TPage::RunLoaders(std::span<const TLoader> loaders, const std::set<std::wstring>& left) {
    for (; !loaders.empty(); loaders = loaders.subspan(1)) {
        try {
            for (const TRow& row : loaders.front())
                if (IsOffered(row) && !left.contains(ControlsOf(row).front())) LoadRow(FContext, row);
        } catch (...) {
            RunLoaders(loaders.subspan(1), left);
            throw;
        }
    }
    ApplyNeeds(FContext, FDefinition);
    NoteCommands(left);
}

void TPage::Changed(TComponent& sender) {
    if (FContext.Loading) return;
    for (const TLoader& loader : FDefinition.Loaders)
        for (const TRow& row : loader) RecordRow(FContext, row, sender);
    ApplyNeeds(FContext, FDefinition);
    FChanged(sender);
}

void TPage::HideWhatIsNotOffered() const {
    for (const TOffer& offer : FDefinition.Offers) {
        TControl& control = *FContext.Form.Find(offer.Control);
        if (!offer.Levels.Include(FContext.Release)) Hide(control);
    }
}

void TPage::HideWhatHasNoRow() const {
    std::map<TControl*, bool> settings;  // whether a row of theirs holds
    std::set<TControl*> containers;
    for (const TLoader& loader : FDefinition.Loaders)
        for (const TRow& row : loader)
            for (const std::wstring& name : ControlsOf(row))
                settings[FContext.Form.Find(name)] |= LevelsOf(row).Include(FContext.Release);
    for (const auto& [control, holds] : settings) {
        if (!holds) HideField(*control);
        for (TControl* c = control->Parent(); c != nullptr; c = c->Parent())
            if (c->Kind() == TComponentKind::GroupBox || c->Kind() == TComponentKind::TabSheet)
                containers.insert(c);
    }
    for (TControl* container : containers) {
        const auto isLeft = [&](const auto& setting) { return IsLeftIn(*container, *setting.first); };
        if (std::ranges::none_of(settings, isLeft)) Hide(*container);
    }
}

void TPage::NameAsThisWindowsDoes() const {
    for (const TLevelCaption& name : FDefinition.LevelCaptions)
        if (name.Levels.Include(FContext.Release))
            FContext.Form.Find(name.Control)->SetCaption(FContext.Captions[name.Caption]);
}

bool TPage::IsOffered(const TRow& row) const {
    const TControl* const control = FContext.Form.Find(ControlsOf(row).front());
    return std::ranges::none_of(FDefinition.Offers, [&](const TOffer& offer) {
        return !offer.Levels.Include(FContext.Release) && Holds(*FContext.Form.Find(offer.Control), control);
    });
}

bool TPage::IsHeld(const std::wstring& control) const {
    bool isOwn = false;
    for (const TLoader& loader : FDefinition.Loaders) {
        for (const TRow& row : loader) {
            if (std::ranges::count(ControlsOf(row), control) == 0) continue;
            if (LevelsOf(row).Include(FContext.Release)) return true;
            isOwn = true;
        }
    }
    return !isOwn;
}

/// Buttons, lists and edits are of many kinds; those that stand for a setting are named by its row.
void TPage::ListenToRow(const TRow& row) {
    const TNotifyEvent changed = [this](TComponent& sender) { Changed(sender); };
    for (const std::wstring& name : ControlsOf(row)) {
        if (auto* button = FContext.Form.Find<TButton>(name)) button->OnClick = changed;
        if (auto* list = FContext.Form.Find<TListView>(name)) list->OnChange = changed;
        auto* edit = FContext.Form.Find<TEdit>(name);
        // The changes of a bounded numeric field come from the field itself.
        if (edit != nullptr && !edit->OnChange) edit->OnChange = changed;
    }
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
            case TComponentKind::UpDown:
                BindNumericField(static_cast<TUpDown&>(*control), changed);
                [[fallthrough]];
            case TComponentKind::TrackBar:
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
        if (control == nullptr || !state.Levels.Include(FContext.Release) || !IsHeld(control->Name()))
            continue;
        SetState(*control, StateFromNumber(*control, state.State));
    }
}
