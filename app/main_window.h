// The main window: its life from creation to destruction, the category bar, and Apply.
#pragma once

#include <memory>
#include <set>

#include "app/twin_controls.h"
#include "platform/app_frame.h"
#include "platform/language.h"
#include "settings/net/firefox_prefs.h"
#include "settings/page_context.h"
#include "settings/page_table.h"
#include "ui/containers.h"
#include "ui/controls.h"

class TTimingLog;

class TQuilltune_FormMain : public TForm {
  public:
    /// Creates the window's controls and asks what Windows this is. `system` outlives the window.
    explicit TQuilltune_FormMain(TSystem& system);

    [[nodiscard]] const TPageContext& Context() const { return FContext; }

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
    void OfferRestart();
    void NotifyShell(bool associationsChanged);
    void ApplyFirefox();
    /// Apply is enabled exactly while something is pending.
    void EnableApply();
    /// A control's change was recorded.
    void PageChanged(TComponent& sender);
    /// Opens the desktop-icons dialog with one of its sheets chosen.
    void ShowFolderForm(const wchar_t* sheet);

    TSystem& FSystem;
    TSysControl FChanges;
    TAppFrame FAppFrame;
    TFirefoxPrefs FFirefox;
    TPageContext FContext;
    std::unique_ptr<TLanguage> FLanguage;
    std::vector<std::unique_ptr<TPage>> FPages;
    std::unique_ptr<TTwinControls> FTwins;
    std::set<int> FVisitedPages;  ///< tags of the pages whose loaders have run
    TCategoryItem* FSelectedItem = nullptr;
    bool FLoadingFinished = true;
};
