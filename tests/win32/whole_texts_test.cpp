// Every sheet in every language, in captions of greater length, on screens of several resolutions and in a small window: no
// text is wider than its control, and no control reaches beyond what it lies in.
#include <commctrl.h>

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "platform/unicode.h"
#include "tests/fakes/fake_system.h"
#include "ui/containers.h"
#include "ui/win32/form_window.h"

namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kDotsVariable = L"QUILLTUNE_TEST_DOTS";  // set for the runs at other resolutions
const std::wstring kLanguageFolder = L"C:\\Program Files\\Quilltune\\Toolbox_Language\\";
const std::wstring kSuiteFolder = L"C:\\Users\\Me\\AppData\\Vandrel\\Orbicare V4\\";

/// Every text but the explanations, longer by 70 per cent.
std::string Lengthened(const std::string& file) {
    std::string longer;
    for (std::size_t start = 0; start < file.size();) {
        const std::size_t end = std::min(file.find('\n', start), file.size());
        std::string line = file.substr(start, end - start);
        if (line.ends_with('\r')) line.pop_back();
        const std::size_t equals = line.find(".Caption=");
        if (equals != std::string::npos) {
            const std::string text = line.substr(equals + 9);
            const std::size_t colon = text.ends_with(':') ? 1 : 0;
            const std::size_t words = std::count(text.begin(), text.end(), ' ') + 1U;
            line.resize(line.size() - colon);
            for (std::size_t more = text.size() * 7 / 10, word = text.size() / words; more > 0;) {
                const std::size_t letters = std::min(more, std::max<std::size_t>(word, 3));
                line += ' ' + std::string(letters, 'n');
                more -= letters;
            }
            line.append(colon, ':');
        }
        longer += line + "\r\n";
        start = end + 1;
    }
    return longer;
}

class TWholeTexts : public testing::Test {
  protected:
    void Open(const std::wstring& language, const std::string& file, const TVersionNumbers& version) {
        Fake.Windows.SetVersion(version);
        Fake.Registry.PutKey(TRootKey::LocalMachine,
                             L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
        Fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Users\\Me\\AppData");
        Fake.Files.Put(kLanguageFolder + language + L".lng", {file.begin(), file.end()});
        Fake.Files.PutText(kSuiteFolder + L"Main.ini", "[Main]\nLanguage=" + ToUtf8(language) + "\n");
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
        TFormWindow::Attach(*Window, GetModuleHandleW(nullptr), [](const std::exception_ptr&) {
            ADD_FAILURE();
        }).Show(SW_SHOW);
        for (const wchar_t* timer : {L"Timer_Click", L"Timer_Loading"}) Window->Find<TTimer>(timer)->Tick();
    }

    static HWND HandleOf(const TControl& control) {
        const auto* peer = dynamic_cast<const TWindowPeer*>(control.Peer());
        return peer == nullptr ? nullptr : peer->Handle();
    }

    void Complain(const TControl& control, const std::string& what) {
        if (Told.insert({control.Name(), what}).second)
            ADD_FAILURE() << Where << ToUtf8(control.Name()) << " \"" << ToUtf8(control.Caption())
                          << "\": " << what;
    }

    /// The size of a text in the font of the window, wrapped at this width unless it is 0.
    static SIZE TextSize(HWND window, const std::wstring& text, int width) {
        const HDC dc = GetDC(window);
        const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
        RECT area{0, 0, width, 0};
        DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area,
                  DT_CALCRECT | (width != 0 ? DT_WORDBREAK : DT_SINGLELINE));
        SelectObject(dc, old);
        ReleaseDC(window, dc);
        return {area.right, area.bottom};
    }

    static int Scale(int distance) {
        const HDC dc = GetDC(nullptr);
        const int dots = GetDeviceCaps(dc, LOGPIXELSY);
        ReleaseDC(nullptr, dc);
        return MulDiv(distance, dots, 96);
    }

    void CheckText(const TControl& control, HWND window) {
        RECT inside{};
        GetClientRect(window, &inside);
        const int width = static_cast<int>(inside.right);
        const auto fits = [&](const std::wstring& text, int beside, bool wraps) {
            const SIZE size = TextSize(window, text, wraps ? width - beside : 0);
            if (size.cx > width - beside)
                Complain(control,
                         "too narrow: " + std::to_string(size.cx) + " in " + std::to_string(width - beside));
            if (size.cy > inside.bottom)
                Complain(control,
                         "too low: " + std::to_string(size.cy) + " in " + std::to_string(inside.bottom));
        };
        const bool wraps = (GetWindowLongW(window, GWL_STYLE) & BS_MULTILINE) != 0;
        switch (control.Kind()) {
            case TComponentKind::CheckBox:
            case TComponentKind::RadioButton:
                return fits(control.Caption(), Scale(13) + 3, wraps);
            case TComponentKind::Button:
                return fits(control.Caption(), Scale(8), wraps);
            case TComponentKind::GroupBox:
                return fits(control.Caption(), Scale(4), false);
            case TComponentKind::CategoryItem:
                return fits(control.Caption(), Scale(30), false);
            case TComponentKind::Label:
                // Those of fixed lines are cut in a way of their own.
                if (static_cast<const TLabel&>(control).Lines == 0) fits(control.Caption(), 0, true);
                return;
            case TComponentKind::ComboBox:
                for (const std::wstring& item : static_cast<const TComboBox&>(control).Items())
                    fits(item, GetSystemMetrics(SM_CXVSCROLL) + Scale(6), false);
                return;
            default:
                return;
        }
    }

    /// Sideways always; downwards where nothing scrolls.
    void CheckPlace(const TControl& control, HWND window) {
        const HWND parent = GetParent(window);
        RECT place{};
        RECT room{};
        GetWindowRect(window, &place);
        GetClientRect(parent, &room);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
        const bool scrolls = (GetWindowLongW(parent, GWL_STYLE) & WS_VSCROLL) != 0;
        if (place.left < 0 || place.right > room.right ||
            (!scrolls && (place.top < 0 || place.bottom > room.bottom)))
            Complain(control, "beyond what it lies in");
    }

    void CheckShown() {
        for (const auto& component : Window->Components()) {
            if (component->Kind() == TComponentKind::Timer) continue;
            const auto& control = static_cast<const TControl&>(*component);
            const HWND window = HandleOf(control);
            if (window == nullptr || !IsWindowVisible(window)) continue;
            ++Checked;
            CheckPlace(control, window);
            CheckText(control, window);
        }
    }

    void CheckSheets() {
        for (const auto& component : Window->Components()) {
            if (component->Kind() != TComponentKind::CategoryItem) continue;
            auto& item = static_cast<TCategoryItem&>(*component);
            if (item.Visible()) item.Click();
        }
        for (const auto& component : Window->Components()) {
            if (component->Kind() != TComponentKind::TabSheet) continue;
            auto& sheet = static_cast<TControl&>(*component);
            Window->Reveal(sheet);
            CheckShown();
        }
    }

    void CheckLanguage(const std::wstring& language, const std::string& file, const std::string& name) {
        CheckVersion(language, file, name + " on Windows 7, ", {.PlatformId = 2, .Major = 6, .Minor = 1});
        CheckVersion(language, file, name + " on Windows 11, ",
                     {.PlatformId = 2, .Major = 10, .Minor = 0, .Build = 26100});
    }
    void CheckVersion(const std::wstring& language, const std::string& file, const std::string& name,
                      const TVersionNumbers& version) {
        Open(language, file, version);
        const HWND window = HandleOf(*Window);
        Where = name + std::to_string(Scale(96)) + " dots: ";
        CheckSheets();
        if (Scale(96) == 96) {
            // What a task bar leaves of a screen of 800 by 600.
            SetWindowPos(window, nullptr, 0, 0, 800, 570, SWP_NOZORDER | SWP_NOACTIVATE);
            Where = name + "800 x 600: ";
            CheckSheets();
        }
        DestroyWindow(window);
        Window.reset();
        Told.clear();
    }

    TFakeSystem Fake;
    std::unique_ptr<TQuilltune_FormMain> Window;
    std::string Where;
    std::set<std::pair<std::wstring, std::string>> Told;
    int Checked = 0;
};

TEST_F(TWholeTexts, AreShownInEveryLanguageAndInLongerOnes) {
    std::vector<fs::path> files;
    wchar_t folder[MAX_PATH]{};
    GetEnvironmentVariableW(L"QUILLTUNE_DIR", folder, MAX_PATH);
    for (const auto& entry : fs::directory_iterator(fs::path(folder) / L"Toolbox_Language"))
        files.push_back(entry);
    ASSERT_GE(files.size(), 2U);
    for (const fs::path& path : files) {
        std::ifstream stream(path, std::ios::binary);
        const std::string file{std::istreambuf_iterator<char>(stream), {}};
        const std::string name = path.stem().string();
        CheckLanguage(path.stem().wstring(), file, name);
        // On a screen that is too small for the window, not everything can be.
        const bool isWhole = GetSystemMetrics(SM_CXSCREEN) >= Scale(800);
        if (name == "English" && isWhole)
            CheckLanguage(path.stem().wstring(), Lengthened(file), "longer English");
    }
    EXPECT_GT(Checked, 1000);
}

/// Runs the test above in a process of its own, which sees another resolution.
DWORD RunAt(DWORD dots) {
    wchar_t program[MAX_PATH]{};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring line = std::wstring(L"\"") + program + L"\" --gtest_filter=TWholeTexts.* --gtest_brief=1";
    SetEnvironmentVariableW(kDotsVariable, std::to_wstring(dots).c_str());
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    DWORD status = ~0U;
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) {
        if (WaitForSingleObject(process.hProcess, 120'000) == WAIT_OBJECT_0)
            GetExitCodeProcess(process.hProcess, &status);
        else
            TerminateProcess(process.hProcess, status);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    SetEnvironmentVariableW(kDotsVariable, nullptr);
    return status;
}

TEST_F(TWholeTexts, AreShownAtHigherResolutions) {
    if (GetEnvironmentVariableW(kDotsVariable, nullptr, 0) != 0) {
        wchar_t dots[8]{};
        GetEnvironmentVariableW(kDotsVariable, dots, 8);
        EXPECT_EQ(std::to_wstring(Scale(96)), dots) << "of this process";
        return;
    }
    for (const DWORD dots : {120, 144, 192}) {
        HKEY key{};
        ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", 0, KEY_SET_VALUE, &key),
                  ERROR_SUCCESS);
        RegSetValueExW(key, L"LogPixels", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&dots), sizeof dots);
        EXPECT_EQ(RunAt(dots), 0U) << dots;
        RegDeleteValueW(key, L"LogPixels");
        RegCloseKey(key);
    }
}

}  // namespace
