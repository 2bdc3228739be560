// Controls of different pages that stand for the same setting: what the user does to one happens to the other.
#pragma once

#include <set>

#include "settings/page.h"

class TTwinControls {
  public:
    /// Knows the twins of every page of the program. `form` outlives the object.
    explicit TTwinControls(const TForm& form);

    /// A user's change of `control` was recorded: its twins follow on the pages that are loaded, and record it too, so
    /// that whichever entry is written last means the same. On a page that is not loaded yet they follow in PageLoaded.
    void Changed(const TControl& control);

    /// The page's loaders have run and show what is stored: changes made to twins since the last Apply come on top.
    void PageLoaded(int tag);

    /// The changes were written: pages that are loaded from now on show them by themselves.
    void Written() { FChanged.clear(); }

  private:
    void Follow(const TControl& leader, const std::wstring& name);

    const TForm& FForm;
    std::vector<TTwin> FTwins;
    std::set<const TControl*> FChanged;
    std::set<int> FLoadedPages;
};
