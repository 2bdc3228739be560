#include "app/changes_form.h"

#include "app/take_all.h"
#include "platform/language.h"
#include "settings/change_words.h"

namespace {

TListView& BuildList(TForm& form) {
    form.Build(form, Column(Table(L"ListView_Changes", {L"Setting", L"Place", L"Now", L"After Apply"}),
                            Ends(Row(Button(L"Button_Changes_Revert", L"&Take Back"),
                                     Button(L"Button_Changes_Export", L"&Export\u2026")),
                                 Buttons(Button(L"Button_Changes_Close", L"Close")))));
    return *form.Find<TListView>(L"ListView_Changes");
}

}  // namespace

TQuilltune_FormChanges::TQuilltune_FormChanges(const TCaptions& captions, const TLanguage& language,
                                               const TSettingNames& names, TPendingHost host)
    : TForm(L"Quilltune_FormChanges", L"TQuilltune_FormChanges"),
      FCaptions(captions),
      FNames(names),
      FHost(std::move(host)),
      FList(BuildList(*this)) {
    SetCaption(L"Pending Changes");
    ClientWidth = 760;
    ClientHeight = 320;
    CanMaximise = true;
    OnShow = [this, &language](TComponent&) {
        language.Translate(*this);
        ShowChanges();
    };
    FList.OnSelect = [this](TComponent&) { EnableButtons(); };
    FList.OnOpen = [this](TComponent&) { ChooseFocused(); };
    FList.OnDelete = [this](TComponent&) { Button_Changes_RevertClick(); };
    Find<TButton>(L"Button_Changes_Revert")->OnClick = [this](TComponent&) { Button_Changes_RevertClick(); };
    Find<TButton>(L"Button_Changes_Export")->OnClick = [this](TComponent&) { FHost.Export(*this); };
    auto* close = Find<TButton>(L"Button_Changes_Close");
    close->Cancel = true;
    close->OnClick = [this](TComponent&) { Close(); };
}

void TQuilltune_FormChanges::ShowChanges() {
    FChanges = FHost.Pending();
    std::vector<TListView::TRow> rows;
    for (const TChange& change : FChanges) {
        std::wstring setting = FNames[change.Setting];
        if (change.Restart != TRestart::None)
            setting = Formatted(FCaptions[change.Restart == TRestart::Windows ? TCaption::AfterRestart
                                                                              : TCaption::AfterExplorer],
                                {setting});
        std::wstring after = ContentWords(change.Target, change.After, FCaptions);
        if (change.IsOverwritten) after = Formatted(FCaptions[TCaption::Overwritten], {after});
        rows.push_back({{setting, PlaceWords(change.Target, FCaptions),
                         ContentWords(change.Target, change.Before, FCaptions), after}});
    }
    FList.SetRows(std::move(rows));
    EnableButtons();
}

void TQuilltune_FormChanges::EnableButtons() {
    Find(L"Button_Changes_Revert")->SetEnabled(!FList.Selected().empty());
    Find(L"Button_Changes_Export")->SetEnabled(!FChanges.empty());
}

void TQuilltune_FormChanges::Button_Changes_RevertClick() {
    std::vector<std::wstring> settings;
    for (const std::size_t row : FList.Selected()) settings.push_back(FChanges[row].Setting);
    if (settings.empty()) return;
    TakeAll({[&] { FHost.TakeBack(settings); }, [this] { ShowChanges(); }});
}

void TQuilltune_FormChanges::ChooseFocused() {
    const int row = FList.FocusedRow();
    if (row < 0) return;
    FChosen = FChanges[static_cast<std::size_t>(row)].Setting;
    Close();
}
