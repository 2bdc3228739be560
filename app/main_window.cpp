#include "app/main_window.h"

#include <utility>

#include "app/about_form.h"
#include "app/folder_form.h"
#include "app/take_all.h"
#include "app/timing_log.h"
#include "base/decimal.h"
#include "platform/suite_language.h"
#include "platform/windows_version.h"
#include "settings/category_table.h"
#include "settings/change_words.h"

namespace {

constexpr TColor kPlainItemColor = 0xC56A31;
constexpr TColor kSelectedItemColor = 0xC65D21;
constexpr int kFrameCount = 7;
constexpr int kTimerInterval = 100;
constexpr int kIdleInterval = 300;

TControlDesign WindowDesign() {
    return Row(Column(TFindBox::FieldDesign().Disabled(), CategoryBarDesign()),
               Column(TPageHeader::Design(),
                      Overlay(Notebook(L"Notebook_Main", {}), TFindBox::ListDesign(),
                              Panel(L"Panel_Loading",
                                    Center(Row(Image(L"ImageNote_Animate", L"loading", kFrameCount),
                                               Label(L"Label_Wait", L"Loading system settings..."))))
                                  .Hidden()),
                      TDetailsStrip::Design(),
                      Ends(Row(Button(L"Button_Changes", L"Changes\u2026").Disabled(),
                               Button(L"Button_History", L"History\u2026")),
                           Buttons(Button(L"Button_OK", L"OK"), Button(L"Button_Cancel", L"Cancel"),
                                   Button(L"Button_Apply", L"&Apply")))),
               Timer(L"Timer_Click", kTimerInterval), Timer(L"Timer_Loading", kTimerInterval),
               Timer(L"Timer_Details", kIdleInterval), TFindBox::TimersDesign());
}

}  // namespace

TQuilltune_FormMain::TQuilltune_FormMain(TSystem& system)
    : TForm(L"Quilltune_FormMain", L"TQuilltune_FormMain"),
      FSystem(system),
      FChanges(system),
      FAppFrame(system),
      FFirefox(system),
      FContext{.System = system,
               .Form = *this,
               .Changes = FChanges,
               .Firefox = FFirefox,
               .Release = RunningRelease(system)} {
    SetCaption(L"Quilltune");
    BuildControls();
    BindEvents();
    FormCreate();
}

void TQuilltune_FormMain::BuildControls() {
    Build(*this, WindowDesign());
    TControl& notebook = *Find(L"Notebook_Main");
    for (const TPageDefinition* definition : PageDefinitions()) {
        FPages.push_back(std::make_unique<TPage>(*definition, FContext, notebook,
                                                 [this](TComponent& sender) { PageChanged(sender); }));
    }
    for (int tag = 1; tag <= kPageCount; ++tag) {
        if (Find(DecimalText(tag)) == nullptr) Build(notebook, NotebookPage(tag));
    }
    FTwins = std::make_unique<TTwinControls>(FContext);
    FReview = std::make_unique<TPendingReview>(FContext, FPages, *FTwins);
    MakeDetails();
    FFind = std::make_unique<TFindBox>(
        *this, TFindHost{.Catalogue = [this]() -> TCatalogue& { return Names().Catalogue(); },
                         .GoTo = [this](const std::wstring& setting) { GoTo(setting); }});
    Panes = {{Find(L"CategoryBar"), Find(L"Edit_Find")},
             {&notebook, Find(L"ListView_Find")},
             {Find(L"Button_OK"), Find(L"Button_Cancel"), Find(L"Button_Apply"), Find(L"Button_Changes"),
              Find(L"Button_History")}};
    Find<TButton>(L"Button_OK")->Default = true;
    Find<TButton>(L"Button_Cancel")->Cancel = true;
    // The items of this group bear the plain colour by design; FormCreate gives it to the other groups.
    for (TControl* item : Find(L"RzGroup_Others")->Children())
        static_cast<TCategoryItem*>(item)->SetColor(kPlainItemColor);
}

void TQuilltune_FormMain::BindEvents() {
    OnShow = [this](TComponent&) { FormShow(); };
    OnComeBack = [this](TComponent&) { FormComeBack(); };
    Find<TTimer>(L"Timer_Click")->OnTimer = [this](TComponent&) { Timer_ClickTimer(); };
    Find<TTimer>(L"Timer_Loading")->OnTimer = [this](TComponent&) { Timer_LoadingTimer(); };
    Find<TButton>(L"Button_OK")->OnClick = [this](TComponent&) { Button_OKClick(); };
    Find<TButton>(L"Button_Cancel")->OnClick = [this](TComponent&) { Button_CancelClick(); };
    Find<TButton>(L"Button_Apply")->OnClick = [this](TComponent&) { Button_ApplyClick(); };
    Find<TButton>(L"Button_Changes")->OnClick = [this](TComponent&) { Button_ChangesClick(); };
    Find<TButton>(L"Button_History")->OnClick = [this](TComponent&) { Button_HistoryClick(); };
    const auto opensFolderForm = [this](const wchar_t* button, const wchar_t* sheet) {
        if (auto* control = Find<TButton>(button))
            control->OnClick = [this, sheet](TComponent&) { ShowFolderForm(sheet); };
    };
    opensFolderForm(kFolderButton, kFolderSheet);
    opensFolderForm(L"Button_Folder_Advanced_MyComputer_Set", L"TabSheet_Folder_MyComputer");
    for (const auto& component : Components()) {
        if (component->Kind() == TComponentKind::CategoryItem)
            static_cast<TCategoryItem&>(*component).OnClick = [this](TComponent& item) {
                RzGroup1Items0Click(item);
            };
    }
}

void TQuilltune_FormMain::FormCreate() {
    std::wstring osName;
    GetOSName(FSystem, osName);
    FSystem.Shell.DebugOutput(L"OsName:" + osName);
    for (const TCategoryGroupRow& group : CategoryTable())
        for (std::size_t i = 0; i < group.Items.size(); ++i)
            if (!group.Items[i].Levels.Include(FContext.Release))
                Find(group.Name)->Children()[i]->SetVisible(false);
    for (const wchar_t* group : {L"RzGroup_CommonSettings", L"RzGroup_Display", L"RzGroup_Use",
                                 L"RzGroup_Communication", L"RzGroup_Manage"}) {
        for (TControl* item : Find(group)->Children())
            static_cast<TCategoryItem*>(item)->SetColor(kPlainItemColor);
    }
}

void TQuilltune_FormMain::FormShow() {
    TTimingLog log(FSystem.Clock);
    TakeAll({
        [&] {
            log.Add(L"Lan:");
            FLanguage = OpenLanguages(FSystem, FAppFrame);
            FLanguage->LoadLanguage(GetSuiteLanguage(FSystem));
            FContext.Captions.Load(*FLanguage);
            MarkText = FContext.Captions[TCaption::Changed];
            SelectedText = FContext.Captions[TCaption::Selected];
            FFind->SetTexts(FContext.Captions);
            FLanguage->Translate(*this);
            Switches.front().Caption = FContext.Captions[TCaption::DetailsShow];
            Switches.back().Caption = FContext.Captions[TCaption::About];
        },
        [&] { ReinitialiseLists(log); },
        [&] {
            log.Add(L"Rz_Com:");
            SetCategoryCaptions();
        },
        [this] { Find(L"Button_OK")->SetEnabled(false); },
        [this] { Find(L"Button_Cancel")->SetEnabled(false); },
        [this] { Find(L"Button_Apply")->SetEnabled(false); },
        [this] { Find(L"Button_History")->SetEnabled(false); },
        [this] { FLoadingFinished = false; },
        [this] { Find(L"Panel_Loading")->BringToFront(); },
        [this] { Find(L"Panel_Loading")->SetVisible(true); },
        [this] { Find(L"Timer_Click")->SetEnabled(true); },
        [this] { Find(L"Timer_Loading")->SetEnabled(true); },
    });
    log.Add(L"end:");
}

void TQuilltune_FormMain::ReinitialiseLists(TTimingLog& log) {
    for (const TPageLists& page : PagesOfChosenLists()) {
        log.Add(page.Label);
        ChooseFirstItems(*Find(DecimalText(page.Tag)));
    }
}

void TQuilltune_FormMain::SetCategoryCaptions() {
    for (const TCategoryGroupRow& group : CategoryTable()) {
        TControl* control = Find(group.Name);
        control->SetCaption(FContext.Captions[group.Text]);
        for (std::size_t i = 0; i < group.Items.size(); ++i) {
            if (group.Items[i].Text)
                control->Children()[i]->SetCaption(FContext.Captions[*group.Items[i].Text]);
        }
    }
}

void TQuilltune_FormMain::Timer_ClickTimer() {
    TakeAll({
        [this] { Find(L"Timer_Click")->SetEnabled(false); },
        [this] { RzGroup1Items0Click(*Find(CategoryItemName(L"RzGroup_CommonSettings", 0))); },
        [this] { FLoadingFinished = true; },
    });
}

void TQuilltune_FormMain::Timer_LoadingTimer() {
    TakeAll({
        [this] { Find(L"Timer_Loading")->SetEnabled(false); },
        [this] { Animate(); },
        [this] { FLoadingFinished ? BecomeReady() : Find(L"Timer_Loading")->SetEnabled(true); },
    });
}

void TQuilltune_FormMain::Animate() {
    auto* animation = Find<TImage>(L"ImageNote_Animate");
    animation->SetFrame((animation->Frame() + 1) % kFrameCount);
    const auto dots = static_cast<std::size_t>(animation->Frame()) + 1;
    Find(L"Label_Wait")->SetCaption(FContext.Captions[TCaption::Loading] + std::wstring(dots, L'.'));
}

void TQuilltune_FormMain::BecomeReady() {
    TakeAll({
        [this] { Find(L"Panel_Loading")->SendToBack(); },
        [this] { Find(L"Panel_Loading")->SetVisible(false); },
        [this] {
            if (FLanguage) FFind->Start();
        },
        [this] { Find(L"Button_OK")->SetEnabled(true); },
        [this] { Find(L"Button_Cancel")->SetEnabled(true); },
        [this] { Find(L"Button_History")->SetEnabled(true); },
        [this] { EnableApply(); },
        [this] { Find(L"Timer_Details")->SetEnabled(true); },
        [this] {
            if (!FFileToOpen.empty()) OpenFile(std::exchange(FFileToOpen, {}));
        },
    });
}

void TQuilltune_FormMain::RzGroup1Items0Click(TComponent& sender) {
    if (sender.Kind() != TComponentKind::CategoryItem) return;
    auto& item = static_cast<TCategoryItem&>(sender);
    // A fault of a loader is for the fault log; the page shows what was loaded until then.
    TakeAll({
        [&] { FFind->Clear(); },
        [&] { LoadPage(item.Tag()); },
        // What was set of preferences is dropped when they are read again.
        [&] {
            if (FContext.FirefoxChanged) EnableApply();
        },
        [&] { FHeader.Show(item); },
        [&] { Find<TNotebook>(L"Notebook_Main")->ShowPage(DecimalText(item.Tag())); },
        [&] {
            if (&item != FSelectedItem) SelectItem(item);
        },
        [&] { FDetails->Refresh(); },
    });
}

void TQuilltune_FormMain::LoadPage(int tag) {
    const bool firstVisit = FVisitedPages.insert(tag).second;
    for (const auto& page : FPages) {
        if (page->Tag() == tag && (firstVisit || page->LoadsEveryVisit()))
            TakeAll({[&] { page->Load(); }, [&] { FTwins->PageLoaded(tag); }});
    }
}

void TQuilltune_FormMain::SelectItem(TCategoryItem& item) {
    if (FSelectedItem != nullptr) {
        FSelectedItem->SetColor(kPlainItemColor);
        FSelectedItem->SetSelected(false);
    }
    FSelectedItem = &item;
    item.SetSelected(true);
    item.SetColor(kSelectedItemColor);
}

void TQuilltune_FormMain::ShowFolderForm(const wchar_t* sheet, const std::wstring& setting) {
    if (!FLanguage) return;  // a fault kept it from being created
    TQuilltune_FormFolder dialog(FContext, *FLanguage);
    dialog.ChooseSheet(sheet);
    dialog.OnHelp = [&](const TControl* control) {
        const TSetting* at = control == nullptr ? nullptr : SettingIn(*control, Names().Catalogue());
        if (at == nullptr) return;
        const TPageContext& context = dialog.Context();
        Tell(dialog, DetailsOf(*at, context, PendingChanges(FSystem, context.Changes, nullptr)).Whole());
    };
    dialog.FirstFocus = dialog.Find(setting);
    if (dialog.FirstFocus != nullptr) dialog.Reveal(*dialog.FirstFocus);
    ShowModal(dialog);
}

void TQuilltune_FormMain::ShowAbout() {
    if (!FLanguage) return;
    const std::wstring notices = Notices ? Notices() : std::wstring();
    TQuilltune_FormAbout about(FSystem, FContext.Captions, *FLanguage, notices);
    ShowModal(about);
}

void TQuilltune_FormMain::PageChanged(TComponent& sender) {
    FTwins->Changed(static_cast<TControl&>(sender));
    EnableApply();
}

void TQuilltune_FormMain::EnableApply() {
    Find(L"Button_Apply")->SetEnabled(!FChanges.IsEmpty() || FContext.FirefoxChanged);
    const auto count = static_cast<std::int64_t>(FReview->Count());
    TControl& changes = *Find(L"Button_Changes");
    changes.SetEnabled(count != 0);
    changes.SetCaption(count == 0 ? FContext.Captions[TCaption::NoChange]
                       : count == 1
                           ? FContext.Captions[TCaption::OneChange]
                           : Formatted(FContext.Captions[TCaption::ManyChanges], {DecimalText(count)}));
    FReview->ShowMarks();
    FDetails->Refresh();
}

void TQuilltune_FormMain::MakeDetails() {
    const auto names = [this]() -> const TSettingNames* {
        return FLanguage && FLoadingFinished ? &Names() : nullptr;
    };
    FDetails = std::make_unique<TDetailsStrip>(FContext, *FReview, names);
    OnFocus = [this](TControl* control) { FDetails->FocusCame(control); };
    OnPoint = [this](TControl* control) { FDetails->PointerRests(control); };
    OnHelp = [this](TControl* control) { ShowHelp(control); };
    OnHeight = [this](int height) {
        FHeader.HeightChanged(height);
        FDetails->HeightChanged(height);
    };
    Switches = {{.Caption = FContext.Captions[TCaption::DetailsShow],
                 .IsOn = true,
                 .OnClick = [this](bool isOn) { FDetails->SetShown(isOn); }},
                {.Caption = FContext.Captions[TCaption::About], .Stays = false, .OnClick = [this](bool) {
                     ShowAbout();
                 }}};
    // The settings are known before the first of them is asked for.
    Find<TTimer>(L"Timer_Details")->OnTimer = [this](TComponent& timer) {
        static_cast<TTimer&>(timer).SetEnabled(false);
        if (FLanguage) (void)Names();
    };
}

void TQuilltune_FormMain::ShowHelp(const TControl* control) {
    const std::wstring text = FDetails->WholeOf(control);
    if (!text.empty()) Tell(*this, text);
}

void TQuilltune_FormMain::Tell(const TForm& asker, const std::wstring& text) {
    FSystem.Dialogs.Message(asker, text, TMessageButtons::Ok, TMessageIcon::None);
}

void TQuilltune_FormMain::Button_OKClick() {
    TakeAll({
        [this] { Button_ApplyClick(); },
        [this] {
            // Preferences that could not be saved would be lost.
            if (!FContext.FirefoxChanged) Close();
        },
    });
}

void TQuilltune_FormMain::Button_CancelClick() { Close(); }
