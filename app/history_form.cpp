#include "app/history_form.h"

#include "app/take_all.h"
#include "platform/language.h"
#include "ui/design.h"

TQuilltune_FormHistory::TQuilltune_FormHistory(TSystem& system, const TCaptions& captions,
                                               const TLanguage& language, const TSettingNames& names,
                                               THistoryHost host)
    : TForm(L"Quilltune_FormHistory", L"TQuilltune_FormHistory"),
      FCaptions(captions),
      FNames(names),
      FHost(std::move(host)),
      FHistory(system) {
    SetCaption(L"History");
    ClientWidth = 680;
    ClientHeight = 400;
    CanMaximise = true;
    Build(*this, Column(Label(L"Label_History", L"&Applied changes:"),
                        Table(L"ListView_History", {L"When", L"Settings"}).Sharing(2),
                        Label(L"Label_History_Changes", L"&What undoing restores:"),
                        Table(L"ListView_History_Changes", {L"Place", L"Now", L"After"}).Sharing(3),
                        Ends(Row(Button(L"Button_History_Undo", L"&Undo\u2026"),
                                 Button(L"Button_History_Import", L"&Import\u2026")),
                             Buttons(Button(L"Button_History_Close", L"Close")))));
    FEntries = Find<TListView>(L"ListView_History");
    FEntries->SelectsOne = true;
    OnShow = [this, &language](TComponent&) {
        language.Translate(*this);
        ShowEntries();
    };
    FEntries->OnSelect = [this](TComponent&) { ShowSelected(); };
    FEntries->OnOpen = [this](TComponent&) { Button_History_UndoClick(); };
    Find<TButton>(L"Button_History_Undo")->OnClick = [this](TComponent&) { Button_History_UndoClick(); };
    Find<TButton>(L"Button_History_Import")->OnClick = [this](TComponent&) {
        TakeAll({[this] { FHost.Import(*this); }, [this] { ShowEntries(); }});
    };
    auto* close = Find<TButton>(L"Button_History_Close");
    close->Cancel = true;
    close->OnClick = [this](TComponent&) { Close(); };
}

void TQuilltune_FormHistory::ShowEntries() {
    FWaysBack.clear();
    std::vector<TListView::TRow> rows;
    for (const std::wstring& entry : FHistory.Entries()) {
        FWaysBack.push_back(FHistory.Read(entry));
        const auto& wayBack = FWaysBack.back();
        rows.push_back({{entry, wayBack ? FNames.Of(*wayBack) : FCaptions[TCaption::Unreadable]}});
    }
    const bool hasEntries = !rows.empty();
    FEntries->SetRows(std::move(rows));
    if (hasEntries)
        FEntries->SetSelected({0}, 0);
    else
        ShowSelected();
}

const TChangeSet* TQuilltune_FormHistory::Selected() const {
    const auto selected = FEntries->Selected();
    if (selected.size() != 1 || !FWaysBack[selected.front()]) return nullptr;
    return &*FWaysBack[selected.front()];
}

void TQuilltune_FormHistory::ShowSelected() {
    const TChangeSet* wayBack = Selected();
    Find<TListView>(L"ListView_History_Changes")
        ->SetRows(wayBack == nullptr ? std::vector<TListView::TRow>() : FHost.Preview(*wayBack));
    Find(L"Button_History_Undo")->SetEnabled(wayBack != nullptr);
}

void TQuilltune_FormHistory::Button_History_UndoClick() {
    const TChangeSet* selected = Selected();
    if (selected == nullptr) return;
    const TChangeSet wayBack = *selected;  // while a service is waited for, the list may be made anew
    TakeAll({[&] { FHost.Undo(*this, wayBack); }, [this] { ShowEntries(); }});
}
