#include "app/details_strip.h"

#include <algorithm>
#include <utility>

#include "ui/containers.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kPanel = L"Panel_Details";
constexpr const wchar_t* kTitle = L"Label_Details_Title";
constexpr const wchar_t* kText = L"Label_Details_Text";
constexpr const wchar_t* kPlace = L"Label_Details_Place";

constexpr int kTextLines = 2;
constexpr int kPlaceLines = 2;

// The least heights of the window, in dots of 96 per inch, that leave the pages enough room beside the strip.
constexpr int kRoomForAll = 560;
constexpr int kRoomForTitle = 510;

/// Null when it is on none.
const TControl* PageOf(const TControl* control) {
    while (control != nullptr && control->Kind() != TComponentKind::NotebookPage) control = control->Parent();
    return control;
}

bool IsOnShownSheet(const TControl& control) {
    const TControl* sheet = &control;
    while (sheet != nullptr && sheet->Kind() != TComponentKind::TabSheet) sheet = sheet->Parent();
    return sheet == nullptr || static_cast<const TPageControl*>(sheet->Parent())->ActiveSheet() == sheet;
}

}  // namespace

TDetailsStrip::TDetailsStrip(TPageContext& context, const TPendingReview& review,
                             std::function<const TSettingNames*()> names)
    : FContext(context), FReview(review), FNames(std::move(names)), FHeight(context.Form.ClientHeight) {}

TControlDesign TDetailsStrip::Design() {
    return Card(kPanel, Stack(CardLabel(kTitle, L"What does this do?", 1, TTextLook::Title),
                              CardLabel(kText,
                                        L"Rest the pointer on a setting or choose it, and read here what it "
                                        L"is for and what is stored.",
                                        kTextLines, TTextLook::Plain),
                              CardLabel(kPlace, L"F1 shows the whole text", kPlaceLines, TTextLook::Quiet)))
        .Late();
}

const TSetting* TDetailsStrip::SettingOf(const TControl* control) const {
    // The catalogue is made no sooner than it is needed.
    const TControl* page = PageOf(control);
    const TSettingNames* names =
        page != nullptr && page->Visible() && IsOnShownSheet(*control) ? FNames() : nullptr;
    return names == nullptr ? nullptr : SettingIn(*control, names->Catalogue());
}

TDetails TDetailsStrip::DetailsOf(const TSetting& setting) const {
    return ::DetailsOf(setting, FContext, FReview.Changes());
}

void TDetailsStrip::FocusCame(TControl* control) {
    // Who goes to Apply, or to another program, is told what becomes of the setting where he was.
    if (PageOf(control) != nullptr) FFocused = control;
    FPointed = nullptr;
    Refresh();
}

void TDetailsStrip::PointerRests(TControl* control) {
    if (std::exchange(FPointed, control) != control) Refresh();
}

void TDetailsStrip::Refresh() {
    if (!FContext.Form.Find(kPanel)->Visible()) return;
    for (const TControl* control : {FPointed, FFocused}) {
        if (const TSetting* setting = SettingOf(control)) return Show(DetailsOf(*setting));
    }
    if (FIdle) Show(*FIdle);
}

void TDetailsStrip::Show(const TDetails& details) {
    const TForm& form = FContext.Form;
    if (!FIdle)
        FIdle = {form.Find(kTitle)->Caption(), form.Find(kText)->Caption(), form.Find(kPlace)->Caption()};
    form.Find(kTitle)->SetCaption(details.Title);
    form.Find(kText)->SetCaption(details.Text);
    form.Find<TLabel>(kPlace)->Notice = details.Notice;
    form.Find(kPlace)->SetCaption(details.Places);
    form.Find(kPanel)->SetCaption(details.Whole());
}

std::wstring TDetailsStrip::WholeOf(const TControl* control) const {
    for (const TControl* each :
         {control, static_cast<const TControl*>(FPointed), static_cast<const TControl*>(FFocused)})
        if (const TSetting* setting = SettingOf(each)) return DetailsOf(*setting).Whole();
    return {};
}

void TDetailsStrip::HeightChanged(int height) {
    FHeight = height;
    ShowParts();
}

void TDetailsStrip::SetShown(bool shown) {
    FShown = shown;
    ShowParts();
}

void TDetailsStrip::ShowParts() {
    TControl& panel = *FContext.Form.Find(kPanel);
    const bool wasVisible = panel.Visible();
    FContext.Form.Find(kText)->SetVisible(FHeight >= kRoomForAll);
    panel.SetVisible(FShown && FHeight >= kRoomForTitle);
    if (!wasVisible) Refresh();
}
