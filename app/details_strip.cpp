#include "app/details_strip.h"

#include <algorithm>
#include <utility>

#include "settings/change_words.h"
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

constexpr const wchar_t* kBetween = L" \u00B7 ";

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

/// The controls that may stand for the setting that a user sees in this one.
std::vector<const TControl*> StandIns(const TControl& control) {
    std::vector<const TControl*> found{&control};
    if (control.Parent() == nullptr) return found;
    const auto& siblings = control.Parent()->Children();
    const auto self = std::ranges::find(siblings, &control);
    switch (control.Kind()) {
        case TComponentKind::UpDown:
        case TComponentKind::ColorSwatch:  // belongs to the button before it
            if (self != siblings.begin()) found.push_back(*(self - 1));
            break;
        case TComponentKind::Edit:
        case TComponentKind::Label:  // says what comes behind it
            for (auto next = self + 1; next != siblings.end() && found.size() <= 2; ++next)
                found.push_back(*next);
            break;
        default:
            break;
    }
    if (control.Kind() == TComponentKind::Edit)
        std::erase_if(found, [&](const TControl* each) {
            return each != &control && (each->Kind() != TComponentKind::UpDown ||
                                        static_cast<const TUpDown*>(each)->Associate() != &control);
        });
    return found;
}

}  // namespace

std::wstring TDetails::Whole() const {
    std::wstring whole = Title;
    for (const std::wstring& part : {Text, Places})
        if (!part.empty()) whole += L"\n\n" + part;
    return whole;
}

TDetailsStrip::TDetailsStrip(TPageContext& context, const TPendingReview& review,
                             std::function<const TSettingNames*()> names)
    : FContext(context), FReview(review), FNames(std::move(names)), FHeight(context.Form.ClientHeight) {}

TControlDesign TDetailsStrip::Design() {
    return Card(kPanel, Stack(CardLabel(kTitle, L"What does this do?", 1, TTextLook::Title),
                              CardLabel(kText,
                                        L"Rest the pointer on a setting or choose it, and read here what it "
                                        L"is for and what is stored.",
                                        kTextLines, TTextLook::Plain),
                              CardLabel(kPlace, L"F1 shows the whole text", kPlaceLines, TTextLook::Quiet)));
}

const TSetting* TDetailsStrip::SettingOf(const TControl* control) const {
    // The catalogue is made no sooner than it is needed.
    const TControl* page = PageOf(control);
    const TSettingNames* names =
        page != nullptr && page->Visible() && IsOnShownSheet(*control) ? FNames() : nullptr;
    if (names == nullptr) return nullptr;
    for (const TControl* each : StandIns(*control))
        if (const TSetting* setting = names->Catalogue().Find(each->Name())) return setting;
    return nullptr;
}

std::wstring TDetailsStrip::PlacesOf(const TSetting& setting) const {
    if (setting.Rows.empty()) return {};
    std::vector<std::pair<std::wstring, TTarget>> places;
    const auto add = [&](const TTarget& target) {
        const std::wstring words = PlaceWords(target, FContext.Captions);
        if (std::ranges::count(places, words, &std::pair<std::wstring, TTarget>::first) == 0)
            places.emplace_back(words, target);
    };
    for (const TRow* row : setting.Rows)
        if (LevelsOf(*row).Include(FContext.WindowsLevel)) std::ranges::for_each(TargetsOf(*row), add);
    const std::vector<TChange> changes = FReview.Changes();
    for (const TChange& change : changes)
        if (change.Setting == setting.Id) add(change.Target);
    std::wstring text;
    for (const auto& [words, target] : places) {
        const TContent now = ContentOf(FContext.System, target, &FContext.Firefox);
        const auto change = std::ranges::find_if(changes, [&place = words, this](const TChange& each) {
            return PlaceWords(each.Target, FContext.Captions) == place;
        });
        const bool isPending = change != changes.end();
        text += (text.empty() ? L"" : L"\n") + words + L'\n' +
                Formatted(FContext.Captions[TCaption::DetailsStored],
                          {ContentWords(target, now, FContext.Captions)}) +
                kBetween;
        text += isPending ? Formatted(FContext.Captions[TCaption::DetailsPending],
                                      {ContentWords(target, change->After, FContext.Captions)})
                          : FContext.Captions[TCaption::DetailsNotChanged];
        if (setting.Restart || (isPending && change->Restart))
            text += kBetween + FContext.Captions[TCaption::DetailsRestart];
    }
    return text;
}

TDetails TDetailsStrip::DetailsOf(const TSetting& setting) const {
    return {setting.Caption, setting.Explanation, PlacesOf(setting)};
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
