// What a change set would do, asked before it is carried out.
#pragma once

#include "engine/change_set.h"
#include "settings/captions.h"
#include "ui/controls.h"
#include "ui/form.h"

class TLanguage;

/// A change set as a list shows it: place, now, after. Of operations at one place the last one stands for all, and a key
/// that is deleted has everything in it and below it with it; what is not as a way back expects it says so.
[[nodiscard]] std::vector<TListView::TRow> PreviewRows(TSystem& system, const TChangeSet& changeSet,
                                                       const TPreferenceStore* preferences,
                                                       const TCaptions& captions);

/// Made anew for each showing.
class TQuilltune_FormPreview : public TForm {
  public:
    /// `language` outlives the dialog.
    TQuilltune_FormPreview(const TLanguage& language, std::vector<TListView::TRow> rows);

    /// Whether the user wants it carried out.
    [[nodiscard]] bool Accepted() const { return FAccepted; }

  private:
    bool FAccepted = false;
};
