#include "app/find_box.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "app/setting_names.h"

namespace {

constexpr int kPrepareInterval = 50;
constexpr int kFlashInterval = 200;
constexpr int kFlashTurns = 6;

}  // namespace

TControlDesign TFindBox::FieldDesign() { return Edit(L"Edit_Find"); }

TControlDesign TFindBox::ListDesign() {
    return Table(L"ListView_Find", {L"Setting", L"Page and sheet"}).Hidden().Late();
}

TControlDesign TFindBox::TimersDesign() {
    return Row(Timer(L"Timer_Find", kPrepareInterval), Timer(L"Timer_Flash", kFlashInterval));
}

TFindBox::TFindBox(TForm& form, TFindHost host)
    : FForm(form),
      FHost(std::move(host)),
      FField(*form.Find<TEdit>(L"Edit_Find")),
      FList(*form.Find<TListView>(L"ListView_Find")),
      FNotebook(*form.Find(L"Notebook_Main")),
      FPrepareTimer(*form.Find<TTimer>(L"Timer_Find")),
      FFlashTimer(*form.Find<TTimer>(L"Timer_Flash")) {
    FList.SelectsOne = true;
    FForm.OnFindKey = [this](TComponent&) { FForm.Reveal(FField); };
    FField.OnEnter = [this](TControl& from) {
        if (&from != &FList) FFrom = &from;
    };
    FField.OnChange = [this](TComponent&) { ShowFound(); };
    FField.OnKey = [this](TKey key) { return FieldKey(key); };
    FList.OnOpen = [this](TComponent&) { Open(static_cast<std::size_t>(FList.FocusedRow())); };
    FList.OnKey = [this](TKey key) {
        if (key == TKey::Escape) Leave();
        return key == TKey::Escape;
    };
    FPrepareTimer.OnTimer = [this](TComponent&) { FPrepareTimer.SetEnabled(PrepareNext()); };
    FFlashTimer.OnTimer = [this](TComponent&) { FlashTimer(); };
}

void TFindBox::SetTexts(const TCaptions& captions) {
    FField.SetCaption(captions[TCaption::FindSetting]);
    FList.SetCaption(captions[TCaption::FoundSettings]);
    FList.EmptyText = captions[TCaption::NothingFound];
}

void TFindBox::Start() {
    FField.SetEnabled(true);
    FPrepareTimer.SetEnabled(true);
}

bool TFindBox::PrepareNext() {
    TCatalogue& catalogue = FHost.Catalogue();
    const auto& settings = catalogue.Settings();
    const auto isOffered = [&](const TSetting& setting) {
        try {
            return catalogue.PendingState(setting).IsOffered;
        } catch (const std::exception&) {
            return true;  // the window tells of the fault when it loads the page
        }
    };
    for (const std::size_t first = FAsked; FAsked < settings.size(); ++FAsked) {
        const TSetting& setting = *settings[FAsked];
        if (setting.Page != settings[first]->Page) return true;
        // A preset stands on the sheet of what it changes.
        if (setting.Preset == nullptr && isOffered(setting)) FOffered.insert(&setting);
    }
    return false;
}

std::vector<const TSetting*> TFindBox::Found(const std::wstring& text) {
    while (PrepareNext()) continue;
    std::vector<const TSetting*> found = FHost.Catalogue().Search(text);
    std::erase_if(found, [this](const TSetting* setting) { return !FOffered.contains(setting); });
    return found;
}

void TFindBox::ShowFound() {
    const bool finds = !FField.Text().empty();
    if (finds) {
        FFound = Found(FField.Text());
        std::vector<TListView::TRow> rows;
        for (const TSetting* setting : FFound) rows.push_back({{setting->Caption, SheetWords(*setting)}});
        FList.SetRows(std::move(rows));
        FList.SetSelected({0});  // what Enter opens
    }
    FList.SetVisible(finds);
    FNotebook.SetVisible(!finds);  // else the Tab key would still go through the page
}

void TFindBox::Leave() {
    FForm.Reveal(FField);  // for the list, which may have the focus, is about to disappear
    Clear();
    if (FFrom != nullptr) FForm.Reveal(*FFrom);
}

bool TFindBox::FieldKey(TKey key) {
    switch (key) {
        case TKey::Escape:
            Leave();
            return true;
        case TKey::Enter:
            if (FList.Visible()) Open(static_cast<std::size_t>(std::max(0, FList.FocusedRow())));
            return true;
        case TKey::Down:
            if (!FList.Visible() || FFound.empty()) return false;
            FForm.Reveal(FList);
            return true;
    }
    return false;
}

void TFindBox::Open(std::size_t row) {
    if (row >= FFound.size()) return;
    const std::wstring setting = FFound[row]->Id;
    FForm.Reveal(FField);  // as in Leave; a disabled setting leaves it there
    Clear();
    FHost.GoTo(setting);
    if (TControl* control = FForm.Find(setting)) Flash(*control);
}

void TFindBox::Flash(TControl& control) {
    if (FFlashing != nullptr) FFlashing->SetFramed(false);
    FFlashing = &control;
    FTurns = kFlashTurns;
    FFlashTimer.SetEnabled(true);
    FlashTimer();
}

void TFindBox::FlashTimer() {
    FFlashing->SetFramed(FTurns % 2 == 0);
    FFlashTimer.SetEnabled(--FTurns > 0);
}
