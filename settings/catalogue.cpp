#include "settings/catalogue.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "base/decimal.h"
#include "platform/app_frame.h"
#include "platform/text.h"
#include "settings/category_table.h"
#include "settings/explanations.h"
#include "settings/needs.h"
#include "settings/page_table.h"
#include "settings/shell/desktop_icons.h"
#include "settings/twin_controls.h"
#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/spoken_name.h"

namespace {

bool IsSwatch(const TControl& control) { return control.Kind() == TComponentKind::ColorSwatch; }

/// Buttons but those of presets are pressed to find out what they do.
bool IsPressed(const TSetting& setting, const TControl& control) {
    return control.Kind() == TComponentKind::Button && setting.Preset == nullptr;
}

const TControl* Above(const TControl& control, TComponentKind kind) {
    const TControl* c = control.Parent();
    while (c != nullptr && c->Kind() != kind) c = c->Parent();
    return c;
}

/// Where neither the control nor what it lies in is hidden.
TLevels OfferedOn(const TPageDefinition& page, const TControl& control) {
    TLevels levels = kEveryLevel;
    for (const TControl* c = &control; c != nullptr; c = c->Parent())
        for (const TOffer& offer : page.Offers)
            if (c->Name() == offer.Control) levels = levels & offer.Levels;
    return levels;
}

std::vector<std::wstring> WordsIn(std::wstring_view text) {
    std::vector<std::wstring> words;
    while (!(text = Trim(text)).empty()) {
        const std::size_t end = std::min(text.find(L' '), text.size());
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

std::wstring PlaceText(const TTarget& target) {
    if (const auto* registry = std::get_if<TRegistryTarget>(&target))
        return registry->Key + L'\\' + registry->ValueName;
    if (const auto* service = std::get_if<TServiceTarget>(&target)) return service->Service;
    if (const auto* preference = std::get_if<TPreferenceTarget>(&target)) return preference->QuotedName;
    return {};
}

/// How far behind a setting stands among those that hold all words; nothing when it does not hold them.
std::optional<int> RankOf(const TSetting& setting, const std::vector<std::wstring>& words) {
    std::wstring places = setting.Id;
    for (const TRow* row : setting.Rows)
        for (const TTarget& target : TargetsOf(*row)) places += L'\n' + PlaceText(target);
    const std::wstring texts[] = {setting.Caption, setting.Explanation,
                                  setting.Group + L'\n' + setting.Sheet + L'\n' + setting.Page, places};
    int rank = 0;
    for (const std::wstring& word : words) {
        const auto* text = std::ranges::find_if(
            texts, [&](const std::wstring& each) { return FindText(each, word) != std::wstring::npos; });
        if (text == std::end(texts)) return std::nullopt;
        rank += static_cast<int>(text - std::begin(texts));
    }
    return rank;
}

}  // namespace

/// A form with its pages, and what they work with.
struct TCatalogue::TModel {
    TForm Form;
    TPageContext Context;
    std::vector<std::unique_ptr<TPageModel>> Pages{};
    std::deque<TSetting> Settings{};

    TModel(const wchar_t* name, const wchar_t* className, TSystem& system, TSysControl& changes,
           TFirefoxPrefs& firefox, TRelease release)
        : Form(name, className),
          Context{
              .System = system, .Form = Form, .Changes = changes, .Firefox = firefox, .Release = release} {}
};

TCatalogue::TCatalogue(TSystem& system, const TLanguage* language, TRelease release, TScratchUse use)
    : FScratch(system, use),
      FLanguage(language),
      FChanges(FScratch.System),
      FFirefox(FScratch.System),
      FWindow(std::make_unique<TModel>(L"Quilltune_FormMain", L"TQuilltune_FormMain", FScratch.System,
                                       FChanges, FFirefox, release)),
      FDialog(std::make_unique<TModel>(L"Quilltune_FormFolder", L"TQuilltune_FormFolder", FScratch.System,
                                       FChanges, FFirefox, release)) {
    TForm& window = FWindow->Form;
    window.Build(window, Notebook(L"Notebook_Main", {}));
    FDialog->Form.SetCaption(kDesktopIconsCaption);
    for (const TPageDefinition* page : PageDefinitions())
        BuildPage(*FWindow, *page, *window.Find(L"Notebook_Main"));
    BuildPage(*FDialog, DesktopIcons(), FDialog->Form);
    for (TModel* model : {FWindow.get(), FDialog.get()}) {
        if (FLanguage == nullptr) continue;
        model->Context.Captions.Load(*FLanguage);
        FLanguage->Translate(model->Form);
    }
    for (const TPageLists& page : PagesOfChosenLists()) ChooseFirstItems(*window.Find(DecimalText(page.Tag)));
    for (const TCategoryGroupRow& group : CategoryTable())
        for (const TCategoryItemRow& item : group.Items)
            for (const auto& page : FWindow->Pages)
                if (page->Definition().Tag == item.Tag)
                    AddPage(*FWindow, *page, item.Text ? FWindow->Context.Captions[*item.Text] : item.Caption,
                            item.Text ? item.Levels : kNoLevel);
    AddPage(*FDialog, *FDialog->Pages.front(), FDialog->Form.Caption(), kEveryLevel);
    Explain(*FWindow);
    Explain(*FDialog);
}

TCatalogue::~TCatalogue() = default;

void TCatalogue::BuildPage(TModel& model, const TPageDefinition& page, TControl& container) {
    const auto changed = [this](TComponent& sender) {
        if (FTwins) FTwins->Changed(static_cast<TControl&>(sender));
    };
    model.Pages.push_back(std::make_unique<TPageModel>(page, model.Context, FScratch, container, changed));
}

TSetting& TCatalogue::AddSetting(TModel& model, TPageModel& page, TControl& control) {
    const TPageDefinition& definition = page.Definition();
    const TControl& captioned = CaptionedBy(control);
    TSetting& setting = model.Settings.emplace_back();
    setting.Id = control.Name();
    setting.Caption = setting.GeneralCaption = PlainCaption(captioned.Caption());
    const auto captionOf = [&](const TControl* container) {
        if (container == nullptr) return std::wstring();
        std::wstring caption = container->Caption();
        for (const TLevelCaption& name : definition.LevelCaptions)
            if (container->Name() == name.Control && name.Levels.Include(model.Context.Release))
                caption = model.Context.Captions[name.Caption];
        return PlainCaption(caption);
    };
    setting.Caption = captionOf(&captioned);
    for (const TLevelCaption& name : definition.LevelCaptions)
        if (captioned.Name() == name.Control)
            setting.LevelNames.push_back({name.Levels, PlainCaption(model.Context.Captions[name.Caption])});
    setting.Sheet = captionOf(Above(control, TComponentKind::TabSheet));
    setting.Group = captionOf(Above(control, TComponentKind::GroupBox));
    if (IsSwatch(control)) return setting;
    FSettings.push_back(&setting);
    FOwners.emplace(&setting, &page);
    return setting;
}

void TCatalogue::AddPage(TModel& model, TPageModel& page, const std::wstring& caption, TLevels reachable) {
    const TPageDefinition& definition = page.Definition();
    TCataloguedPage& catalogued = FPages.emplace_back(TCataloguedPage{&definition, caption, {}});
    const std::size_t first = model.Settings.size();
    const auto add = [&](const std::wstring& name, TLevels levels) -> TSetting& {
        auto found =
            std::find_if(model.Settings.begin() + static_cast<std::ptrdiff_t>(first), model.Settings.end(),
                         [&](const TSetting& each) { return each.Id == name; });
        TControl& control = *model.Form.Find(name);
        TSetting& setting = found == model.Settings.end() ? AddSetting(model, page, control) : *found;
        setting.Page = caption;
        setting.Levels = setting.Levels | (levels & reachable & OfferedOn(definition, control));
        return setting;
    };
    for (const TLoader& loader : definition.Loaders) {
        for (const TRow& row : loader) {
            const auto names = ControlsOf(row);
            TCataloguedRow entry{
                &row, {}, LevelsOf(row) & OfferedOn(definition, *model.Form.Find(names.front()))};
            std::vector<TSetting*> own;
            for (const std::wstring& name : names) {
                TSetting& setting = add(name, LevelsOf(row));
                setting.Rows.push_back(&row);
                if (LevelsOf(row).Include(model.Context.Release))
                    setting.Restart = std::max(setting.Restart, RestartOf(row));
                // The caption of a swatch says what the button before it is for.
                if (IsSwatch(*model.Form.Find(name))) own.front()->Caption = setting.Caption;
                own.push_back(&setting);
            }
            entry.Settings.assign(own.begin(), own.end());
            catalogued.Rows.push_back(std::move(entry));
        }
    }
    for (const TPreset& preset : definition.Presets) add(preset.Button, kEveryLevel).Preset = &preset;
}

void TCatalogue::Explain(TModel& model) const {
    std::map<std::wstring_view, std::wstring_view> twins;  // what has one shares its explanation
    for (const auto& page : model.Pages)
        for (const TTwin& twin : page->Definition().Twins) twins.emplace(twin.Control, twin.Twin);
    const std::wstring section = L"Scanner_" + model.Form.Name();
    for (TSetting& setting : model.Settings) {
        const auto twin = twins.find(setting.Id);
        const std::wstring key = std::wstring(twin == twins.end() ? setting.Id : twin->second) + L".Hint";
        setting.Explanation = Explanations().ReadString(section, key, L"");
        if (FLanguage != nullptr)
            setting.Explanation = FLanguage->ReadString(section, key, setting.Explanation);
    }
}

TPageModel& TCatalogue::Loaded(const TSetting& setting) {
    TPageModel& page = *FOwners.at(&setting);
    if (page.IsLoaded()) return page;
    page.Load();
    if (FTwins) FTwins->PageLoaded(page.Definition().Tag);
    return page;
}

TControl& TCatalogue::ControlOf(const TSetting& setting) const {
    return *FOwners.at(&setting)->Context().Form.Find(setting.Id);
}

void TCatalogue::Drop(TPageModel& page) {
    FTwins.reset();
    FChanges.Clear();
    // Pages share the preferences: whichever is asked next must read them again.
    if (std::exchange(page.Context().FirefoxChanged, false)) Refresh();
    page.Forget();
}

const TSetting* TCatalogue::Find(std::wstring_view id) const {
    const auto found =
        std::ranges::find_if(FSettings, [&](const TSetting* setting) { return SameText(setting->Id, id); });
    return found == FSettings.end() ? nullptr : *found;
}

std::vector<const TSetting*> TCatalogue::Search(std::wstring_view text) const {
    std::vector<std::wstring> words = WordsIn(text);
    for (std::wstring& word : words)  // a place is known without its root
        if (FindText(word, L"HKEY_") == 0 && word.find(L'\\') != std::wstring::npos)
            word.erase(0, word.find(L'\\') + 1);
    std::vector<std::pair<int, const TSetting*>> ranked;
    for (const TSetting* setting : FSettings)
        if (const auto rank = RankOf(*setting, words)) ranked.emplace_back(*rank, setting);
    std::ranges::stable_sort(ranked, {}, &std::pair<int, const TSetting*>::first);
    std::vector<const TSetting*> found(ranked.size());
    std::ranges::transform(ranked, found.begin(), &std::pair<int, const TSetting*>::second);
    return found;
}

TStates TCatalogue::States(const TSetting& setting) {
    TPageModel& page = Loaded(setting);
    TControl& control = ControlOf(setting);
    TStates states = page.StatesOf(control);
    if (IsPressed(setting, control)) Drop(page);
    return states;
}

TPresent TCatalogue::PendingState(const TSetting& setting) {
    TPageModel& page = Loaded(setting);
    TControl& control = ControlOf(setting);
    return {.State = IsPressed(setting, control) ? TControlState() : page.StateOfSetting(control),
            .IsOffered = TPageModel::IsShown(control) && setting.Levels.Include(page.Context().Release),
            .IsEnabled = control.Enabled()};
}

std::wstring TCatalogue::ReasonsFor(const TSetting& setting) {
    return ::ReasonsFor(Loaded(setting).Context(), setting.Id);
}

TPresent TCatalogue::Shown(const TSetting& setting) {
    TPresent present = PendingState(setting);
    TPageModel& page = Loaded(setting);
    TControl& control = ControlOf(setting);
    if (IsPressed(setting, control)) {
        present.State = page.StateOfSetting(control);
        Drop(page);
    }
    return present;
}

TPresent TCatalogue::Present(const TSetting& setting) {
    TPresent present = Shown(setting);
    const TRelease release = Loaded(setting).Context().Release;
    for (const TRow* row : setting.Rows) {
        if (!LevelsOf(*row).Include(release)) continue;
        for (const TTarget& target : TargetsOf(*row))
            present.Stored.push_back({target, ContentOf(FScratch.System, target, &FFirefox)});
    }
    return present;
}

std::vector<TChange> TCatalogue::WouldWrite(const TSetting& setting, const TControlState& state) {
    if (!States(setting).Allow(state)) return {};
    FTwins.reset();
    Act(setting, state);
    auto changes = PendingChanges(FScratch.System, FChanges, ChangedPreferences());
    Drop(*FOwners.at(&setting));
    for (const auto& [other, unused] : PresetStates(setting)) FOwners.at(other)->Forget();
    return changes;
}

void TCatalogue::Change(const TSetting& setting, const TControlState& state) {
    if (!FTwins) {
        FTwins = std::make_unique<TTwinControls>(FWindow->Context);
        for (const auto& page : FWindow->Pages)
            if (page->IsLoaded()) FTwins->PageLoaded(page->Definition().Tag);
    }
    Act(setting, state);
}

void TCatalogue::Act(const TSetting& setting, const TControlState& state) {
    TPageModel& page = Loaded(setting);
    // A preset may reach controls of other pages.
    for (const auto& [other, unused] : PresetStates(setting)) Loaded(*other);
    page.Change(ControlOf(setting), state);
}

TFirefoxPrefs* TCatalogue::ChangedPreferences() {
    return FWindow->Context.FirefoxChanged ? &FFirefox : nullptr;
}

std::vector<std::pair<const TSetting*, TControlState>> TCatalogue::PresetStates(
    const TSetting& preset) const {
    std::vector<std::pair<const TSetting*, TControlState>> states;
    if (preset.Preset == nullptr) return states;
    const TPageContext& context = FOwners.at(&preset)->Context();
    for (const TPresetState& state : preset.Preset->States)
        if (const TSetting* setting = Find(state.Control);
            setting != nullptr && state.Levels.Include(context.Release) &&
            std::ranges::any_of(setting->Rows,
                                [&](const TRow* row) { return LevelsOf(*row).Include(context.Release); }))
            states.emplace_back(setting, StateFromNumber(ControlOf(*setting), state.State));
    return states;
}

void TCatalogue::Refresh() {
    FTwins.reset();
    FChanges.Clear();
    FWindow->Context.FirefoxChanged = false;
    for (const auto& [setting, page] : FOwners) page->Forget();
}
