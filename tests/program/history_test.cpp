// The history as the user has it: entries and files that are undone or taken, broken ones, and all of it by keyboard.
#include <gtest/gtest.h>

#include "tests/program/history_fixture.h"

namespace {

class THistory : public THistoryTest {};

constexpr const wchar_t* kVisitsBox = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
const std::wstring kImported = L"HKEY_CURRENT_USER\\Software\\Imported";

/// A file beside the program that goes with the test.
struct TRegFile {
    TRegFile(const wchar_t* name, const std::string& text) : Path(ProgramFolder() + L"\\" + name) {
        PutFile(Path, text);
    }
    ~TRegFile() { DeleteFileW(Path.c_str()); }
    TRegFile(const TRegFile&) = delete;
    TRegFile& operator=(const TRegFile&) = delete;
    [[nodiscard]] std::wstring Quoted() const { return L'"' + Path + L'"'; }

    std::wstring Path;
};

TEST_F(THistory, FilesAreTakenAfterAPreviewOnly) {
    const TRegFile file(
        L"some.reg", "Windows Registry Editor Version 5.00\r\n\r\n[" + Utf8(kImported) +
                         "\\Key]\r\n\"Number\"=dword:00000007\r\n@=\"text\"\r\n\"Odd\"=hex(1234):01,02\r\n");
    const TRegFile broken(L"broken.reg", "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"x\"=dword:zz\r\n");
    const TSnapshot before = RegistrySnapshot();
    const auto imported = [&] { return Differences(before, RegistrySnapshot()); };
    const TProcess program(file.Quoted());
    const TMainWindow window = TMainWindow::WaitFor(program.Id());
    TMainWindow preview = TMainWindow::WaitFor(program.Id(), kPreviewClass);
    const TRows rows = preview.Rows(L"ListView_Preview");
    EXPECT_EQ(rows.size(), 3u) << testing::PrintToString(rows);
    EXPECT_FALSE(IsWindowEnabled(window.Handle()));
    preview.Click(L"Button_Preview_Cancel");
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(window.Handle()) != FALSE; }));
    EXPECT_TRUE(imported().empty() && Entries().empty());

    EXPECT_EQ(TProcess(broken.Quoted()).ExitCode(), 0u) << "handed over";
    const TMessageBox box = window.WaitForQuestion();
    EXPECT_NE(box.Text().find(L"broken.reg"), std::wstring::npos);
    EXPECT_NE(box.Text().find(L"4"), std::wstring::npos) << "the line: " << Utf8(box.Text());
    box.Answer(IDOK);

    EXPECT_EQ(TProcess(file.Quoted()).ExitCode(), 0u);
    preview = TMainWindow::WaitFor(program.Id(), kPreviewClass);
    preview.Click(L"Button_Preview_Apply");
    EXPECT_TRUE(WaitUntil([&] { return imported().size() == 5; })) << testing::PrintToString(imported());
    EXPECT_EQ(Stored({HKEY_CURRENT_USER, L"Software\\Imported\\Key", L"Odd"}), TStoredValue(0x1234, {1, 2}));
    ASSERT_EQ(Entries().size(), 1u);
    Undo(window);
    EXPECT_TRUE(imported().empty()) << testing::PrintToString(imported());
}

TEST_F(THistory, AreWrittenWithoutAHistoryAndTheLogSaysSo) {
    const std::wstring log = ProgramFolder() + L"\\Error_Log.txt";
    DeleteFileW(log.c_str());
    MakeFolder(HistoryFolder());
    ASSERT_TRUE(RemoveDirectoryW(HistoryFolder().c_str()));
    PutFile(HistoryFolder(), "in the way");
    {
        const TProgram program;
        program.Window().Click(kDriverItem);
        program.Window().Click(kVisitsBox);
        program.Apply();
        EXPECT_EQ(Stored(kLastAccess), Dword(1));
        EXPECT_TRUE(WaitUntil([&] { return FileBytes(log).find("history") != std::string::npos; }));
        program.Window().Click(L"Button_History");
        const TMainWindow history = TMainWindow::WaitFor(program.Id(), kHistoryClass);
        EXPECT_TRUE(history.Rows(L"ListView_History").empty());
        EXPECT_FALSE(history.Enabled(L"Button_History_Undo"));
    }
    DeleteFileW(log.c_str());
    ClearHistory();
}

TEST_F(THistory, EntriesThatAreBrokenStayAlone) {
    MakeFolder(HistoryFolder());
    PutFile(HistoryFolder() + L"\\2020-01-02 03.04.05.reg", "nonsense");
    PutFile(HistoryFolder() + L"\\2020-01-02 03.04.04 2.reg",
            "Windows Registry Editor Version 5.00\r\n\r\n[" + Utf8(kImported) + "]\r\n\"x\"=\"y\"\r\n");
    PutFile(HistoryFolder() + L"\\other.reg", "REGEDIT4\r\n");
    const TProgram program;
    program.Window().Click(L"Button_History");
    const TMainWindow history = TMainWindow::WaitFor(program.Id(), kHistoryClass);
    const TRows rows = history.Rows(L"ListView_History");
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0], (std::vector<std::wstring>{L"2020-01-02 03.04.05", L"(cannot be read)"}));
    EXPECT_FALSE(history.Enabled(L"Button_History_Undo"));
    EXPECT_TRUE(history.Rows(L"ListView_History_Changes").empty());
    // Sent, so that it is handled before the selection that follows.
    const HWND list = history.Find(L"ListView_History");
    SendMessageW(list, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(FindWindowW(kPreviewClass, nullptr), nullptr) << "there is nothing to show";
    history.SelectRow(L"ListView_History", 1);
    EXPECT_TRUE(WaitUntil([&] { return history.Enabled(L"Button_History_Undo"); }));
    EXPECT_EQ(history.Rows(L"ListView_History_Changes").size(), 1u);
    SendMessageW(list, WM_KEYDOWN, VK_DELETE, 0);
    history.Click(L"Button_History_Close");
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(history.Handle()); }));
    EXPECT_EQ(Entries().size(), 3u) << "nothing else is ever removed";
}

TEST_F(THistory, CanBeTakenBackAndUndoneByKeyboardAlone) {
    Store(kLastAccess, Dword(0));
    const TProgram program;
    const TMainWindow& window = program.Window();
    const auto goTo = [](const TMainWindow& form, const std::wstring& control) {
        for (int i = 0; i < 60 && form.FocusedControl() != control; ++i) {
            const std::wstring before = form.FocusedControl();
            form.Press(VK_TAB);
            ASSERT_TRUE(WaitUntil([&] { return form.FocusedControl() != before; })) << Utf8(before);
        }
        ASSERT_EQ(form.FocusedControl(), control);
    };
    const auto waitFor = [&](const wchar_t* windowClass) {
        const TMainWindow form = TMainWindow::WaitFor(program.Id(), windowClass);
        EXPECT_TRUE(WaitUntil([&] {
            GUITHREADINFO info{};
            info.cbSize = sizeof info;
            GetGUIThreadInfo(GetWindowThreadProcessId(form.Handle(), nullptr), &info);
            return IsChild(form.Handle(), info.hwndFocus) != FALSE;
        })) << "it takes the focus";
        return form;
    };
    const auto isGone = [](const TMainWindow& form) {
        return WaitUntil([&] { return !IsWindow(form.Handle()); });
    };
    window.Click(kDriverItem);
    window.Click(kVisitsBox);
    goTo(window, L"Button_Changes");
    window.Press(VK_RETURN);
    for (const WORD key : {VK_RETURN, VK_ESCAPE, VK_DELETE}) {
        if (key != VK_RETURN) {
            goTo(window, L"Button_Changes");
            window.Press(VK_SPACE);
        }
        const TMainWindow list = waitFor(L"TQuilltune_FormChanges");
        goTo(list, L"ListView_Changes");
        list.Press(VK_HOME);
        if (key != VK_ESCAPE) list.Press(VK_SPACE);
        list.Press(key);
        if (key == VK_DELETE) {
            EXPECT_TRUE(WaitUntil([&] { return list.Rows(L"ListView_Changes").empty(); }));
            goTo(list, L"Button_Changes_Close");
            list.Press(VK_RETURN);
        }
        ASSERT_TRUE(isGone(list)) << key;
        const std::wstring next = key == VK_RETURN ? kVisitsBox : L"Button_Changes";
        EXPECT_TRUE(key == VK_DELETE || WaitUntil([&] { return window.FocusedControl() == next; }));
        EXPECT_TRUE(WaitUntil([&] { return window.Enabled(L"Button_Apply") == (key != VK_DELETE); }));
    }
    window.Click(kVisitsBox);
    program.Apply();
    EXPECT_EQ(Stored(kLastAccess), Dword(1));
    goTo(window, L"Button_History");
    window.Press(VK_RETURN);
    const TMainWindow history = waitFor(kHistoryClass);
    goTo(history, L"ListView_History_Changes");
    goTo(history, L"ListView_History");
    history.Press(VK_RETURN);
    TMainWindow preview = waitFor(kPreviewClass);
    preview.Press(VK_ESCAPE);
    ASSERT_TRUE(isGone(preview));
    EXPECT_EQ(Stored(kLastAccess), Dword(1));
    goTo(history, L"Button_History_Undo");
    history.Press(VK_SPACE);
    preview = waitFor(kPreviewClass);
    goTo(preview, L"ListView_Preview");
    preview.Press(VK_RETURN);
    ASSERT_TRUE(isGone(preview));
    // The list is made anew when all is done.
    EXPECT_TRUE(WaitUntil([&] { return history.Rows(L"ListView_History").size() == 2; }));
    EXPECT_EQ(Stored(kLastAccess), Dword(0));
    history.Press(VK_ESCAPE);
    ASSERT_TRUE(isGone(history));
    EXPECT_TRUE(window.Checked(kVisitsBox)) << "loaded again";
}

}  // namespace
