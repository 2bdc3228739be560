// Controls of different pages that stand for the same setting: what the user does to one shows in the other.
#pragma once

#include <set>

#include "settings/page.h"

class TTwinControls {
  public:
    /// Knows the twins of every page of the program. `context` outlives the object.
    explicit TTwinControls(TPageContext& context);

    /// The user's change of `control` was recorded: its twins follow on the pages that are loaded, and record it too, so
    /// that whichever entry is written last means the same. On a page that is not loaded yet they follow in PageLoaded.
    void Changed(const TControl& control);

    /// The page's loaders have run. What the user did since the last Apply to twins on other pages comes on top; what he
    /// did on this page itself is gone, should it have been loaded before.
    void PageLoaded(int tag);

    /// The changes were written: pages that are loaded from now on show them by themselves.
    void Written() { FChanged.clear(); }

  private:
    void Follow(const TControl& leader);
    void FollowOne(const TControl& leader, const std::wstring& name);

    TPageContext& FContext;
    std::vector<TTwin> FTwins;
    std::set<const TControl*> FChanged;  ///< by the user; followers are not among them
    std::set<int> FLoadedPages;
    bool FFollowing = false;
};
