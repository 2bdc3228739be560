// A page of settings: a form of named controls, and a catalogue that says what each control stands for.
#pragma once

#include <map>
#include <set>

#include "settings/needs.h"
#include "settings/page_context.h"
#include "ui/design.h"
#include "ui/state.h"

/// What a Default or preset button does to one control.
struct TPresetState {
    const wchar_t* Control;
    std::int32_t State;  ///< 1 checked and 0 clear; the item index of a combo box; a position
    TLevels Levels = kEveryLevel;
};

/// A Default or preset button. It only sets control states, of settings that this Windows has; the controls' own events record
/// the changes.
struct TPreset {
    const wchar_t* Button;
    std::span<const TPresetState> States;
};

/// A control, or a group or sheet with all that lies in it, that is offered on some Windows levels only. Elsewhere it is
/// hidden, and what lies in it is not loaded. Controls whose rows hold on some levels only are hidden elsewhere without it,
/// and so are groups and sheets in which no setting is left.
struct TOffer {
    const wchar_t* Control;
    TLevels Levels;
};

/// The caption of a control on those Windows levels that have another name for the same thing.
struct TLevelCaption {
    const wchar_t* Control;
    TLevels Levels;
    TCaption Caption;
};

/// A control of the page, and the one of another page that stands for the same setting.
struct TTwin {
    const wchar_t* Control;
    const wchar_t* Twin;
    /// Of a setting that makes no pending changes: whether the mark is set that its change sets.
    bool (*IsMarked)(const TPageContext& context) = nullptr;
};

/// A page as data.
struct TPageDefinition {
    int Tag;  ///< the number of its notebook page; 0 for what is in no notebook
    TControlDesign (*Design)();
    std::span<const TLoader> Loaders;  ///< in the order in which they run
    std::span<const TPreset> Presets;
    std::span<const TOffer> Offers = {};
    std::span<const TLevelCaption> LevelCaptions = {};
    std::span<const TTwin> Twins = {};
    std::span<const TNeed> Needs = {};  ///< beside those of its rows, for controls that no row enables
    std::span<const TLack> Lacks = {};
    /// Controls that start from another setting's value: to show it again would undo to the eye what was applied.
    TControlNames StartsFromOther = {};
    bool ShowsPending = false;     ///< its loaders show changes of other pages that are not written yet
    bool LoadsEveryVisit = false;  ///< otherwise only the first one
    /// Runs before the loaders, with the loading mark set; they do not run when it answers false.
    bool (*Prepare)(TPageContext& context) = nullptr;
};

/// Runs a page definition on a form.
class TPage {
  public:
    /// Builds the page's controls into the notebook, or what else holds them, and listens to them. `definition` and
    /// `context` outlive the page; `changed` is told, with the control as sender, after the control's change was
    /// recorded.
    TPage(const TPageDefinition& definition, TPageContext& context, TControl& container,
          TNotifyEvent changed);

    [[nodiscard]] const TPageDefinition& Definition() const { return FDefinition; }
    [[nodiscard]] int Tag() const { return FDefinition.Tag; }
    [[nodiscard]] bool LoadsEveryVisit() const { return FDefinition.LoadsEveryVisit; }

    /// Whether something is pending for the control of that name.
    using TIsPending = std::function<bool(const std::wstring& control)>;

    /// Runs the loaders: shows the live system's state in the controls.
    void Load();

    /// Shows the live system's state in the controls for which nothing is pending, as if they were loaded for the first time.
    /// Those that something pending has enabled or disabled stay so. Preferences are read again, and what was set is dropped.
    /// What no loader shows on this Windows, and what the user has typed and no row has recorded, stays as well, unless its
    /// change is among those that were taken back.
    void Reload(const TIsPending& isPending, const std::set<std::wstring>& takenBack);

    /// Brings every control into the state that it had when the page was first loaded. Before that nothing happens.
    void Reset();

    /// The shared handler of the page's controls.
    void Changed(TComponent& sender);

  private:
    struct TBuilt {
        TControl* Control;
        TControlState State;
        bool IsEnabled;
        bool IsVisible;
    };

    void TakeDown(const TControl& container);
    void Reset(const std::set<std::wstring>& kept);
    /// The controls of the rows that a reload leaves alone.
    [[nodiscard]] std::set<std::wstring> Left(const TIsPending& isPending,
                                              const std::set<std::wstring>& takenBack) const;
    /// Whether the row's edit holds what the user has typed, and not what is or was stored.
    [[nodiscard]] bool IsTyped(const TProgramRow& row) const;
    void NoteCommands(const std::set<std::wstring>& left);
    /// A fault ends its loader only.
    void RunLoaders(std::span<const TLoader> loaders, const std::set<std::wstring>& left);
    void Listen(TControl& container);
    void ListenToRow(const TRow& row);
    /// Hides what this Windows has no use for, and names things as it does: when the page is loaded, but also before it gets its
    /// windows, which then costs them nothing.
    void Fit() const;
    void HideWhatIsNotOffered() const;
    void HideWhatHasNoRow() const;
    void NameAsThisWindowsDoes() const;
    [[nodiscard]] bool IsOffered(const TRow& row) const;
    /// Whether a row of the control holds on this Windows. So it is for controls of other pages.
    [[nodiscard]] bool IsHeld(const std::wstring& control) const;
    void ApplyPreset(const TPreset& preset) const;

    const TPageDefinition& FDefinition;
    TPageContext& FContext;
    TNotifyEvent FChanged;
    const TControl* FRoot;
    std::vector<TBuilt> FBuilt;
    std::map<std::wstring, std::wstring> FCommands;  ///< what loaders have shown in edits that do not record
};
