// Pairs: controls of two pages that stand for one setting. At every moment both show the same, and what they show is
// what Apply writes.
#pragma once

#include <set>

#include "settings/page.h"

class TTwinControls {
  public:
    /// Knows the pairs of every page of the program. `context` outlives the object.
    explicit TTwinControls(TPageContext& context);

    /// The user's change of `control` was recorded: its twin follows, when its page is loaded, and records it too, so
    /// that whichever entry is written last means the same.
    void Changed(const TControl& control);

    /// The page's loaders have run, and what was not written yet comes on top. Elsewhere the twins of the page follow what
    /// it found; that is no change.
    void PageLoaded(int tag);

    /// Pages were read again: of what is not pending both show what the twin's page found, which is loaded after the first one.
    void PagesReloaded();

    /// The controls of another page that stand for the same setting as the control.
    [[nodiscard]] std::vector<std::wstring> PartnersOf(const std::wstring& control) const;

    /// Forgets the changes that are not pending any more.
    void Written();
    /// Forgets the changes of these controls, which were taken back.
    void TakenBack(const std::set<std::wstring>& controls);

  private:
    /// What a page has of a setting.
    struct TSide {
        std::vector<TControl*> Controls;  ///< those of one row, each where its twin is on the other side
        const TPageDefinition* Page = nullptr;
    };
    struct TPair {
        TSide First;
        TSide Second;
        bool (*IsMarked)(const TPageContext& context) = nullptr;  ///< see TTwin
        bool Changed = false;                                     ///< since it was last written
    };

    void AddPairs(const TPageDefinition& page);
    [[nodiscard]] bool IsPending(const TPair& pair) const;
    void Follow(const TSide& leader, const TSide& follower);
    void Record(const TSide& side);

    TPageContext& FContext;
    std::vector<TPair> FPairs;
    std::set<int> FLoadedPages;
};
