// Libraries that lie beside the program under the names of Windows' own.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

/// A copy of planted_library.dll in the program's folder, which Wine is told to prefer to its own library of that name.
class TPlanted {
  public:
    explicit TPlanted(const std::wstring& name)
        : FName(name), FOrder{HKEY_CURRENT_USER, kOrders, FName.c_str()}, FKeeper({FOrder}) {
        wchar_t path[MAX_PATH]{};
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring folder(path, std::wstring_view(path).rfind(L'\\') + 1);
        EXPECT_TRUE(CopyFileW((folder + L"planted_library.dll").c_str(), File().c_str(), FALSE));
        Store(FOrder, Text(L"native,builtin"));
    }
    ~TPlanted() {
        for (const std::wstring& file : {File(), Trace()}) DeleteFileW(file.c_str());
    }
    TPlanted(const TPlanted&) = delete;
    TPlanted& operator=(const TPlanted&) = delete;

    [[nodiscard]] const std::wstring& Name() const { return FName; }
    [[nodiscard]] bool WasLoaded() const {
        return GetFileAttributesW(Trace().c_str()) != INVALID_FILE_ATTRIBUTES;
    }

  private:
    static constexpr const wchar_t* kOrders = L"Software\\Wine\\AppDefaults\\Quilltune.exe\\DllOverrides";

    [[nodiscard]] std::wstring File() const {
        const bool isLibrary = FName.find(L'.') == std::wstring::npos;
        return ProgramFolder() + L'\\' + FName + (isLibrary ? L".dll" : L"");
    }
    [[nodiscard]] std::wstring Trace() const { return File() + L".loaded"; }

    std::wstring FName;
    TValuePlace FOrder;
    TValueKeeper FKeeper;
};

using TLibraries = TProgramTest;

/// Opens pages, the file dialog and the colour dialog.
void UseProgram() {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(L"RzGroup_Display.Items[0]");
    window.ChooseSheet(L"TabSheet_FileType_OpenFile");
    window.Click(L"Radio_FileType_OpenFile_DefaultPrograme_Open");
    window.Click(L"Button_FileType_OpenFile_DefaultPrograme_Change");
    window.WaitForQuestion().Answer(IDCANCEL);
    window.Click(L"RzGroup_Display.Items[1]");
    window.ChooseSheet(L"TabSheet_Folder_Choose");
    window.Click(L"Button_Folder_Choose_Click_Change");
    window.WaitForQuestion().Answer(IDCANCEL);
}

TEST_F(TLibraries, NoneIsLoadedFromTheProgramsFolder) {
    std::vector<std::unique_ptr<TPlanted>> planted;
    for (const wchar_t* name : {L"advapi32", L"combase", L"comctl32", L"comdlg32", L"compstui",    L"dwmapi",
                                L"gdi32",    L"imm32",   L"msimg32",  L"ole32",    L"oleaut32",    L"propsys",
                                L"riched20", L"rpcrt4",  L"sechost",  L"shcore",   L"shell32",     L"shlwapi",
                                L"user32",   L"usp10",   L"uxtheme",  L"version",  L"winspool.drv"})
        planted.push_back(std::make_unique<TPlanted>(name));
    EXPECT_NO_THROW(UseProgram());
    for (const auto& each : planted) EXPECT_FALSE(each->WasLoaded()) << Utf8(each->Name());
}

}  // namespace
