#include "app/twin_controls.h"

#include "app/page_table.h"
#include "ui/containers.h"
#include "ui/controls.h"

namespace {

/// The tag of the notebook page that the control lies on.
int PageOf(const TControl& control) {
    const TControl* page = &control;
    while (page->Kind() != TComponentKind::NotebookPage) page = page->Parent();
    return std::stoi(page->Name());
}

/// Sets a mark for a scope, so that no path out of it leaves it set.
class TMarkScope {
  public:
    explicit TMarkScope(bool& mark) : FMark(mark) { FMark = true; }
    ~TMarkScope() { FMark = false; }
    TMarkScope(const TMarkScope&) = delete;
    TMarkScope& operator=(const TMarkScope&) = delete;

  private:
    bool& FMark;
};

void CopyState(const TControl& from, TControl& to) {
    switch (to.Kind()) {
        case TComponentKind::CheckBox:
            return static_cast<TCheckBox&>(to).SetChecked(static_cast<const TCheckBox&>(from).Checked());
        case TComponentKind::ComboBox:
            return static_cast<TComboBox&>(to).SetItemIndex(static_cast<const TComboBox&>(from).ItemIndex());
        case TComponentKind::TrackBar:
        case TComponentKind::UpDown:
            return static_cast<TRangeControl&>(to).SetPosition(
                static_cast<const TRangeControl&>(from).Position());
        case TComponentKind::Edit:
            return static_cast<TEdit&>(to).SetText(static_cast<const TEdit&>(from).Text());
        default:
            return;
    }
}

}  // namespace

TTwinControls::TTwinControls(TPageContext& context) : FContext(context) {
    for (const TPageDefinition* page : PageDefinitions())
        FTwins.insert(FTwins.end(), page->Twins.begin(), page->Twins.end());
}

void TTwinControls::Changed(const TControl& control) {
    if (FFollowing) return;
    FChanged.insert(&control);
    Follow(control);
}

void TTwinControls::PageLoaded(int tag) {
    FLoadedPages.insert(tag);
    for (auto changed = FChanged.begin(); changed != FChanged.end();) {
        const TControl& control = **changed;
        if (PageOf(control) != tag) {
            Follow(control);
            ++changed;
        } else {
            // The page shows what is stored again, and so do the twins; that is no change.
            changed = FChanged.erase(changed);
            const TLoadingScope loading(FContext);
            Follow(control);
        }
    }
}

void TTwinControls::Follow(const TControl& leader) {
    const TMarkScope following(FFollowing);
    for (const TTwin& twin : FTwins) {
        if (leader.Name() == twin.Control) FollowOne(leader, twin.Twin);
        if (leader.Name() == twin.Twin) FollowOne(leader, twin.Control);
    }
}

void TTwinControls::FollowOne(const TControl& leader, const std::wstring& name) {
    TControl& follower = *FContext.Form.Find(name);
    // What this Windows does not offer stays as it is.
    if (FLoadedPages.contains(PageOf(follower)) && follower.Visible()) CopyState(leader, follower);
}
