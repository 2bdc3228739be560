// The language files beside the program: which one is taken, and what bad ones do.
#include <shlobj.h>

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using std::filesystem::path;

/// Puts a file aside while it lives.
class TFileKeeper {
  public:
    explicit TFileKeeper(const path& file) : FFile(file), FKept(file.native() + L".kept") {
        std::error_code missing;
        rename(FFile, FKept, missing);
    }
    ~TFileKeeper() {
        std::error_code missing;
        std::filesystem::remove(FFile, missing);
        rename(FKept, FFile, missing);
    }
    TFileKeeper(const TFileKeeper&) = delete;
    TFileKeeper& operator=(const TFileKeeper&) = delete;

    void Write(const std::string& content) const {
        create_directories(FFile.parent_path());
        std::ofstream(FFile, std::ios::binary) << content;
    }

  private:
    path FFile;
    path FKept;
};

/// The suite's configuration of the user.
path SuiteConfiguration() {
    wchar_t folder[MAX_PATH + 1]{};
    SHGetSpecialFolderPathW(nullptr, folder, CSIDL_APPDATA, FALSE);
    return path(folder) / "Vandrel" / "Orbicare V4" / "Main.ini";
}

constexpr const wchar_t* kCancel = L"Button_Cancel";

class TLanguages : public TProgramTest {
  protected:
    void Choose(const std::string& language) {
        FConfiguration.Write("[Main]\r\nLanguage=" + language + "\r\n");
    }
    void ExpectEnglish() {
        const TProgram program;
        EXPECT_EQ(TextOf(program.Window().Handle()), L"Quilltune");
        EXPECT_EQ(program.Window().Text(kCancel), L"Cancel");
        EXPECT_FALSE(program.Window().Question());
    }

    TFileKeeper FConfiguration{SuiteConfiguration()};
    TFileKeeper FFile{ProgramFolder() + L"\\Toolbox_Language\\Test.lng"};
};

TEST_F(TLanguages, TranslateTheWindowAndItsQuestion) {
    std::string bytes = "\xFF\xFE";
    for (const wchar_t unit : std::wstring(
             L"[Scanner_Quilltune_FormMain]\r\nquilltune_formmain.caption=R\u00E9glages\r\n"
             L"Button_Cancel.Caption=\u53D6\u6D88\r\n"
             L"[Quilltune_M]\r\nD_SystemDriver=Ger\u00E4te\r\nD_RestartWindows=Neu starten \u00BF?\r\n")) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    FFile.Write(bytes);
    Choose("TEST");  // in whatever case
    const TProgram program;
    const TMainWindow& window = program.Window();
    EXPECT_EQ(TextOf(window.Handle()), L"R\u00E9glages");
    EXPECT_EQ(window.Text(kCancel), L"\u53D6\u6D88");
    EXPECT_EQ(window.Text(kDriverItem), L"Ger\u00E4te");
    EXPECT_EQ(window.Text(kMemoryItem), L"Memory and Cache") << "without a translation";
    window.Click(kDriverItem);
    window.Click(kUdmaBox);
    const TProgram::TAsked asked = program.ApplyWithoutRestart();
    EXPECT_EQ(asked.Title, L"R\u00E9glages");
    EXPECT_EQ(asked.Text, L"Neu starten \u00BF?");
}

TEST_F(TLanguages, OfTheDeliveryShowAndBadOnesFallBackToEnglish) {
    Choose("German");
    EXPECT_EQ(TProgram().Window().Text(kCancel), L"Abbrechen");
    Choose("No such language");
    ExpectEnglish();
    Choose("Test");
    std::string noise = "[Scanner_Quilltune_FormMain]";
    for (std::uint32_t i = 0; i < 200'000; ++i) noise += static_cast<char>(i * 2654435761U >> 24);
    for (const std::string& bad : {std::string(), std::string("\xFF\xFE[\0S", 5), noise}) {
        FFile.Write(bad);
        ExpectEnglish();
    }
    FConfiguration.Write(noise);
    ExpectEnglish();
}

}  // namespace
