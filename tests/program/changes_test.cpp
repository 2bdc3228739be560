// Random changes through the whole program, with whatever may be stored: their list, Apply, undo, the end at any moment.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "tests/program/registry_snapshot.h"

namespace {

constexpr const wchar_t* kHistoryClass = L"TQuilltune_FormHistory";
constexpr const wchar_t* kPreviewClass = L"TQuilltune_FormPreview";
constexpr const wchar_t* kServices[] = {L"wscsvc", L"MpsSvc"};

std::wstring Variable(const wchar_t* name) {
    wchar_t text[MAX_PATH]{};
    GetEnvironmentVariableW(name, text, MAX_PATH);
    return text;
}
std::wstring HistoryFolder() { return Variable(L"APPDATA") + L"\\Vandrel\\Orbicare V4\\Quilltune\\History"; }

std::wstring Lower(std::wstring text) {
    CharLowerW(text.data());
    return text;
}

std::string FileBytes(const std::wstring& path) {
    std::string bytes;
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return bytes;
    DWORD size = GetFileSize(file, nullptr);
    bytes.resize(size);
    ReadFile(file, bytes.data(), size, &size, nullptr);
    CloseHandle(file);
    return bytes;
}
void PutFile(const std::wstring& path, const std::string& bytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw TAutomationError(L"cannot write " + path);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
}
/// A folder with all above it.
void MakeFolder(const std::wstring& path) {
    for (std::size_t end = path.find(L'\\', 3); end != std::wstring::npos; end = path.find(L'\\', end + 1))
        CreateDirectoryW(path.substr(0, end).c_str(), nullptr);
    CreateDirectoryW(path.c_str(), nullptr);
}
std::vector<std::wstring> Entries(const wchar_t* pattern = L"*.reg") {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((HistoryFolder() + L"\\" + pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do names.push_back(found.cFileName);
    while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

/// Places that the lists of earlier rounds have named; anything may be stored there in the next ones.
std::set<std::wstring> KnownPlaces;

class TChanges : public TProgramTest {
  protected:
    TChanges() : FRandom(static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed())) {
        MakeFolder(FProfile);
        PutFile(Variable(L"APPDATA") + L"\\Mozilla\\Firefox\\profiles.ini",
                "[Profile0]\nIsRelative=1\nPath=p\n");
        Store({HKEY_LOCAL_MACHINE,
               L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox", L""},
              Text(L""));
        ClearHistory();
        wchar_t file[MAX_PATH]{};
        GetModuleFileNameW(nullptr, file, MAX_PATH);
        std::wstring program = file;
        program = L"\"" + program.substr(0, program.rfind(L'\\')) + L"\\service_program.exe\" 0 4";
        for (const wchar_t* name : kServices) {
            const SC_HANDLE service = CreateServiceW(
                FServices, name, name, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START,
                SERVICE_ERROR_IGNORE, program.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr);
            if (service == nullptr) throw TAutomationError(L"cannot create " + std::wstring(name));
            if (Pick(2) == 0) StartServiceW(service, 0, nullptr);
            CloseServiceHandle(service);
        }
    }
    ~TChanges() override {
        for (const wchar_t* name : kServices) {
            const SC_HANDLE service = OpenServiceW(FServices, name, SERVICE_ALL_ACCESS);
            SERVICE_STATUS status;
            ControlService(service, SERVICE_CONTROL_STOP, &status);
            DeleteService(service);
            CloseServiceHandle(service);
        }
        CloseServiceHandle(FServices);
        Restore(FBegin);
    }

    static void ClearHistory() {
        // What is being written when a program is killed lies there too.
        for (const std::wstring& entry : Entries(L"*"))
            DeleteFileW((HistoryFolder() + L"\\" + entry).c_str());
        DeleteFileW(HistoryFolder().c_str());
    }
    int Pick(int count) {
        if (count <= 0) throw TAutomationError(L"nothing to pick from");
        return static_cast<int>(FRandom() % static_cast<unsigned>(count));
    }
    template <typename T>
    const T& PickOf(const std::vector<T>& list) {
        return list[static_cast<std::size_t>(Pick(static_cast<int>(list.size())))];
    }

    struct TWorld {
        TSnapshot Registry;
        std::vector<DWORD> Services;
        std::string UserFile;
    };
    TWorld World() const {
        TWorld world{RegistrySnapshot(), {}, FileBytes(FUserFile)};
        for (const wchar_t* name : kServices) {
            const SC_HANDLE service = OpenServiceW(FServices, name, SERVICE_ALL_ACCESS);
            SERVICE_STATUS status{};
            QueryServiceStatus(service, &status);
            CloseServiceHandle(service);
            world.Services.push_back(status.dwCurrentState);
        }
        return world;
    }
    static void ExpectSame(const TWorld& is, const TWorld& was, const char* what) {
        for (const std::wstring& place : Differences(was.Registry, is.Registry)) {
            const auto show = [&](const TSnapshot& snapshot) {
                const auto found = snapshot.find(place);
                return found == snapshot.end() ? "nothing" : testing::PrintToString(found->second);
            };
            ADD_FAILURE() << what << ": " << Utf8(place) << "\n was " << show(was.Registry) << "\n is "
                          << show(is.Registry);
        }
        EXPECT_EQ(is.Services, was.Services) << what;
        EXPECT_EQ(is.UserFile, was.UserFile) << what;
    }

    /// Stores anything at places that the program changes.
    void Populate() {
        const std::vector<TStoredValue> odd = {
            {REG_MULTI_SZ, {'a', 0, 0, 0, 'b', 0, 0, 0, 0, 0}},
            {REG_QWORD, {1, 2, 3, 4, 5, 6, 7, 8}},
            {REG_SZ, {'4', 0, '2', 0}},
            {REG_SZ, {'4', 0, '2'}},
            {0x1234, {1}},
            {REG_DWORD, {1, 2}},
            {REG_NONE, {}},
            {REG_EXPAND_SZ, {'%', 0, 'a', 0, '%', 0, 0, 0, 'x', 0}},
            Dword(0),
            Dword(1),
            Text(L"no"),
            {REG_SZ, {}},
        };
        for (const std::wstring& place : KnownPlaces) {
            const int what = Pick(6);
            const TStoredValue& value = PickOf(odd);
            if (what < 3 || what == 5) Store(place, value);
            if (what == 3 || what == 5) Store(place + L"\\Below\\Below\\beside", value);
        }
        PutFile(FUserFile, Pick(2) == 0 ? "// mine\nuser_pref(\"browser.urlbar.autoFill\",true);\n"
                                          "user_pref( \"browser.blink_allowed\" , false ) ; // no\r\n"
                                        : "");
        const wchar_t* const versions[] = {L"win2k", L"winxp", L"win7"};
        Store(kPlayedVersion, Text(versions[Pick(3)]));
    }

    /// Answers whatever is asked so that nothing more happens.
    static void AnswerAll(const TMainWindow& window) {
        while (const auto box = window.Question())
            for (const int answer : {IDNO, IDCANCEL, IDOK})
                if (box->Offers(answer)) {
                    box->Answer(answer);
                    break;
                }
    }

    /// What a user may do on a page.
    void ActOnPage(const TMainWindow& window, int actions) {
        std::vector<std::wstring> items;
        for (const TNamedControl& control : window.Controls())
            if (control.Name.find(L".Items[") != std::wstring::npos && IsWindowVisible(control.Window))
                items.push_back(control.Name);
        window.Click(PickOf(items));
        // A page that takes long to load answers before it is shown.
        std::vector<TNamedControl> controls;
        HWND page = nullptr;
        const bool isShown = WaitUntil([&] {
            controls = window.Controls();
            for (const TNamedControl& control : controls)
                if (control.Name[0] <= L'9' && IsWindowVisible(control.Window)) page = control.Window;
            return page != nullptr;
        });
        if (!isShown) throw TAutomationError(L"no page is shown");
        std::erase_if(controls, [=](const TNamedControl& control) {
            return !IsChild(page, control.Window) || ClassOf(control.Window) == L"Static";
        });
        if (const HWND tabs = FindWindowExW(page, nullptr, WC_TABCONTROLW, nullptr)) {
            const auto count = static_cast<int>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
            SendMessageW(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(Pick(count)), 0);
        }
        for (; actions > 0; --actions) {
            const TNamedControl& control = PickOf(controls);
            if (IsWindowEnabled(control.Window) && IsWindowVisible(control.Window)) Act(window, control);
            AnswerAll(window);
        }
    }

    void Act(const TMainWindow& window, const TNamedControl& control) {
        const std::wstring kind = Lower(ClassOf(control.Window));
        const auto press = [&](UINT message, WPARAM wParam, LPARAM lParam) {
            SendMessageTimeoutW(control.Window, message, wParam, lParam, SMTO_NORMAL, kPatience, nullptr);
        };
        const LONG style = GetWindowLongW(control.Window, GWL_STYLE);
        if (kind == L"button") {
            const bool isBox =
                (style & BS_TYPEMASK) > BS_DEFPUSHBUTTON && (style & BS_TYPEMASK) != BS_GROUPBOX;
            const bool isPreset = control.Name.ends_with(L"_Default") ||
                                  control.Name.ends_with(L"Performance") ||
                                  control.Name.ends_with(L"Appearance");
            if (isBox || (isPreset && Pick(3) == 0)) window.Click(control.Name);
        } else if (kind == L"combobox") {
            const auto count = SendMessageW(control.Window, CB_GETCOUNT, 0, 0);
            if (count > 0) window.ChooseItem(control.Name, Pick(static_cast<int>(count)));
        } else if (kind == L"edit" && (style & ES_READONLY) == 0) {
            window.Type(control.Name, std::to_wstring(Pick(300)));
        } else if (kind == L"msctls_updown32") {
            press(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, Pick(2) == 0 ? 2 : 18));
            press(WM_LBUTTONUP, 0, MAKELPARAM(3, 2));
        } else if (kind == L"msctls_trackbar32") {
            const WORD keys[] = {VK_LEFT, VK_RIGHT, VK_HOME, VK_END};
            press(WM_KEYDOWN, keys[Pick(4)], 1);
        }
    }

    using TRows = std::vector<std::vector<std::wstring>>;
    static TRows Pending(const TMainWindow& window) {
        if (!window.Enabled(L"Button_Changes")) return {};
        window.Click(L"Button_Changes");
        const TMainWindow list = TMainWindow::WaitFor(window.Process(), L"TQuilltune_FormChanges");
        TRows rows = list.Rows(L"ListView_Changes");
        list.Click(L"Button_Changes_Close");
        for (const auto& row : rows)
            if (row[1].starts_with(L"HKEY_")) KnownPlaces.insert(row[1]);
        return rows;
    }

    /// Presses a button, does `meanwhile` while that is handled, and says No or OK to all that follows, until it is done.
    static void CarryOut(
        const TMainWindow& window, const wchar_t* button, const TMainWindow& main,
        const std::function<void()>& meanwhile = [] {}) {
        static bool done;
        done = false;
        SendMessageCallbackW(
            window.Find(button), BM_CLICK, 0, 0, [](HWND, UINT, ULONG_PTR, LRESULT) { done = true; }, 0);
        meanwhile();
        EXPECT_TRUE(WaitUntil([&] {
            AnswerAll(main);
            MSG message;
            PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // calls back
            return done;
        }));
    }
    /// Undoes the newest entry.
    static void Undo(const TMainWindow& window) {
        window.Click(L"Button_History");
        const TMainWindow history = TMainWindow::WaitFor(window.Process(), kHistoryClass);
        CarryOut(history, L"Button_History_Undo", window, [&] {
            TMainWindow::WaitFor(window.Process(), kPreviewClass).Click(L"Button_Preview_Apply");
        });
        history.Click(L"Button_History_Close");
    }

    static void ExpectListed(const TRows& rows, const TWorld& before, const TWorld& after) {
        std::set<std::wstring> listed;
        std::set<std::wstring> changing;
        bool files = false;
        for (const auto& row : rows) {
            std::wstring place = row[1];
            const bool changes = row[2] != row[3] && !row[3].ends_with(L"(a later change decides)");
            if (place.starts_with(L"Firefox: ")) files = true;
            if (place.starts_with(L"Service "))
                place = L"HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\" + place.substr(8);
            if (!place.starts_with(L"HKEY_")) continue;
            const std::wstring classes = L"HKEY_CLASSES_ROOT";
            if (place.starts_with(classes))
                place.replace(0, classes.size(), L"HKEY_LOCAL_MACHINE\\Software\\Classes");
            listed.insert(Lower(place));
            if (changes) changing.insert(Lower(place));
        }
        const auto differences = Differences(before.Registry, after.Registry);
        for (const std::wstring& place : differences) {
            const std::wstring name = Lower(place);
            if (name.starts_with(L"hkey_current_user\\control panel")) continue;
            const bool isKey = name.ends_with(L'\\');
            const bool named = std::ranges::any_of(listed, [&](const std::wstring& each) {
                return each == name || name.starts_with(each + L'\\') || (isKey && each.starts_with(name));
            });
            EXPECT_TRUE(named) << "not listed: " << Utf8(place);
        }
        for (const std::wstring& each : changing) {
            const bool differs = std::ranges::any_of(differences, [&](const std::wstring& place) {
                const std::wstring name = Lower(place);
                return each == name || name.starts_with(each + L'\\');
            });
            EXPECT_TRUE(differs) << "listed and not changed: " << Utf8(each);
        }
        EXPECT_TRUE(files || before.UserFile == after.UserFile);
    }

    std::mt19937 FRandom;
    testing::ScopedTrace FSeed{
        __FILE__, __LINE__,
        testing::Message() << "--gtest_random_seed=" << testing::UnitTest::GetInstance()->random_seed()};
    TSnapshot FBegin = RegistrySnapshot();
    SC_HANDLE FServices = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
    std::wstring FProfile = Variable(L"APPDATA") + L"\\Mozilla\\Firefox\\p";
    std::wstring FUserFile = FProfile + L"\\user.js";
};

TEST_F(TChanges, AreListedAppliedAndUndone) {
    for (int round = 0; round < 2; ++round) {
        Populate();
        const TProgram program;
        const TMainWindow& window = program.Window();
        const TWorld before = World();
        const int pages = 1 + Pick(4);
        for (int i = 0; i < pages; ++i) ActOnPage(window, Pick(40));
        const TRows rows = Pending(window);
        ExpectSame(World(), before, "before Apply");
        if (rows.empty()) continue;
        CarryOut(window, L"Button_Apply", window);
        const TWorld after = World();
        ExpectListed(rows, before, after);
        const bool differs = !Differences(before.Registry, after.Registry).empty() ||
                             before.UserFile != after.UserFile || before.Services != after.Services;
        EXPECT_EQ(Entries().size(), differs ? 1u : 0u);
        if (!Entries().empty()) {
            Undo(window);
            ExpectSame(World(), before, "after the undo");
            if (Pick(2) == 0) {
                Undo(window);
                ExpectSame(World(), after, "after the undo of the undo");
            }
        }
        ClearHistory();
        if (HasFailure()) {
            for (const auto& row : rows)
                std::printf("  %s\n", Utf8(row[1] + L" | " + row[2] + L" | " + row[3]).c_str());
            return;
        }
        Restore(FBegin);
    }
}

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

TEST_F(TChanges, AreUndoneAfterAnEndInTheMiddleOfApply) {
    int entries = 0;
    for (int round = 0; round < 2 || (entries == 0 && round < 8); ++round) {
        Populate();
        const TWorld before = World();
        {
            const TProgram program;
            for (int i = 0; i < 6; ++i) ActOnPage(program.Window(), 30);
            (void)Pending(program.Window());
            const HWND apply = program.Window().Find(L"Button_Apply");
            PostMessageW(apply, BM_CLICK, 0, 0);
            if (Pick(4) != 0)
                (void)WaitUntil([=] { return !Entries().empty() || !IsWindowEnabled(apply); }, 3000);
            Sleep(static_cast<DWORD>(Pick(30)));
        }
        const TWorld after = World();
        const auto names = Entries();
        if (names.empty()) {
            ExpectSame(after, before, "no way back");
        } else {
            ++entries;
            const TProgram program;
            Undo(program.Window());
            ExpectSame(World(), before, "after the undo");
        }
        ClearHistory();
        Restore(FBegin);
        if (HasFailure()) return;
    }
    EXPECT_GT(entries, 0) << "Apply never came so far";
}

TEST_F(TChanges, FilesAreTakenAfterAPreviewOnly) {
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

TEST_F(TChanges, AreWrittenWithoutAHistoryAndTheLogSaysSo) {
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

TEST_F(TChanges, EntriesThatAreBrokenStayAlone) {
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

TEST_F(TChanges, CanBeTakenBackAndUndoneByKeyboardAlone) {
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
