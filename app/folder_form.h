// The desktop-icons dialog: the icons on the desktop and in My Computer, and the drives that are hidden.
#pragma once

#include "platform/language.h"
#include "settings/page.h"

/// Made anew for each showing. Its changes are its own: OK writes them at once, everything else drops them.
class TQuilltune_FormFolder : public TForm {
  public:
    /// `owner` is the main window's; it and `language` outlive the dialog.
    TQuilltune_FormFolder(const TPageContext& owner, const TLanguage& language);

    void ChooseSheet(const wchar_t* name);

  private:
    void FormShow();
    void Button_OKClick();

    const TLanguage& FLanguage;
    TSysControl FChanges;
    TPageContext FContext;
    TPage FPage;
};
