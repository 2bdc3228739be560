// The language of the interface: finds the language files, loads one, answers look-ups, translates forms.
#pragma once

#include "platform/ext_ini_file.h"

class TForm;

/// A language file NAME.lng is an INI file; NAME identifies the language. `system` outlives the object.
class TLanguage {
  public:
    /// Lists the languages in the folder "Language" beside the program. The file listed last stays loaded.
    TLanguage(const TSystem& system, std::wstring moduleName);
    /// Lists those of `folder` after them. Files are loaded from `folder` from then on.
    TLanguage(const TSystem& system, std::wstring moduleName, const std::wstring& folder);

    /// Loads the language of that name, in any case of its letters; when it is not listed or its file cannot be
    /// read, English; when that fails too, what was loaded before stays in force.
    void LoadLanguage(const std::wstring& name);

    /// A text of the loaded language, `fallback` when it has none there.
    [[nodiscard]] std::wstring ReadString(std::wstring_view section, std::wstring_view key,
                                          std::wstring_view fallback) const {
        return FIni.ReadString(section, key, fallback);
    }

    /// Gives the form, and of what it owns the labels, buttons, group boxes, check boxes, radio buttons, tab
    /// sheets, items of combo boxes and columns of list views, the texts of section module_form. What has no text
    /// there keeps the one it has. A failure ends the translation silently.
    void Translate(TForm& form) const;

    /// Where the files of the folder listed last are, without trailing delimiter.
    [[nodiscard]] const std::wstring& Folder() const { return FFolder; }
    /// The place of the loaded language in FileNames; -1 as long as there is none.
    [[nodiscard]] int Index() const { return FIndex; }
    /// The languages found, in the order in which they were found. Names may repeat.
    [[nodiscard]] const std::vector<std::wstring>& FileNames() const { return FFileNames; }
    /// The name of each of them as its speakers write it.
    [[nodiscard]] const std::vector<std::wstring>& DisplayNames() const { return FDisplayNames; }
    /// The lines of section module_M of the loaded language.
    [[nodiscard]] const TNamedLines& ModuleStrings() const { return FModuleStrings; }

  private:
    void ScanFolder(const std::wstring& folder);
    [[nodiscard]] bool TryLoad(const std::wstring& name);
    void TranslateTexts(TForm& form) const;

    const TSystem& FSystem;
    std::wstring FModuleName;
    std::wstring FFolder;
    int FIndex = -1;
    std::vector<std::wstring> FFileNames;
    std::vector<std::wstring> FDisplayNames;
    TExtIniFile FIni;
    TNamedLines FModuleStrings;
};
