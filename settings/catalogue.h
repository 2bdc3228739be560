// The catalogue of all settings as a model that can be asked, without a window: what there is, what state it is in, what is
// stored, what each state would write. Asking records nothing and touches nothing. Settings can be changed too, as in the
// window: the changes are pending until they are carried out.
//
// It answers from forms without a native side: they are loaded, changed and record like the window's.
#pragma once

#include <map>
#include <memory>

#include "engine/restart.h"
#include "platform/language.h"
#include "settings/page_model.h"
#include "settings/row_places.h"

/// A control that stands for a setting, or a preset button, which brings others into the states that it stands for. Its
/// texts are in the user's language, and captions are without access keys and the colon at their ends.
struct TSetting {
    struct TLevelName {
        TLevels Levels;
        std::wstring Caption;
    };

    std::wstring Id;       ///< the control's name
    std::wstring Caption;  ///< as this Windows has it: its own, or that of the label or group before it
    std::wstring GeneralCaption;         ///< as those have it that have no other name for it …
    std::vector<TLevelName> LevelNames;  ///< … and the other names
    std::wstring Page;
    std::wstring Sheet;
    std::wstring Group;             ///< empty when it is in none
    std::wstring Explanation;       ///< what its caption does not say: one to three sentences
    std::vector<const TRow*> Rows;  ///< the rows that it records through; none of a preset
    const TPreset* Preset = nullptr;
    TLevels Levels;                     ///< where it is offered
    TRestart Restart = TRestart::None;  ///< before a change takes effect
};

/// A row, with the settings that record through it.
struct TCataloguedRow {
    const TRow* Row;
    std::vector<const TSetting*> Settings;  ///< and what shows a colour, which is no setting of its own
    TLevels Levels;                         ///< where it holds and its first control is not hidden
};

/// A page, or a dialog with settings.
struct TCataloguedPage {
    const TPageDefinition* Definition;
    std::wstring Caption;
    std::vector<TCataloguedRow> Rows;  ///< in the order in which they are loaded
};

/// A setting as it is now.
struct TPresent {
    struct TStored {
        TTarget Target;
        TContent Content;
    };

    TControlState State;
    bool IsOffered = false;       ///< this Windows, as it is set up now, shows it
    bool IsEnabled = false;       ///< it can be changed as it is now
    std::vector<TStored> Stored;  ///< what is stored at each of its places
};

class TTwinControls;

class TCatalogue {
  public:
    /// `language` is null for English. It and `system` outlive the catalogue. For use Change a page that is read prepares
    /// the preferences' file like the window's, and ChangedPreferences can be saved.
    TCatalogue(TSystem& system, const TLanguage* language, TRelease release,
               TScratchUse use = TScratchUse::Ask);
    ~TCatalogue();

    [[nodiscard]] const std::vector<TCataloguedPage>& Pages() const { return FPages; }
    /// Every setting once, page by page, presets behind the other settings of their page.
    [[nodiscard]] const std::vector<const TSetting*>& Settings() const { return FSettings; }
    /// The setting of that name, in any case of the letters; null when there is none.
    [[nodiscard]] const TSetting* Find(std::wstring_view id) const;
    /// The settings that hold all words of the text in any of their texts, names and places; the best first: words count
    /// most in the caption, then in the explanation, then in page, sheet and group, then elsewhere.
    [[nodiscard]] std::vector<const TSetting*> Search(std::wstring_view text) const;

    // Asking for the states of a button, or for what would be written, takes back what is pending.

    /// The states that it can be brought into.
    [[nodiscard]] TStates States(const TSetting& setting);
    /// A page is read when it is first asked for; see Refresh. A fault of its loader leaves what was loaded until then.
    [[nodiscard]] TPresent Present(const TSetting& setting);
    /// The same without what is stored, which takes less.
    [[nodiscard]] TPresent Shown(const TSetting& setting);
    /// What a user's change into the state would leave pending, though the setting be in that state already. Nothing when
    /// the setting has no such state.
    [[nodiscard]] std::vector<TChange> WouldWrite(const TSetting& setting, const TControlState& state);
    /// What a preset brings about on this Windows.
    [[nodiscard]] std::vector<std::pair<const TSetting*, TControlState>> PresetStates(
        const TSetting& preset) const;

    /// With what is pending, and without what is stored; a button has no state here.
    [[nodiscard]] TPresent PendingState(const TSetting& setting);
    /// Why the setting has no effect, or cannot be changed, with what is pending: see settings/needs.h.
    [[nodiscard]] std::wstring ReasonsFor(const TSetting& setting);
    /// Does what a user does who brings the setting into one of its states, though it be in it already, and leaves that
    /// pending.
    void Change(const TSetting& setting, const TControlState& state);
    /// What Apply would carry out.
    [[nodiscard]] TChangeSet Pending() { return OperationsOf(FChanges, ChangedPreferences()); }
    /// The pending changes but for preferences.
    [[nodiscard]] TSysControl& Changes() { return FChanges; }
    /// The preferences when some are pending; null otherwise.
    [[nodiscard]] TFirefoxPrefs* ChangedPreferences();

    /// Takes back what is pending. From now on everything is read anew.
    void Refresh();

  private:
    struct TModel;

    void BuildPage(TModel& model, const TPageDefinition& page, TControl& container);
    void AddPage(TModel& model, TPageModel& page, const std::wstring& caption, TLevels reachable);
    TSetting& AddSetting(TModel& model, TPageModel& page, TControl& control);
    void Explain(TModel& model) const;
    /// The setting's page, loaded.
    TPageModel& Loaded(const TSetting& setting);
    /// Takes back what the page has recorded and shows.
    void Drop(TPageModel& page);
    /// What a user does.
    void Act(const TSetting& setting, const TControlState& state);
    [[nodiscard]] TControl& ControlOf(const TSetting& setting) const;

    TScratchSystem FScratch;
    const TLanguage* FLanguage;
    TSysControl FChanges;
    TFirefoxPrefs FFirefox;
    std::unique_ptr<TModel> FWindow;
    std::unique_ptr<TModel> FDialog;
    std::unique_ptr<TTwinControls> FTwins;  ///< from the first change that stays pending
    std::vector<TCataloguedPage> FPages;
    std::vector<const TSetting*> FSettings;
    std::map<const TSetting*, TPageModel*> FOwners;
};
