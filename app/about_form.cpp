#include "app/about_form.h"

#include "platform/file_version.h"
#include "platform/suite_language.h"
#include "ui/controls.h"
#include "ui/design.h"

TQuilltune_FormAbout::TQuilltune_FormAbout(TSystem& system, const TCaptions& captions,
                                           const TLanguage& language, const std::wstring& notices)
    : TForm(L"Quilltune_FormAbout", L"TQuilltune_FormAbout"), FSystem(system), FCaptions(captions) {
    SetCaption(L"About Quilltune");
    ClientWidth = 420;
    ClientHeight = 330;
    Build(
        *this,
        Column(
            Label(L"Label_About_Version", L""),
            Group(
                L"GroupBox_About_Libraries", L"Libraries in this program", Label(L"Label_About_Notices", L""),
                Label(
                    L"Label_About_Licenses",
                    L"Licensed under the PNG Reference Library License version 2 and the zlib License, which "
                    L"permit their use for any purpose. They are supplied as they are, without any "
                    L"warranty.")),
            Group(L"GroupBox_About_Folder", L"Settings and history", Label(L"Label_About_Folder", L"")),
            Ends(Row(Button(L"Button_About_Folder", L"&Open Folder")),
                 Buttons(Button(L"Button_About_Close", L"Close")))));
    OnShow = [this, &language, &notices](TComponent&) { FormShow(language, notices); };
    Find<TButton>(L"Button_About_Folder")->OnClick = [this](TComponent&) { Button_About_FolderClick(); };
    auto* close = Find<TButton>(L"Button_About_Close");
    close->Cancel = true;
    close->OnClick = [this](TComponent&) { Close(); };
    FirstFocus = close;
}

void TQuilltune_FormAbout::FormShow(const TLanguage& language, const std::wstring& notices) {
    language.Translate(*this);
    TFileVersionRecord version;
    if (GetFileVersionInfoRecord(FSystem, FSystem.Windows.ProgramFile(), version, {}))
        Find(L"Label_About_Version")
            ->SetCaption(version.ProductName + L' ' + version.ProductVersion + L'\n' +
                         version.LegalCopyright);
    Find(L"Label_About_Notices")->SetCaption(notices);
    Find(L"Label_About_Folder")->SetCaption(SuiteFolder(FSystem));
}

void TQuilltune_FormAbout::Button_About_FolderClick() {
    if (FSystem.Shell.OpenFolder(SuiteFolder(FSystem))) return;
    Find(L"Label_About_Folder")->SetCaption(FCaptions[TCaption::NoSuiteFolder]);
    Find(L"Button_About_Folder")->SetEnabled(false);
}
