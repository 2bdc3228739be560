// The main window: its life from creation to destruction, the category bar, and Apply.
#pragma once

#include <memory>
#include <set>

#include "app/details_strip.h"
#include "app/find_box.h"
#include "app/page_header.h"
#include "app/pending_review.h"
#include "app/setting_names.h"
#include "platform/app_frame.h"
#include "platform/language.h"
#include "settings/net/firefox_prefs.h"
#include "settings/page_context.h"
#include "settings/page_table.h"
#include "settings/twin_controls.h"
#include "ui/containers.h"
#include "ui/controls.h"

class TTimingLog;

class TQuilltune_FormMain : public TForm {
  public:
    /// Creates the window's controls and asks what Windows this is. `system` outlives the window.
    explicit TQuilltune_FormMain(TSystem& system);

    [[nodiscard]] const TPageContext& Context() const { return FContext; }

    /// Shows what a file of changes would do and carries it out when the user agrees; while the window is loading, as soon as
    /// it is ready.
    void OpenFile(const std::wstring& path);

    std::function<std::wstring()> Notices;  ///< of the libraries in the program

  private:
    void FormCreate();
    void FormShow();
    void Timer_ClickTimer();
    void Timer_LoadingTimer();
    void Button_ApplyClick();
    void Button_OKClick();
    void Button_CancelClick();
    /// The click handler of every category item.
    void RzGroup1Items0Click(TComponent& sender);

    void BuildControls();
    void BindEvents();
    void ReinitialiseLists(TTimingLog& log);
    void SetCategoryCaptions();
    /// The next frame of the loading panel.
    void Animate();
    /// Ends the loading: nothing hides the page any more, and the buttons work.
    void BecomeReady();
    void LoadPage(int tag);
    void SelectItem(TCategoryItem& item);
    void Button_ChangesClick();
    void Button_HistoryClick();
    /// Asks whether to restart Windows, or Explorer, and does so.
    void OfferRestart(const TForm& asker, TRestart restart);
    void ApplyFirefox();
    void TellFirefoxRestart(const TForm& asker);
    /// Apply is enabled exactly while something is pending.
    void EnableApply();
    /// Pages that were visited show again what is stored, when nothing is pending.
    void FormComeBack();
    /// A control's change was recorded.
    void PageChanged(TComponent& sender);
    /// Opens the page, or the dialog, and the sheet of the control and gives it the focus.
    void GoTo(const std::wstring& setting);
    void Export(const TForm& asker);
    void Import(TForm& asker, const std::wstring& path);
    /// Shows what the operations would do over the form that asks, and carries them out when the user agrees.
    void Review(TForm& asker, const TChangeSet& operations);
    /// A fault says how many of them failed.
    void CarryOutNow(const TForm& asker, const TChangeSet& operations);
    /// Made when it is first asked for.
    [[nodiscard]] TSettingNames& Names();

    void MakeDetails();
    /// What there is to say of the control, in full.
    void ShowHelp(const TControl* control);
    /// Says it in a box over the form.
    void Tell(const TForm& asker, const std::wstring& text);

    void ShowAbout();

    /// Opens the desktop-icons dialog with one of its sheets chosen, or one of its settings.
    void ShowFolderForm(const wchar_t* sheet, const std::wstring& setting = {});

    TSystem& FSystem;
    TSysControl FChanges;
    TAppFrame FAppFrame;
    TFirefoxPrefs FFirefox;
    TPageContext FContext;
    std::unique_ptr<TLanguage> FLanguage;
    std::vector<std::unique_ptr<TPage>> FPages;
    std::unique_ptr<TTwinControls> FTwins;
    std::unique_ptr<TPendingReview> FReview;
    std::unique_ptr<TSettingNames> FNames;
    TPageHeader FHeader{FContext};
    std::unique_ptr<TDetailsStrip> FDetails;
    std::unique_ptr<TFindBox> FFind;
    std::wstring FFileToOpen;     ///< once the window is ready
    std::set<int> FVisitedPages;  ///< tags of the pages whose loaders have run
    TCategoryItem* FSelectedItem = nullptr;
    bool FLoadingFinished = true;
    bool FIsCarryingOut = false;  ///< an Apply; while a service is waited for, messages are handled
};
