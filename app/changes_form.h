// The list of pending changes.
#pragma once

#include "app/setting_names.h"
#include "ui/controls.h"
#include "ui/form.h"

/// What the list asks of the window whose changes it shows.
struct TPendingHost {
    std::function<std::vector<TChange>()> Pending;
    std::function<void(const std::vector<std::wstring>& settings)> TakeBack;
    /// Writes what is pending into a file that the user chooses.
    std::function<void(const TForm& asker)> Export;
};

/// Made anew for each showing.
class TQuilltune_FormChanges : public TForm {
  public:
    /// Everything outlives the dialog.
    TQuilltune_FormChanges(const TCaptions& captions, const TLanguage& language, const TSettingNames& names,
                           TPendingHost host);

    /// The setting that the user wants to see; empty when there is none.
    [[nodiscard]] const std::wstring& Chosen() const { return FChosen; }

  private:
    void ShowChanges();
    void EnableButtons();
    void Button_Changes_RevertClick();
    void ChooseFocused();

    const TCaptions& FCaptions;
    const TSettingNames& FNames;
    TPendingHost FHost;
    std::vector<TChange> FChanges;  ///< as the list shows them
    std::wstring FChosen;
    TListView& FList;
};
