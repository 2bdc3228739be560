// What a change set would do, asked before it is carried out.
#pragma once

#include "ui/controls.h"
#include "ui/form.h"

class TLanguage;

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
