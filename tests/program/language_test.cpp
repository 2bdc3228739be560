// The language files beside the program: which one is taken, in which encoding, and what bad ones do.
#include <shlobj.h>

#include <set>

#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TBytes = std::string;

/// A file as it was, put back when this goes.
class TFileKeeper {
  public:
    explicit TFileKeeper(std::wstring file) : FFile(std::move(file)) {
        const HANDLE handle = CreateFileW(FFile.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        if (handle == INVALID_HANDLE_VALUE) return;
        FContent.emplace(GetFileSize(handle, nullptr), '\0');
        DWORD done = 0;
        FComplete = ReadFile(handle, FContent->data(), static_cast<DWORD>(FContent->size()), &done, nullptr);
        CloseHandle(handle);
    }
    ~TFileKeeper() {
        if (!FContent)
            DeleteFileW(FFile.c_str());
        else if (FComplete)
            Write(*FContent);
    }
    TFileKeeper(const TFileKeeper&) = delete;
    TFileKeeper& operator=(const TFileKeeper&) = delete;

    void Write(const TBytes& content) const {
        const HANDLE handle =
            CreateFileW(FFile.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD done = 0;
        const bool written =
            handle != INVALID_HANDLE_VALUE &&
            WriteFile(handle, content.data(), static_cast<DWORD>(content.size()), &done, nullptr);
        CloseHandle(handle);
        if (!written) throw TAutomationError(L"cannot write " + FFile);
    }

  private:
    std::wstring FFile;
    std::optional<TBytes> FContent;
    bool FComplete = false;
};

/// The suite's configuration of the user, in folders made when they are missing.
std::wstring SuiteConfiguration() {
    wchar_t folder[MAX_PATH + 1];
    if (!SHGetSpecialFolderPathW(nullptr, folder, CSIDL_APPDATA, FALSE))
        throw TAutomationError(L"no folder for application data");
    std::wstring path = folder;
    for (const wchar_t* inner : {L"\\Vandrel", L"\\Orbicare V4"})
        CreateDirectoryW((path += inner).c_str(), nullptr);
    return path + L"\\Main.ini";
}

std::wstring LanguageFile(const std::wstring& name) {
    return ProgramFolder() + L"\\Toolbox_Language\\" + name + L".lng";
}

constexpr const wchar_t* kTitle = L"R\u00E9glages";
constexpr const wchar_t* kBox = L"\u00DCber = alles";
constexpr const wchar_t* kDriver = L"Ger\u00E4te";
constexpr const wchar_t* kQuestion = L"Neu starten \u00BF?";

/// A language file that translates one text of each sort, written as people write them.
std::wstring Translation() {
    return std::wstring(
               L"; a translation\r\nlost = before the first section\r\n[Main]\r\nDisplayName=Test\r\n") +
           L"[scanner_quilltune_formmain]\r\n  quilltune_formmain.caption = " + kTitle + L"  \r\n" +
           L"Checkbox_Drives_Common_Enable.Caption=overridden\r\n" +
           L"Checkbox_Drives_Common_Enable.Caption=" + kBox + L"\r\nno equals sign\r\n\r\n" +
           L"[Quilltune_M]\r\nD_SystemDriver=" + kDriver + L"\r\nD_RestartWindows=" + kQuestion + L"\r\n";
}

TBytes Utf16(const std::wstring& text, bool bigEndian) {
    TBytes bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const wchar_t unit : text) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

TBytes Ansi(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    TBytes bytes(text.size() * 4, '\0');
    bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_ACP, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

/// Megabytes of lines that mean nothing, one of them of a megabyte, and the translation behind them.
TBytes Huge() {
    TBytes bytes = "\xEF\xBB\xBF[Scanner_Quilltune_FormMain]\r\n";
    for (int i = 0; i < 100000; ++i)
        bytes += "Label_" + std::to_string(i) + ".Caption=nothing of this form\r\n";
    bytes.append(1 << 20, '[') += "\r\n";
    return bytes + Utf8(Translation());
}

TBytes Noise() {
    TBytes bytes = "[Scanner_Quilltune_FormMain]";
    std::uint32_t state = 12345;
    for (int i = 0; i < 200000; ++i) {
        state = state * 1664525 + 1013904223;
        bytes += static_cast<char>(state >> 24);
    }
    return bytes;
}

class TLanguages : public TProgramTest {
  protected:
    /// Starts the program with that language chosen and looks whether it comes up translated or in English.
    void ExpectStart(const char* chosen, bool translated) {
        SCOPED_TRACE(chosen);
        FConfiguration.Write("[Main]\r\nLanguage=" + TBytes(chosen) + "\r\n");
        const TProgram program;
        const TMainWindow& window = program.Window();
        EXPECT_EQ(TextOf(window.Handle()), translated ? kTitle : L"Quilltune");
        EXPECT_EQ(window.Text(kDriverItem), translated ? kDriver : L"Driver");
        EXPECT_EQ(window.Text(kMemoryItem), L"Memory and Cache")
            << "a key that neither file has but in English";
        if (translated) {
            EXPECT_EQ(window.Text(L"Checkbox_Drives_Common_Enable"), kBox);
        }
        EXPECT_FALSE(window.Question());
    }

    TFileKeeper FConfiguration{SuiteConfiguration()};
};

TEST_F(TLanguages, AreReadInEveryEncoding) {
    const TFileKeeper utf8(LanguageFile(L"Test_UTF8"));
    const TFileKeeper little(LanguageFile(L"Test_Little"));
    const TFileKeeper big(LanguageFile(L"Test_Big"));
    const TFileKeeper ansi(LanguageFile(L"Test_Ansi"));
    utf8.Write("\xEF\xBB\xBF" + Utf8(Translation()));
    little.Write(Utf16(Translation(), false));
    big.Write(Utf16(Translation(), true));
    ansi.Write(Ansi(Translation()));
    ExpectStart("Test_UTF8", true);
    ExpectStart("Test_Little", true);
    ExpectStart("test_big", true);  // in whatever case
    ExpectStart("Test_Ansi", true);
}

TEST_F(TLanguages, TranslateTheRestartQuestion) {
    const TFileKeeper file(LanguageFile(L"Test"));
    file.Write(Utf16(Translation(), false));
    FConfiguration.Write("[Main]\r\nLanguage=Test\r\n");
    const TProgram program;
    program.Window().Click(kDriverItem);
    program.Window().Click(L"Checkbox_Drives_Common_Enable");
    const TProgram::TAsked asked = program.ApplyWithoutRestart();
    EXPECT_EQ(asked.Title, kTitle);
    EXPECT_EQ(asked.Text, kQuestion);
}

TEST_F(TLanguages, FallBackToEnglish) {
    ExpectStart("No such language", false);
    ExpectStart("", false);
    FConfiguration.Write(Noise());
    const TProgram program;
    EXPECT_EQ(program.Window().Text(kDriverItem), L"Driver");
}

TEST_F(TLanguages, OfTheDeliveryShow) {
    std::set<std::wstring> seen;
    for (const char* language : {"English", "German"}) {
        FConfiguration.Write("[Main]\r\nLanguage=" + TBytes(language) + "\r\n");
        const TProgram program;
        for (const wchar_t* control : {kMemoryItem, L"Button_Cancel", L"Checkbox_Drives_Common_Enable"})
            EXPECT_TRUE(seen.insert(program.Window().Text(control)).second)
                << Utf8(control) << " is not translated";
    }
}

TEST_F(TLanguages, MayBeMissing) {
    const std::wstring folder = ProgramFolder() + L"\\Toolbox_Language";
    const std::wstring away = folder + L"_away";
    ASSERT_TRUE(MoveFileW(folder.c_str(), away.c_str()));
    ExpectStart("German", false);
    EXPECT_TRUE(MoveFileW(away.c_str(), folder.c_str()));
}

TEST_F(TLanguages, SurviveBadFiles) {
    const TFileKeeper empty(LanguageFile(L"Test_Empty"));
    const TFileKeeper mark(LanguageFile(L"Test_Mark"));
    const TFileKeeper odd(LanguageFile(L"Test_Odd"));
    const TFileKeeper noise(LanguageFile(L"Test_Noise"));
    const TFileKeeper broken(LanguageFile(L"Test_Broken"));
    empty.Write("");
    mark.Write("\xFF\xFE");
    odd.Write(Utf16(L"[Scanner_Quilltune_FormMain]\r\n", false) + "x");
    noise.Write(Noise());
    broken.Write("[\r\n]\r\n[]\r\n=\r\n=value\r\n[Scanner_Quilltune_FormMain\r\n" +
                 Ansi(Translation()).substr(0, 90));
    // A folder that is called like a language.
    CreateDirectoryW(LanguageFile(L"Test_Folder").c_str(), nullptr);
    for (const char* name :
         {"Test_Empty", "Test_Mark", "Test_Odd", "Test_Noise", "Test_Broken", "Test_Folder"})
        ExpectStart(name, false);
    RemoveDirectoryW(LanguageFile(L"Test_Folder").c_str());
}

TEST_F(TLanguages, MayBeHuge) {
    const TFileKeeper file(LanguageFile(L"Test_Huge"));
    file.Write(Huge());
    ExpectStart("Test_Huge", true);
}

}  // namespace
