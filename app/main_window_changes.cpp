// The main window's part in changes: Apply, their list, the history, files of changes.
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "app/change_sets.h"
#include "app/changes_form.h"
#include "app/folder_form.h"
#include "app/history.h"
#include "app/history_form.h"
#include "app/main_window.h"
#include "app/preview_form.h"
#include "app/take_all.h"
#include "base/decimal.h"
#include "engine/carry_out.h"
#include "engine/reg_file.h"
#include "platform/unicode.h"
#include "settings/change_words.h"
#include "settings/tell_explorer.h"

void TQuilltune_FormMain::Button_ApplyClick() {
    TRecordedApply record(FSystem, FReview->Operations(), &FFirefox);
    TWritten written;
    // What is set of them while a service is waited for is not in the record.
    const bool savesPreferences = FContext.FirefoxChanged;
    TakeAll({
        [&] { FIsCarryingOut = true; },
        [&] { record.Begin(); },
        [&] { written = CarryOut(FChanges); },
        [&] { record.Supplement(); },
        [&] {
            // Only for what was written: while a service is waited for, the user may have changed more.
            if (written.RestartNeeded == TRestart::Windows) OfferRestart(*this, TRestart::Windows);
        },
        [&] { NotifyShell(FSystem.Shell, FContext.Release, written.AssociationsChanged); },
        [&] {
            if (written.RestartNeeded == TRestart::Explorer) OfferRestart(*this, TRestart::Explorer);
        },
        [&] {
            if (savesPreferences) ApplyFirefox();
        },
        [&] { FTwins->Written(); },
        [&] { EnableApply(); },
        [&] { record.Complete(); },
        [&] { FIsCarryingOut = false; },
    });
}

void TQuilltune_FormMain::FormComeBack() {
    if (FIsCarryingOut || FContext.Loading || !FChanges.IsEmpty() || FContext.FirefoxChanged) return;
    TakeAll({
        [&] { FReview->Reload(FVisitedPages); },
        [&] { FDetails->Refresh(); },
    });
}

void TQuilltune_FormMain::OfferRestart(const TForm& asker, TRestart restart) {
    const bool isOfWindows = restart == TRestart::Windows;
    const std::wstring& question =
        FContext.Captions[isOfWindows ? TCaption::RestartWindows : TCaption::RestartExplorer];
    const TMessageAnswer answer =
        FSystem.Dialogs.Message(asker, question, TMessageButtons::YesNo, TMessageIcon::Question);
    if (answer != TMessageAnswer::Yes) return;
    if (isOfWindows)
        FSystem.Shell.RestartWindows();
    else
        FSystem.Shell.RestartExplorer();
}

void TQuilltune_FormMain::ApplyFirefox() {
    if (!FContext.FirefoxChanged) return;
    const bool saved = FFirefox.SaveFirefoxPrefs();  // a fault leaves the mark for the next Apply
    FContext.FirefoxChanged = false;
    if (saved) TellFirefoxRestart(*this);
}

void TQuilltune_FormMain::TellFirefoxRestart(const TForm& asker) {
    FSystem.Dialogs.Message(asker, FContext.Captions[TCaption::RestartFirefox], TMessageButtons::Ok,
                            TMessageIcon::None);
}

TSettingNames& TQuilltune_FormMain::Names() {
    if (!FNames) FNames = std::make_unique<TSettingNames>(FSystem, *FLanguage, FContext.Release);
    return *FNames;
}

void TQuilltune_FormMain::Button_ChangesClick() {
    if (!FLanguage) return;
    TQuilltune_FormChanges dialog(FContext.Captions, *FLanguage, Names(),
                                  {.Pending = [this] { return FReview->Changes(); },
                                   .TakeBack =
                                       [this](const std::vector<std::wstring>& settings) {
                                           // While pages are read again, messages are handled, and preferences are between
                                           // what was and what will be.
                                           if (FContext.Loading) return;
                                           TakeAll({
                                               [&] { FReview->TakeBack(settings, FVisitedPages); },
                                               [&] { EnableApply(); },
                                           });
                                       },
                                   .Export = [this](const TForm& asker) { Export(asker); }});
    ShowModal(dialog);
    if (!dialog.Chosen().empty()) GoTo(dialog.Chosen());
}

void TQuilltune_FormMain::GoTo(const std::wstring& setting) {
    TControl* control = Find(setting);
    if (control == nullptr) {
        if (Names().Catalogue().Find(setting) == nullptr) return;
        GoTo(kFolderButton);
        ShowFolderForm(kFolderSheet, setting);
        return;
    }
    const TControl* page = control;
    while (page != nullptr && page->Kind() != TComponentKind::NotebookPage) page = page->Parent();
    if (page == nullptr) return;
    FFind->Clear();
    const bool isShown =
        page == Find<TNotebook>(L"Notebook_Main")->ActivePage();  // and need not be read again
    for (const auto& component : Components()) {
        if (isShown) break;
        if (component->Kind() != TComponentKind::CategoryItem) continue;
        auto& item = static_cast<TCategoryItem&>(*component);
        if (DecimalText(item.Tag()) == page->Name()) item.Click();
    }
    Reveal(*control);
}

void TQuilltune_FormMain::Export(const TForm& asker) {
    const auto path = FSystem.Dialogs.SaveFile(asker, FContext.Captions[TCaption::RegFiles] + L"|*.reg", {});
    if (!path || FSystem.Files.Replace(*path, WriteRegFile(FReview->Operations()))) return;
    FSystem.Dialogs.Message(asker, Formatted(FContext.Captions[TCaption::RegFileNotWritten], {*path}),
                            TMessageButtons::Ok, TMessageIcon::None);
}

void TQuilltune_FormMain::Button_HistoryClick() {
    if (!FLanguage) return;
    TQuilltune_FormHistory dialog(
        FSystem, FContext.Captions, *FLanguage, Names(),
        {.Preview =
             [this](const TChangeSet& wayBack) { return PreviewRows(FSystem, wayBack, FContext.Captions); },
         .Undo = [this](TForm& asker, const TChangeSet& wayBack) { Review(asker, wayBack); },
         .Import =
             [this](TForm& asker) {
                 const auto path =
                     FSystem.Dialogs.OpenFile(asker, FContext.Captions[TCaption::RegFiles] + L"|*.reg|" +
                                                         FContext.Captions[TCaption::AllFile] + L"|*.*");
                 if (path) Import(asker, *path);
             }});
    ShowModal(dialog);
}

void TQuilltune_FormMain::OpenFile(const std::wstring& path) {
    if (!FLoadingFinished || !FLanguage)
        FFileToOpen = path;
    else
        Import(*this, path);
}

void TQuilltune_FormMain::Import(TForm& asker, const std::wstring& path) {
    auto content = ReadChangeFile(FSystem, path, FContext.Captions);
    if (const auto* reason = std::get_if<std::wstring>(&content)) {
        FSystem.Dialogs.Message(asker, *reason, TMessageButtons::Ok, TMessageIcon::None);
        return;
    }
    auto& operations = std::get<TChangeSet>(content);
    Names().Attribute(operations);
    Review(asker, operations);
}

void TQuilltune_FormMain::Review(TForm& asker, const TChangeSet& operations) {
    TQuilltune_FormPreview dialog(*FLanguage, PreviewRows(FSystem, operations, FContext.Captions));
    asker.ShowModal(dialog);
    if (dialog.Accepted()) CarryOutNow(asker, operations);
}

void TQuilltune_FormMain::CarryOutNow(const TForm& asker, const TChangeSet& operations) {
    TCarriedOut done;
    TakeAll({
        [&] { FIsCarryingOut = true; },
        // What is pending for preferences stays pending: the file is changed by another store.
        [&] { CarryOutRecorded(FSystem, operations, done); },
        [&] {
            FIsCarryingOut = false;
            std::set<std::wstring> takenBack;
            for (const TOperation& operation : operations) takenBack.insert(operation.Setting);
            FReview->Reload(FVisitedPages, takenBack);
        },
        [&] { EnableApply(); },
        [&] {
            if (done.Written.RestartNeeded == TRestart::Windows) OfferRestart(asker, TRestart::Windows);
        },
        [&] { NotifyShell(FSystem.Shell, FContext.Release, done.Written.AssociationsChanged); },
        [&] {
            if (done.Written.RestartNeeded == TRestart::Explorer) OfferRestart(asker, TRestart::Explorer);
        },
        [&] {
            if (done.SavedPreferences) TellFirefoxRestart(asker);
        },
        [&] {
            if (done.Failed.empty()) return;
            const std::wstring place = PlaceWords(done.Failed.front().Target, FContext.Captions);
            throw std::runtime_error(ToUtf8(DecimalText(static_cast<std::int64_t>(done.Failed.size())) +
                                            L" operations could not be carried out, the first of them at " +
                                            place));
        },
    });
}
