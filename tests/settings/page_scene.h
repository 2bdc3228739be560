// A scene of a page script: a fresh page, what it finds, what happens to it and what comes of it. See page_script.h.
#pragma once

#include <map>
#include <set>

#include "tests/settings/page_bench.h"

using TLine = std::wstring;
using TLines = std::vector<TLine>;

TLine Trimmed(std::wstring_view text);
/// The text up to the separator, which is taken off with it; the whole text when there is none.
TLine Take(TLine& text, const wchar_t* separator);
/// The words that a line begins with, with commas between them.
TLines TakeControls(TLine& rest);
TLines Parts(TLine rest, const wchar_t* separator = L" | ");
/// A level, such as 10, or a build of one, such as 10.17763; without a build that one.
TRelease ReleaseOf(TLine text, std::uint32_t build = std::numeric_limits<std::uint32_t>::max());

class TScene {
  public:
    /// The controls whose state a script looks at, and those that it acts on.
    struct TCovered {
        std::set<TLine> Shown, ActedOn;
    };

    TScene(const TPageDefinition& page, TCovered& covered, const TLine& level = {});
    ~TScene();
    TScene(const TScene&) = delete;
    TScene& operator=(const TScene&) = delete;

    TPageBench& Bench() { return FBench; }

    /// False when the line does not begin with a verb.
    bool Run(TLine line, const TLines& below);
    /// Brings the control into the state as a user would.
    void Act(const TLine& control, const TLine& state);
    void Expect(const TLine& control, const TLine& rest);
    /// The changes among the parts of a line, with the control's name for *; the parts that are verbs run.
    TLines Changes(const TLine& control, const TLines& parts);
    /// Expects them to be all that are pending and, when some are Firefox preferences, all of these.
    void ExpectChanges(TLines changes);
    /// Whether Windows must restart is not looked at.
    void IgnoreRestart() { FRestart = FBench.NeedsRestart(); }

  private:
    using TStep = void (*)(TScene&, TLine, const TLines&);

    static void AddPending(TScene& scene, TLine rest, const TLines& below);
    static void Answer(TScene& scene, TLine rest, const TLines& below);
    static void Asked(TScene& scene, TLine rest, const TLines& below);
    static void Do(TScene& scene, TLine rest, const TLines& below);
    static void Firefox(TScene& scene, TLine rest, const TLines& below);
    static void Prefs(TScene& scene, TLine rest, const TLines& below);
    static void Now(TScene& scene, TLine rest, const TLines& below);
    static void Service(TScene& scene, TLine rest, const TLines& below);
    static const std::map<TLine, TStep> kSteps;

    TPageBench FBench;
    TCovered& FCovered;
    std::string FUserFile;
    TRestart FRestart = TRestart::None;
    TRestart FNeededRestart = TRestart::None;  ///< for what was written already
};
