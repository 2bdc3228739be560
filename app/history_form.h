// The list of what was applied, each with its way back.
#pragma once

#include "app/history.h"
#include "app/setting_names.h"
#include "ui/controls.h"
#include "ui/form.h"

/// What the list asks of the main window.
struct THistoryHost {
    std::function<std::vector<TListView::TRow>(const TChangeSet& wayBack)> Preview;
    /// Shows what it would do and carries it out when the user agrees.
    std::function<void(TForm& asker, const TChangeSet& wayBack)> Undo;
    /// The same with a file that the user chooses.
    std::function<void(TForm& asker)> Import;
};

/// Made anew for each showing.
class TQuilltune_FormHistory : public TForm {
  public:
    /// Everything outlives the dialog.
    TQuilltune_FormHistory(TSystem& system, const TCaptions& captions, const TLanguage& language,
                           const TSettingNames& names, THistoryHost host);

  private:
    void ShowEntries();
    void ShowSelected();
    void Button_History_UndoClick();
    /// The way back of the selected entry; null when none is selected or it cannot be read.
    [[nodiscard]] const TChangeSet* Selected() const;

    const TCaptions& FCaptions;
    const TSettingNames& FNames;
    THistoryHost FHost;
    THistory FHistory;
    std::vector<std::optional<TChangeSet>> FWaysBack;  ///< of the entries, in their order
    TListView* FEntries = nullptr;
};
