#include "app/folder_form.h"

#include "app/history.h"
#include "app/take_all.h"
#include "engine/carry_out.h"
#include "settings/rights.h"
#include "settings/shell/desktop_icons.h"
#include "settings/tell_explorer.h"
#include "ui/containers.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kRights = L"Label_Folder_Rights";

}  // namespace

TQuilltune_FormFolder::TQuilltune_FormFolder(const TPageContext& owner, const TLanguage& language)
    : TForm(L"Quilltune_FormFolder", L"TQuilltune_FormFolder"),
      FLanguage(language),
      FChanges(owner.System),
      FContext{.System = owner.System,
               .Form = *this,
               .Changes = FChanges,
               .Firefox = owner.Firefox,
               .Captions = owner.Captions,
               .Release = owner.Release},
      FPage(DesktopIcons(), FContext, *this, [](TComponent&) {}) {
    ClientWidth = 360;
    ClientHeight = 350;
    SetCaption(kDesktopIconsCaption);
    if (!HasAdministratorRights(owner.System)) Build(*this, Label(kRights, L""));
    Build(*this, Label(L"Label_Folder_Note", L"OK takes effect at once, without Apply"));
    Build(*this, Buttons(Button(L"Button_OK", L"OK"), Button(L"Button_Cancel", L"Cancel")));
    auto* ok = Find<TButton>(L"Button_OK");
    ok->Default = true;
    ok->OnClick = [this](TComponent&) { Button_OKClick(); };
    auto* cancel = Find<TButton>(L"Button_Cancel");
    cancel->Cancel = true;
    cancel->OnClick = [this](TComponent&) { Close(); };
    OnShow = [this](TComponent&) { FormShow(); };
}

void TQuilltune_FormFolder::ChooseSheet(const wchar_t* name) {
    Find<TPageControl>(L"PageControl_Folder")->SetActiveSheet(*Find<TTabSheet>(name));
}

void TQuilltune_FormFolder::FormShow() {
    FLanguage.Translate(*this);
    FPage.Load();
    if (TControl* rights = Find(kRights)) rights->SetCaption(FContext.Captions[TCaption::MarkedNeedRights]);
}

void TQuilltune_FormFolder::Button_OKClick() {
    TSystem& system = FContext.System;
    TRecordedApply record(system, OperationsOf(FChanges, nullptr), nullptr);
    TakeAll({
        [&] { record.Begin(); },
        [&] { CarryOut(FChanges); },
        [&] { record.Complete(); },
        [&] {
            Close();
            // The desktop builds its icons anew when associations change.
            NotifyShell(system.Shell, FContext.Release, true);
        },
    });
}
