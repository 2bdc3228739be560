#include "app/preview_form.h"

#include "platform/language.h"
#include "ui/design.h"

TQuilltune_FormPreview::TQuilltune_FormPreview(const TLanguage& language, std::vector<TListView::TRow> rows)
    : TForm(L"Quilltune_FormPreview", L"TQuilltune_FormPreview") {
    SetCaption(L"Preview");
    ClientWidth = 620;
    ClientHeight = 300;
    CanMaximise = true;
    Build(*this, Column(Table(L"ListView_Preview", {L"Place", L"Now", L"After"}),
                        Buttons(Button(L"Button_Preview_Apply", L"&Apply"),
                                Button(L"Button_Preview_Cancel", L"Cancel"))));
    Find<TListView>(L"ListView_Preview")->SetRows(std::move(rows));
    OnShow = [this, &language](TComponent&) { language.Translate(*this); };
    auto* apply = Find<TButton>(L"Button_Preview_Apply");
    apply->Default = true;
    apply->OnClick = [this](TComponent&) {
        FAccepted = true;
        Close();
    };
    auto* cancel = Find<TButton>(L"Button_Preview_Cancel");
    cancel->Cancel = true;
    cancel->OnClick = [this](TComponent&) { Close(); };
}
