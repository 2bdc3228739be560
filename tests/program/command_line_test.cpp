// The real command line beside the real window: pipes, exit statuses, one registry.
#include "tests/program/program.h"

namespace {

struct TAnswer {
    DWORD Status = 0;
    std::string Output;
    std::string Messages;
};

/// A pipe whose writing end a started program inherits.
class TPipe {
  public:
    TPipe() {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        if (!CreatePipe(&FReader, &FWriter, &inherited, 0)) throw TAutomationError(L"cannot create a pipe");
        SetHandleInformation(FReader, HANDLE_FLAG_INHERIT, 0);
    }
    ~TPipe() { CloseHandle(FReader); }
    TPipe(const TPipe&) = delete;
    TPipe& operator=(const TPipe&) = delete;

    [[nodiscard]] HANDLE Writer() const { return FWriter; }
    /// What was written until now; the program has ended.
    [[nodiscard]] std::string Content() const {
        CloseHandle(FWriter);
        std::string content;
        char part[4096];
        DWORD size = 0;
        while (ReadFile(FReader, part, sizeof part, &size, nullptr) && size != 0) content.append(part, size);
        return content;
    }

  private:
    HANDLE FReader = nullptr;
    HANDLE FWriter = nullptr;
};

/// Its answers are shorter than what a pipe holds.
TAnswer Qtune(const std::wstring& arguments) {
    const TPipe output;
    const TPipe messages;
    const std::wstring file = ProgramFolder() + L"\\qtune.exe";
    std::wstring commandLine = L"\"" + file + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.Writer();
    startup.hStdError = messages.Writer();
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(file.c_str(), commandLine.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &startup, &process))
        throw TAutomationError(L"cannot start " + file);
    CloseHandle(process.hThread);
    const bool ended = WaitForSingleObject(process.hProcess, kPatience) == WAIT_OBJECT_0;
    if (!ended) TerminateProcess(process.hProcess, 1);
    TAnswer answer;
    GetExitCodeProcess(process.hProcess, &answer.Status);
    CloseHandle(process.hProcess);
    if (!ended) throw TAutomationError(L"it does not end: " + commandLine);
    answer.Output = output.Content();
    answer.Messages = messages.Content();
    return answer;
}

class TQtune : public TProgramTest {
  protected:
    static constexpr const wchar_t* kBox = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
};

TEST_F(TQtune, AnswersThroughPipesAndByItsStatus) {
    Store(kLastAccess, Dword(1));
    EXPECT_EQ(Qtune(L"get NTFS_SaveLastVisitData").Output, "off\n");
    const TAnswer wrong = Qtune(
        L"get * \"\xDC"
        L"ber\"");
    EXPECT_EQ(wrong.Status, 2u);
    EXPECT_NE(wrong.Messages.find("\"*\""), std::string::npos) << "no file names: " << wrong.Messages;
    EXPECT_NE(Qtune(L"get \"\xDC"
                    L"ber\"")
                  .Messages.find("\xC3\x9C"
                                 "ber"),
              std::string::npos)
        << "UTF-8";
    EXPECT_NE(Qtune(L"get x+y --language German").Messages.find("hei\xC3\x9Ft"), std::string::npos);
    const TAnswer set = Qtune(L"set NTFS_SaveLastVisitData=on");
    EXPECT_EQ(set.Status, 0u) << set.Messages;
    EXPECT_EQ(Stored(kLastAccess), Dword(0));
    EXPECT_EQ(Qtune(L"set Drives_Common_Enable=on").Status, 3010u);
    EXPECT_EQ(Stored(kEnableUdma), Dword(1));
    EXPECT_EQ(Qtune(L"undo").Status, 3010u);
    EXPECT_EQ(Qtune(L"undo 3").Status, 0u);
    EXPECT_EQ(Stored(kLastAccess), Dword(1));
}

TEST_F(TQtune, ChangesWhatTheWindowShowsWhenItComesToTheFront) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    ASSERT_TRUE(window.Checked(kBox));
    EXPECT_EQ(Qtune(L"set NTFS_SaveLastVisitData=off").Status, 0u);
    EXPECT_TRUE(window.Checked(kBox));
    // What the window hears when the user comes back. (To take the foreground away and give it back does not always
    // reach it without a window manager.)
    PostMessageW(window.Handle(), WM_ACTIVATEAPP, TRUE, 0);
    EXPECT_TRUE(WaitUntil([&] { return !window.Checked(kBox); }));
    EXPECT_FALSE(window.Enabled(L"Button_Apply"));
}

}  // namespace
