// Every sheet and dialog in every language, in captions of greater length, on screens of several resolutions and in a small
// window: no text is wider than its control, and no control reaches beyond what it lies in.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "tests/fakes/fake_system.h"
#include "tests/win32/text_check.h"
#include "ui/design.h"
#include "ui/win32/png_decoder.h"

namespace {

namespace fs = std::filesystem;

constexpr UINT kResolutionChanged = 0x02E0;                       // WM_DPICHANGED
constexpr const wchar_t* kDotsVariable = L"QUILLTUNE_TEST_DOTS";  // set for the runs at other resolutions
const std::wstring kLanguageFolder = L"C:\\Program Files\\Quilltune\\Toolbox_Language\\";
const std::wstring kSuiteFolder = L"C:\\Users\\Me\\AppData\\Vandrel\\Orbicare V4\\";

/// A text that is longer by 70 per cent.
std::wstring Lengthened(std::wstring text) {
    const bool hasColon = text.ends_with(L':');
    const std::size_t words = static_cast<std::size_t>(std::count(text.begin(), text.end(), L' ')) + 1;
    const std::size_t word = std::max<std::size_t>(text.size() / words, 3);
    std::size_t more = text.size() * 7 / 10;
    if (hasColon) text.pop_back();
    for (; more > 0; more -= std::min(more, word)) text += L' ' + std::wstring(std::min(more, word), L'n');
    return hasColon ? text + L':' : text;
}

void Lengthen(const TForm& form) {
    for (const auto& component : form.Components()) {
        if (component->Kind() == TComponentKind::Timer) continue;
        auto& control = static_cast<TControl&>(*component);
        control.SetCaption(Lengthened(control.Caption()));
        if (control.Kind() != TComponentKind::ComboBox) continue;
        auto& box = static_cast<TComboBox&>(control);
        for (std::size_t i = 0; i < box.Items().size(); ++i) box.SetItem(i, Lengthened(box.Items()[i]));
    }
}

/// The sheets that lie in a control.
std::vector<TControl*> SheetsIn(const TControl& container) {
    std::vector<TControl*> sheets;
    for (const TControl* child : container.Children()) {
        if (child->Kind() != TComponentKind::PageControl) continue;
        const std::vector<TTabSheet*> offered = static_cast<const TPageControl*>(child)->OfferedSheets();
        sheets.insert(sheets.end(), offered.begin(), offered.end());
    }
    return sheets;
}

void HandleMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

/// Has a dialog looked at and goes on as if the user had closed it.
class TLookedAtWindow : public TFormWindow {
  public:
    using TFormWindow::TFormWindow;
    void ShowModal(TForm& dialog) override { OnDialog(dialog); }

    std::function<void(TForm& dialog)> OnDialog;
};

class TWholeTexts : public testing::Test {
  protected:
    /// The window stays hidden: its parts take their places all the same, and nothing has to be drawn.
    static TLookedAtWindow& Open(TForm& form, HWND owner = nullptr) {
        auto made = std::make_unique<TLookedAtWindow>(
            form, GetModuleHandleW(nullptr), [](const std::exception_ptr&) { ADD_FAILURE(); }, owner);
        TLookedAtWindow& window = *made;
        form.SetPeer(std::move(made));
        window.Show(SW_HIDE);
        for (const auto& component : form.Components())
            if (auto& control = static_cast<TControl&>(*component);
                component->Kind() != TComponentKind::Timer && control.IsLate)
                window.CreateLate(control);
        return window;
    }

    /// As when the user moves the window to a screen of that resolution.
    static void ComeTo(const TFormWindow& window, int dots) {
        if (window.Screen().DotsPerInch() == dots) return;
        const RECT place{0, 0, 1, 1};  // as small as it can be
        SendMessageW(window.Handle(), kResolutionChanged, MAKEWPARAM(dots, dots),
                     reinterpret_cast<LPARAM>(&place));
    }

    static void CheckSheets(TTextCheck& check, TForm& form) {
        for (const auto& component : form.Components()) {
            if (component->Kind() != TComponentKind::CategoryItem) continue;
            auto& item = static_cast<TCategoryItem&>(*component);
            if (!item.Visible()) continue;
            item.Click();
            CheckShown(check, form, *form.Find<TNotebook>(L"Notebook_Main")->ActivePage());
        }
    }

    static void CheckShown(TTextCheck& check, TForm& form, const TControl& page) {
        HandleMessages();
        check.Check(form);
        for (TControl* sheet : SheetsIn(page)) {
            form.Reveal(*sheet);
            HandleMessages();
            check.Check(*sheet);
        }
    }

    /// Those that the main window shows, and those that they show themselves.
    struct TDialogs {
        std::string Where;
        bool AreLonger = false;
        std::set<std::wstring> Seen;

        void Watch(TLookedAtWindow& window) {
            window.OnDialog = [this, &window](TForm& dialog) { Look(dialog, window.Handle()); };
        }
        void Look(TForm& dialog, HWND owner) {
            if (!Seen.insert(dialog.ClassName()).second) return;
            TLookedAtWindow& window = Open(dialog, owner);
            if (AreLonger) Lengthen(dialog);
            TTextCheck check(window);
            check.IsTight = AreLonger;
            for (const int dots : {96, 120, 144, 192}) {
                if (GetSystemMetrics(SM_CXSCREEN) < MulDiv(800, dots, 96)) continue;
                ComeTo(window, dots);
                check.Where = Where + ToUtf8(dialog.Name()) + ", " + std::to_string(dots) + " dots: ";
                CheckShown(check, dialog, dialog);
            }
            EXPECT_GT(check.Checked, 0);
            Watch(window);
            if (auto* undo = dialog.Find<TButton>(L"Button_History_Undo")) undo->Click();
            DestroyWindow(window.Handle());
        }
    };

    static void CheckDialogs(TLookedAtWindow& window, TForm& form, TDialogs dialogs) {
        dialogs.Watch(window);
        form.Find<TButton>(L"Button_Folder_Advanced_Desktop_Set")->Click();
        form.Switches.back().OnClick(true);
        auto* box = form.Find<TCheckBox>(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData");
        box->SetChecked(!box->Checked());
        for (const wchar_t* button : {L"Button_Changes", L"Button_Apply", L"Button_History"})
            form.Find<TButton>(button)->Click();
        EXPECT_EQ(dialogs.Seen.size(), 5U) << testing::PrintToString(dialogs.Seen);
    }

    static void CheckLanguage(const fs::path& path, const TVersionNumbers& version) {
        const std::string language = path.stem().string();
        std::ifstream stream(path, std::ios::binary);
        TFakeSystem fake;
        fake.Windows.SetVersion(version);
        fake.Registry.PutKey(TRootKey::LocalMachine,
                             L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
        fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Users\\Me\\AppData");
        fake.Files.Put(kLanguageFolder + path.filename().wstring(),
                       {std::istreambuf_iterator<char>(stream), {}});
        fake.Files.PutText(kSuiteFolder + L"Main.ini", "[Main]\nLanguage=" + language + "\n");
        TQuilltune_FormMain form(fake.System);
        form.Notices = PngNotices;
        TLookedAtWindow& window = Open(form);
        for (const wchar_t* timer : {L"Timer_Click", L"Timer_Loading"}) form.Find<TTimer>(timer)->Tick();
        TTextCheck check(window);
        const std::string where =
            language + " on Windows with kernel " + std::to_string(version.Major) + ", ";
        const auto checkAt = [&](const std::string& size) {
            check.Where = where + size + ": ";
            CheckSheets(check, form);
        };
        const int own = window.Screen().DotsPerInch();
        const std::vector<int> resolutions = own == 96 ? std::vector{96, 120, 144, 192} : std::vector{own};
        for (const int dots : resolutions) {
            ComeTo(window, dots);
            // On a screen that is too small for the window, not everything can be.
            check.IsTight = GetSystemMetrics(SM_CXSCREEN) < check.Scale(800);
            checkAt(std::to_string(dots) + " dots");
            if (dots != 96) continue;
            // What a task bar leaves of a screen of 800 by 600.
            SetWindowPos(window.Handle(), nullptr, 0, 0, 800, 570, SWP_NOZORDER | SWP_NOACTIVATE);
            checkAt("800 x 600");
        }
        CheckDialogs(window, form, {.Where = where});
        if (language == "English") {
            CheckDialogs(window, form, {.Where = where + "longer, ", .AreLonger = true});
            Lengthen(form);
            check.IsTight = true;
            for (const int dots : resolutions) {
                if (GetSystemMetrics(SM_CXSCREEN) < MulDiv(800, dots, 96)) continue;
                ComeTo(window, dots);
                checkAt("longer, " + std::to_string(dots) + " dots");
            }
        }
        EXPECT_GT(check.Checked, 1000);
        DestroyWindow(window.Handle());
    }
};

TEST_F(TWholeTexts, AreShownInEveryLanguageAndInLongerOnes) {
    wchar_t folder[MAX_PATH]{};
    GetEnvironmentVariableW(L"QUILLTUNE_DIR", folder, MAX_PATH);
    int languages = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(folder) / L"Toolbox_Language")) {
        ++languages;
        CheckLanguage(entry, {.PlatformId = 2, .Major = 6, .Minor = 1});
        CheckLanguage(entry, {.PlatformId = 2, .Major = 10, .Minor = 0, .Build = 26100});
    }
    EXPECT_GE(languages, 2);
}

/// A text of any length is whole: one that just fits, one that is just too long for its line, and one that takes several.
TEST_F(TWholeTexts, AreShownHoweverLongTheyAre) {
    TForm form(L"Form", L"TWholeTextsForm");
    form.ClientWidth = 330;
    form.Build(form, Group(L"Group", L"", Indent(CheckBox(L"Box", L"")), RadioButton(L"Choice", L""),
                           Fields(Row(Label(L"Before", L""), Edit(L"Number", L"").Width(5),
                                      UpDown(L"Arrows", L"Number", 0, 99999, 0), Label(L"Behind", L"")),
                                  Row(CheckBox(L"BoxBefore", L""), ComboBox(L"Short", {L"one", L"two"}))),
                           ComboBox(L"List", {L""}), Label(L"Text", L"")));
    form.Build(form, Ends(Row(Button(L"Note", L"")), Buttons(Button(L"Link", L""))));
    form.Build(form, Buttons(Button(L"First", L""), Button(L"Second", L"")));
    TFormWindow& window = Open(form);
    TTextCheck check(window);
    std::wstring text = L"Words";
    for (int length = 1; length < 90; ++length) {
        // Every step is narrow, so that each width is hit within a few pixels.
        text += length % 6 == 0 ? L" n" : L"i";
        for (const wchar_t* name : {L"Box", L"Choice", L"Text"}) form.Find(name)->SetCaption(text);
        for (const wchar_t* name :
             {L"Group", L"Before", L"Behind", L"BoxBefore", L"Note", L"Link", L"First", L"Second"})
            form.Find(name)->SetCaption(text.substr(0, text.size() / 2));
        form.Find<TComboBox>(L"List")->SetItem(0, text.substr(0, 60));
        HandleMessages();
        check.Where = std::to_string(text.size()) + " characters: ";
        check.Check(form);
    }
    EXPECT_EQ(check.Checked, 89 * 15);
    DestroyWindow(window.Handle());
}

/// The bar of categories becomes as wide as they need, up to a bound.
TEST_F(TWholeTexts, OfCategoriesAreShownUpToTheGreatestWidth) {
    TForm form(L"Form", L"TWholeTextsForm");
    form.Build(form,
               Row(CategoryBar(L"Bar", Designs(CategoryGroup(L"Group", L"Group",
                                                             Designs(CategoryItem(L"Item", L"", 1, L""))))),
                   Notebook(L"Pages", {})));
    TFormWindow& window = Open(form);
    TTextCheck check(window);
    const int mostText = check.Scale(190);
    std::wstring text = L"W";
    for (; window.Screen().TextSize(text, mostText * 2).Width * 9 / 8 < mostText; text += L"n") {
        form.Find(L"Item")->SetCaption(text);
        SendMessageW(window.Handle(), WM_SIZE, 0, 0);  // the bar gets its width with the window
        HandleMessages();
        check.Check(form);
    }
    EXPECT_GT(text.size(), 15U);
    DestroyWindow(window.Handle());
}

/// Runs the tests above in a process of its own, which sees another resolution.
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

TEST_F(TWholeTexts, AreShownAtAnotherResolutionOfWindows) {
    if (GetEnvironmentVariableW(kDotsVariable, nullptr, 0) != 0) {
        wchar_t dots[8]{};
        GetEnvironmentVariableW(kDotsVariable, dots, 8);
        EXPECT_EQ(std::to_wstring(TScreen(DotsPerInchOf(nullptr)).DotsPerInch()), dots) << "of this process";
        return;
    }
    constexpr DWORD kDots = 144;
    HKEY key{};
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", 0, KEY_SET_VALUE, &key),
              ERROR_SUCCESS);
    RegSetValueExW(key, L"LogPixels", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&kDots), sizeof kDots);
    EXPECT_EQ(RunAt(kDots), 0U);
    RegDeleteValueW(key, L"LogPixels");
    RegCloseKey(key);
}

}  // namespace
