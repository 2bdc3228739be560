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
        case TComponentKind::Edit: {
            auto& edit = static_cast<TEdit&>(to);
            const std::wstring& text = static_cast<const TEdit&>(from).Text();
            if (edit.Text() == text) return;
            edit.SetText(text);
            return edit.KeyUp();  // an edit records its text with a key
        }
        default:
            return;
    }
}

}  // namespace

TTwinControls::TTwinControls(const TForm& form) : FForm(form) {
    for (const TPageDefinition* page : PageDefinitions())
        FTwins.insert(FTwins.end(), page->Twins.begin(), page->Twins.end());
}

void TTwinControls::Changed(const TControl& control) {
    FChanged.insert(&control);
    for (const TTwin& twin : FTwins) {
        if (control.Name() == twin.Control) Follow(control, twin.Twin);
        if (control.Name() == twin.Twin) Follow(control, twin.Control);
    }
}

void TTwinControls::PageLoaded(int tag) {
    FLoadedPages.insert(tag);
    // Following changes the set.
    for (const TControl* leader : std::set(FChanged))
        if (PageOf(*leader) != tag) Changed(*leader);
}

void TTwinControls::Follow(const TControl& leader, const std::wstring& name) {
    TControl& follower = *FForm.Find(name);
    if (FLoadedPages.contains(PageOf(follower))) CopyState(leader, follower);
}
