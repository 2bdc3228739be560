// What the program is, whose work is in it, and where it keeps its settings.
#pragma once

#include "platform/language.h"
#include "platform/system.h"
#include "settings/captions.h"
#include "ui/form.h"

/// Made anew for each showing.
class TQuilltune_FormAbout : public TForm {
  public:
    /// `notices` are those of the libraries in the program. Everything outlives the dialog.
    TQuilltune_FormAbout(TSystem& system, const TCaptions& captions, const TLanguage& language,
                         const std::wstring& notices);

  private:
    void FormShow(const TLanguage& language, const std::wstring& notices);
    void Button_About_FolderClick();

    TSystem& FSystem;
    const TCaptions& FCaptions;
};
