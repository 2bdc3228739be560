// Random changes through the whole program, with whatever may be stored: their list, Apply, undo, the end at any moment.
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
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return bytes;
    DWORD size = GetFileSize(file, nullptr);
    bytes.resize(size);
    ReadFile(file, bytes.data(), size, &size, nullptr);
    CloseHandle(file);
    return bytes;
}
void PutFile(const std::wstring& path, const std::string& bytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
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
std::vector<std::wstring> Entries() {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((HistoryFolder() + L"\\*.reg").c_str(), &found);
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
        for (const std::wstring& entry : Entries()) DeleteFileW((HistoryFolder() + L"\\" + entry).c_str());
        wchar_t file[MAX_PATH]{};
        GetModuleFileNameW(nullptr, file, MAX_PATH);
        std::wstring program = file;
        program = L"\"" + program.substr(0, program.rfind(L'\\')) + L"\\service_program.exe\" 0 4";
        for (const wchar_t* name : kServices) {
            const SC_HANDLE service =
                CreateServiceW(FServices, name, name, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                               SERVICE_DEMAND_START, SERVICE_ERROR_IGNORE, program.c_str(), nullptr, nullptr,
                               nullptr, nullptr, nullptr);
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

    int Pick(int count) { return static_cast<int>(FRandom() % static_cast<unsigned>(count)); }
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
        while (const auto box = window.Question()) box->Answer(box->Offers(IDNO) ? IDNO : IDOK);
    }

    /// What a user may do on a page.
    void ActOnPage(const TMainWindow& window, int actions) {
        const auto some = [&](const auto& matches) {
            std::vector<TNamedControl> list;
            for (const TNamedControl& control : window.Controls())
                if (IsWindowEnabled(control.Window) && matches(control)) list.push_back(control);
            return list;
        };
        window.Click(PickOf(some([](const TNamedControl& control) {
                         return control.Name.find(L".Items[") != std::wstring::npos && IsWindowVisible(control.Window);
                     })).Name);
        const auto sheets = some([](const TNamedControl& control) {
            return control.Name.starts_with(L"TabSheet_") && IsWindowVisible(GetParent(control.Window));
        });
        if (!sheets.empty()) window.ChooseSheet(PickOf(sheets).Name);
        const auto pages = some([](const TNamedControl& control) {
            return control.Name[0] <= L'9' && IsWindowVisible(control.Window);
        });
        for (; actions > 0; --actions) {
            const auto controls = some([&](const TNamedControl& control) {
                return IsChild(pages.front().Window, control.Window) && IsWindowVisible(control.Window);
            });
            if (controls.empty()) return;
            Act(window, PickOf(controls));
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
            const bool isBox = (style & BS_TYPEMASK) > BS_DEFPUSHBUTTON && (style & BS_TYPEMASK) != BS_GROUPBOX;
            const bool isPreset = control.Name.ends_with(L"_Default") ||
                                  control.Name.ends_with(L"Performance") || control.Name.ends_with(L"Appearance");
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
        return rows;
    }

    /// Presses a button that carries something out, and says No or OK to all that follows.
    static void CarryOut(const TMainWindow& window, const wchar_t* button, const TMainWindow& main) {
        window.Click(button);
        constexpr DWORD kQuiet = 200;
        do AnswerAll(main);
        while (WaitUntil([&] { return main.Question().has_value(); }, kQuiet));
    }
    static void Undo(const TMainWindow& window, int row = 0) {
        window.Click(L"Button_History");
        const TMainWindow history = TMainWindow::WaitFor(window.Process(), kHistoryClass);
        if (row != 0) history.SelectRow(L"ListView_History", row);
        history.Click(L"Button_History_Undo");
        CarryOut(TMainWindow::WaitFor(window.Process(), kPreviewClass), L"Button_Preview_Apply", window);
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
            if (!row[1].starts_with(L"Service ")) KnownPlaces.insert(place);
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
    TSnapshot FBegin = RegistrySnapshot();
    SC_HANDLE FServices = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
    std::wstring FProfile = Variable(L"APPDATA") + L"\\Mozilla\\Firefox\\p";
    std::wstring FUserFile = FProfile + L"\\user.js";
};

TEST_F(TChanges, AreListedAppliedAndUndone) {
    for (int round = 0; round < 3; ++round) {
        Populate();
        const TProgram program;
        const TMainWindow& window = program.Window();
        const TWorld before = World();
        const int pages = 1 + Pick(4);
        for (int i = 0; i < pages; ++i) ActOnPage(window, 1 + Pick(6));
        const TRows rows = Pending(window);
        ExpectSame(World(), before, "before Apply");
        if (rows.empty()) continue;
        CarryOut(window, L"Button_Apply", window);
        const TWorld after = World();
        ExpectListed(rows, before, after);
        if (Entries().size() != static_cast<std::size_t>(1)) ADD_FAILURE() << Entries().size() << " entries";
        if (!Entries().empty()) {
            Undo(window);
            ExpectSame(World(), before, "after the undo");
            if (Pick(2) == 0) {
                Undo(window);
                ExpectSame(World(), after, "after the undo of the undo");
            }
        }
        for (const std::wstring& entry : Entries()) DeleteFileW((HistoryFolder() + L"\\" + entry).c_str());
        if (HasFailure()) {
            for (const auto& row : rows) std::printf("  %s\n", Utf8(row[1] + L" | " + row[2] + L" | " + row[3]).c_str());
            return;
        }
        Restore(FBegin);
    }
}

}  // namespace
