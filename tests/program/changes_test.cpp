// Random changes through the whole program, with whatever may be stored: their list, Apply, undo, the end at any moment.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "tests/program/history_fixture.h"

namespace {

constexpr const wchar_t* kServices[] = {L"wscsvc", L"MpsSvc"};

std::wstring Lower(std::wstring text) {
    CharLowerW(text.data());
    return text;
}

/// Places that the lists of earlier rounds have named; anything may be stored there in the next ones.
std::set<std::wstring> KnownPlaces;

class TChanges : public THistoryTest {
  protected:
    TChanges() : FRandom(static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed())) {
        MakeFolder(FProfile);
        PutFile(Variable(L"APPDATA") + L"\\Mozilla\\Firefox\\profiles.ini",
                "[Profile0]\nIsRelative=1\nPath=p\n");
        Store({HKEY_LOCAL_MACHINE,
               L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox", L""},
              Text(L""));
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

}  // namespace
