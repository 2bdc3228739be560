// The settings for which something is pending: their marks, taking them back, and reading the others anew.
#pragma once

#include <set>

#include "engine/change_set.h"
#include "settings/twin_controls.h"

class TPendingReview {
  public:
    /// Everything outlives the object.
    TPendingReview(TPageContext& context, const std::vector<std::unique_ptr<TPage>>& pages,
                   TTwinControls& twins)
        : FContext(context), FPages(pages), FTwins(twins) {}

    /// What Apply will carry out.
    [[nodiscard]] TChangeSet Operations() const;
    /// The same for a reader: what two pages have recorded of one setting is there once.
    [[nodiscard]] std::vector<TChange> Changes() const;
    [[nodiscard]] std::size_t Count() const;

    /// Marks the controls and the category items of their pages, and nothing else.
    void ShowMarks();

    /// Takes back what is pending for the settings and for those that record together with them. The pages that were loaded
    /// show what is stored there, as if it had never been changed.
    void TakeBack(const std::vector<std::wstring>& settings, const std::set<int>& loadedPages);

    /// The pages that were loaded show what is stored wherever nothing is pending, and in any case for the settings whose
    /// changes were taken back. A page's fault is let out when all of them are done.
    void Reload(const std::set<int>& loadedPages, const std::set<std::wstring>& takenBack = {});

  private:
    /// Whether an earlier operation stands for this one in a list.
    [[nodiscard]] bool IsRepeated(const TChangeSet& operations, std::size_t index) const;
    /// The controls for which something is pending.
    [[nodiscard]] std::set<std::wstring> Pending() const;
    /// With those that record together with them.
    [[nodiscard]] std::set<std::wstring> Together(std::set<std::wstring> controls) const;

    TPageContext& FContext;
    const std::vector<std::unique_ptr<TPage>>& FPages;
    TTwinControls& FTwins;
    std::set<TControl*> FMarked;
};
