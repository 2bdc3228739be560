// The desktop-icons dialog: the icons on the desktop and in My Computer, and the drives that are hidden.
#pragma once

#include "platform/language.h"
#include "settings/page.h"

/// A button that opens the dialog, and the sheet that it opens.
inline constexpr const wchar_t* kFolderButton = L"Button_Folder_Advanced_Desktop_Set";
inline constexpr const wchar_t* kFolderSheet = L"TabSheet_Folder_Desktop";

/// Made anew for each showing. Its changes are its own: OK writes them at once, everything else drops them.
class TQuilltune_FormFolder : public TForm {
  public:
    /// `owner` is the main window's; it and `language` outlive the dialog.
    TQuilltune_FormFolder(const TPageContext& owner, const TLanguage& language);

    [[nodiscard]] const TPageContext& Context() const { return FContext; }

    void ChooseSheet(const wchar_t* name);

  private:
    void FormShow();
    void Button_OKClick();

    const TLanguage& FLanguage;
    TSysControl FChanges;
    TPageContext FContext;
    TPage FPage;
};
