// Brings settings into states: everything is checked on a catalogue that only asks, then done on one that writes. What is in
// its state already is left alone, as in the window.
#include <algorithm>
#include <cstdlib>
#include <map>

#include "app/history.h"
#include "console/outcome_words.h"
#include "engine/carry_out.h"
#include "platform/text.h"
#include "settings/row_places.h"
#include "settings/tell_explorer.h"

namespace {

/// A word of the command line.
struct TAssignment {
    std::wstring Id;
    std::wstring State;
};

/// The changes on one release of Windows, checked, in an order in which each setting can be changed when its turn comes.
struct TPlan {
    struct TStep {
        std::wstring Id;
        TControlState State;
        bool CanBeSet = true;   ///< otherwise the setting can only be in that state
        bool IsStored = false;  ///< of a button that is given a color or a file: that is stored already
    };

    TRelease Release{};
    std::vector<TStep> Steps{};
    std::vector<TChange> Changes{};
};

TAssignment Split(const TTask& task, const std::wstring& word) {
    const std::size_t equals = word.find(L'=');
    if (equals == std::wstring::npos) throw TWrongUsage{task.Texts(TText::NoAssignment, {word})};
    return {word.substr(0, equals), word.substr(equals + 1)};
}

/// This Windows or, of a setting that it does not have, the nearest one that has it.
TRelease ReleaseFor(const TTask& task, const TSetting& setting) {
    if (!task.Force || setting.Levels.IsEmpty() || setting.Levels.Include(task.Release)) return task.Release;
    constexpr TRelease kForUnknown = 7;
    const TRelease wanted = task.Release.Level() == 0 ? kForUnknown : task.Release;
    const auto distanceOf = [&](TRelease release) {
        const auto between = [](std::size_t a, std::size_t b) { return a < b ? b - a : a - b; };
        return std::pair(std::abs(wanted.Level() - release.Level()),
                         between(wanted.Index(), release.Index()));
    };
    std::optional<TRelease> nearest;
    for (std::size_t i = 0; i < kReleaseCount; ++i) {
        const TRelease release = TRelease::At(i);
        if (setting.Levels.Include(release) && (!nearest || distanceOf(release) < distanceOf(*nearest)))
            nearest = release;
    }
    return *nearest;
}

TWrongUsage WrongState(const TTask& task, const TSetting& setting, const TStates& states,
                       const std::wstring& words) {
    std::wstring allowed;
    for (const std::wstring& each : AllowedWords(states)) allowed += (allowed.empty() ? L"" : L", ") + each;
    return {task.Texts(TText::WrongState, {setting.Id, words, allowed})};
}

TControlState StateFor(const TTask& task, TCatalogue& catalogue, const TSetting& setting,
                       const std::wstring& words) {
    const TStates states = catalogue.States(setting);
    if (states.Kind == TStateKind::None) throw TWrongUsage{task.Texts(TText::WindowOnly, {setting.Id})};
    if (const auto state = ParseState(states, words)) return *state;
    // What only another setting's change brings about it may be in.
    if (states.Kind == TStateKind::On && SameText(words, WordsOf(states, false))) return false;
    if (states.Kind == TStateKind::Item && words == WordsOf(states, TItemState{-1})) return TItemState{-1};
    throw WrongState(task, setting, states, words);
}

/// Of a button that is given what it would ask for: whether that is stored. Other buttons can always be pressed.
bool IsStored(TCatalogue& catalogue, const TSetting& setting, const TControlState& state) {
    if (catalogue.PendingState(setting).State != TControlState() || state == TControlState()) return false;
    const auto changes = catalogue.WouldWrite(setting, state);
    return !changes.empty() &&
           std::ranges::all_of(changes, [](const TChange& change) { return change.Before == change.After; });
}

TPlan::TStep StepFor(const TTask& task, TCatalogue& catalogue, const TSetting& setting,
                     const std::wstring& words) {
    TPlan::TStep step{setting.Id, StateFor(task, catalogue, setting, words)};
    step.CanBeSet = catalogue.States(setting).Allow(step.State);
    step.IsStored = IsStored(catalogue, setting, step.State);
    return step;
}

bool IsIn(TCatalogue& catalogue, const TPlan::TStep& step) {
    if (step.State == TControlState()) return false;
    return step.IsStored || catalogue.PendingState(*catalogue.Find(step.Id)).State == step.State;
}

/// Why the setting cannot be changed, in a line.
std::wstring Refusal(const TTask& task, TCatalogue& catalogue, const TPlan::TStep& step) {
    const TSetting& setting = *catalogue.Find(step.Id);
    if (!step.CanBeSet) {
        const TStates states = catalogue.States(setting);
        return WrongState(task, setting, states, WordsOf(states, step.State)).Message;
    }
    if (!catalogue.PendingState(setting).IsOffered) return task.Texts(TText::NotOfferedForce, {setting.Id});
    const std::wstring reasons = catalogue.ReasonsFor(setting);
    return task.Texts(TText::NotEnabledForce, {setting.Id}) + (reasons.empty() ? L"" : L" ") + reasons;
}

/// Makes the changes on a catalogue that only asks.
void Check(const TTask& task, TCatalogue& catalogue, std::vector<TPlan::TStep> waiting, TPlan& plan) {
    // A setting may wait for another one that enables it, wherever that stands on the command line.
    while (!waiting.empty()) {
        const auto next = std::ranges::find_if(waiting, [&](const TPlan::TStep& step) {
            const TSetting& setting = *catalogue.Find(step.Id);
            const TPresent present = catalogue.PendingState(setting);
            const bool isIn = IsIn(catalogue, step);
            if (!step.CanBeSet && !isIn) return false;
            return task.Force || (present.IsOffered && (present.IsEnabled || isIn));
        });
        if (next == waiting.end()) throw TWrongUsage{Refusal(task, catalogue, waiting.front())};
        const TSetting& setting = *catalogue.Find(next->Id);
        if (!IsIn(catalogue, *next)) {
            catalogue.Change(setting, next->State);
            plan.Steps.push_back(std::move(*next));
        }
        waiting.erase(next);
    }
    for (const TChange& change :
         ChangesOf(task.System, catalogue.Pending(), catalogue.ChangedPreferences())) {
        // Two pages may have recorded the same.
        const bool isRepeated = std::ranges::any_of(plan.Changes, [&](const TChange& earlier) {
            return earlier.Target == change.Target && earlier.IsOverwritten == change.IsOverwritten &&
                   earlier.After == change.After;
        });
        if (!isRepeated) plan.Changes.push_back(change);
    }
}

std::vector<TPlan> PlansFor(TTask& task) {
    std::map<std::size_t, std::vector<TAssignment>> byRelease;
    for (const std::wstring& word : task.Words) {
        TAssignment assignment = Split(task, word);
        const TSetting& setting = task.Setting(assignment.Id);
        assignment.Id = setting.Id;
        byRelease[ReleaseFor(task, setting).Index()].push_back(std::move(assignment));
    }
    std::vector<TPlan> plans;
    for (const auto& [index, assignments] : byRelease) {
        const TRelease release = TRelease::At(index);
        TCatalogue catalogue(task.System, &task.Language(), release);
        std::vector<TPlan::TStep> steps;
        for (const TAssignment& each : assignments)
            steps.push_back(StepFor(task, catalogue, *catalogue.Find(each.Id), each.State));
        // A Default button may change what is stored for others.
        if (std::ranges::count(steps, TControlState(), &TPlan::TStep::State) != 0)
            for (TPlan::TStep& step : steps) step.IsStored = false;
        plans.push_back({.Release = release});
        Check(task, catalogue, std::move(steps), plans.back());
    }
    return plans;
}

/// The desktop builds its icons anew when associations change.
bool ChangesDesktopIcons(const TCatalogue& catalogue, const TPlan& plan) {
    const auto isAmong = [&](const TSetting* setting) {
        return std::ranges::count(plan.Steps, setting->Id, &TPlan::TStep::Id) != 0;
    };
    for (const TCataloguedPage& page : catalogue.Pages())
        for (const TCataloguedRow& row : page.Rows)
            if (page.Definition->Tag == 0 && std::ranges::any_of(row.Settings, isAmong)) return true;
    return false;
}

/// Whether there is now what the change was to leave.
bool IsMade(const TTask& task, const TChange& change, const TPreferenceStore& preferences) {
    const TContent now = ContentOf(task.System, change.Target, &preferences);
    // Windows may keep a parameter in a form of its own, and need not tell it.
    if (std::holds_alternative<TParameterTarget>(change.Target))
        return now != change.Before || change.Before == change.After || now == TContent(TParameterContent());
    return now == change.After;
}

void SavePreferences(TTask& task, const TCatalogue& catalogue, const TPlan& plan,
                     TFirefoxPrefs& preferences) {
    if (preferences.SaveFirefoxPrefs())
        return task.Console.Complain(task.Captions()[TCaption::RestartFirefox]);
    // There is no profile to save to.
    for (const TPlan::TStep& step : plan.Steps)
        for (const TRow* row : catalogue.Find(step.Id)->Rows)
            for (const TTarget& target : TargetsOf(*row))
                if (std::holds_alternative<TPreferenceTarget>(target)) FailAt(task, target);
}

/// Adds a record of each change to the list.
void CarryOut(TTask& task, const TPlan& plan, TList& list) {
    TCatalogue catalogue(task.System, &task.Language(), plan.Release, TScratchUse::Change);
    // As in the window, where pages are read before anything is changed: to read the preferences drops changes.
    for (const TPlan::TStep& step : plan.Steps) (void)catalogue.PendingState(*catalogue.Find(step.Id));
    for (const TPlan::TStep& step : plan.Steps) catalogue.Change(*catalogue.Find(step.Id), step.State);

    TFirefoxPrefs* preferences = catalogue.ChangedPreferences();
    TRecordedApply record(task.System, catalogue.Pending(), preferences);
    TWritten written;
    Try(task, [&] { record.Begin(); });
    Try(task, [&] { written = CarryOut(catalogue.Changes()); });
    Try(task, [&] { record.Supplement(); });
    NotifyShell(task.System.Shell, task.Release,
                written.AssociationsChanged || ChangesDesktopIcons(catalogue, plan));
    if (preferences != nullptr) Try(task, [&] { SavePreferences(task, catalogue, plan, *preferences); });
    Try(task, [&] { record.Complete(); });
    task.Need(written.RestartNeeded);

    const TFirefoxPrefs saved(task.System);
    for (const TChange& change : plan.Changes) {
        const bool isMade =
            change.IsOverwritten || IsMade(task, change, preferences == nullptr ? saved : *preferences);
        if (!isMade) FailAt(task, change.Target);
        list.push_back(RecordOf(task, change, isMade));
    }
}

}  // namespace

void SetStates(TTask& task) {
    TList list;
    for (const TPlan& plan : PlansFor(task)) {
        if (!task.DryRun) {
            CarryOut(task, plan, list);
            continue;
        }
        for (const TChange& change : plan.Changes) list.push_back(RecordOf(task, change, std::nullopt));
    }
    task.Print({std::move(list)});
}
