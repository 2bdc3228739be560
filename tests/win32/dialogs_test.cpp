// Message boxes and common dialogs over a form, while another window is the active one.
#include <filesystem>
#include <fstream>

#include "app/win32/dialogs_win32.h"
#include "tests/win32/peer_bench.h"

namespace {

/// The dialogs of the thread that can be seen, the form's windows not counted.
std::vector<HWND> ShownDialogs() {
    std::vector<HWND> shown;
    const auto add = [](HWND window, LPARAM list) -> BOOL {
        wchar_t name[20]{};
        GetClassNameW(window, name, 20);
        if (IsWindowVisible(window) && lstrcmpW(name, L"#32770") == 0)
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&shown));
    return shown;
}

class TDialogsWin32 : public TPeerBench {
  protected:
    TDialogsWin32() {
        Form.SetCaption(L"The form");
        Form.Build(Form, Column(Button(L"Button", L"Button"), Timer(L"User", 10)));
        Show();
        TFormWindow::Attach(Other, GetModuleHandleW(nullptr), {}).Show(SW_SHOW);
        SetActiveWindow(HandleOf(Other));
    }
    static HWND HandleOf(const TForm& form) { return static_cast<TFormWindow*>(form.Peer())->Handle(); }

    /// Asks; the user looks at the dialog and closes it, and whatever else may have been put up.
    bool Ask(const std::function<bool()>& question, const std::function<void(HWND dialog)>& user) {
        HWND seen = nullptr;
        auto* timer = Form.Find<TTimer>(L"User");
        timer->OnTimer = [&](TComponent&) {
            const std::vector<HWND> shown = ShownDialogs();
            if (shown.empty()) return;
            if (std::exchange(seen, shown.front()) == nullptr) user(seen);
            for (const HWND dialog : ShownDialogs()) {
                PostMessageW(dialog, WM_COMMAND, IDNO, 0);
                PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            }
        };
        timer->SetEnabled(true);
        const bool answer = question();
        timer->SetEnabled(false);
        return answer;
    }
    bool AskMessage() {
        return Dialogs.Message(Form, L"Text", TMessageButtons::YesNo, TMessageIcon::Question) ==
               TMessageAnswer::Yes;
    }
    bool AskFile() { return Dialogs.OpenFile(Form, L"All|*.*").has_value(); }
    bool AskSave() { return Dialogs.SaveFile(Form, L"Texts|*.txt", L"name").has_value(); }
    bool AskColor() { return Dialogs.PickColor(Form, 0).has_value(); }

    TForm Other{L"Other", L"TPeerBenchOther"};
    TWin32Dialogs Dialogs;
};

TEST_F(TDialogsWin32, BelongToTheFormThatAsks) {
    const std::function<bool()> questions[] = {[&] { return AskMessage(); }, [&] { return AskFile(); },
                                               [&] { return AskSave(); }, [&] { return AskColor(); }};
    int shown = 0;
    for (const auto& question : questions) {
        SetActiveWindow(HandleOf(Other));
        EXPECT_FALSE(Ask(question, [&](HWND dialog) {
            EXPECT_EQ(GetWindow(dialog, GW_OWNER), HandleOf(Form));
            EXPECT_FALSE(IsWindowEnabled(HandleOf(Form)));
            EXPECT_TRUE(IsWindowEnabled(HandleOf(Other)));
            EXPECT_FALSE(AskMessage() || AskFile() || AskSave() || AskColor());
            EXPECT_EQ(ShownDialogs(), std::vector{dialog}) << "one at a time";
            if (++shown > 1) return;
            wchar_t title[20]{};
            GetWindowTextW(dialog, title, 20);
            EXPECT_STREQ(title, L"The form");
            EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDNO));
        }));
        EXPECT_TRUE(IsWindowEnabled(HandleOf(Form)));
    }
    EXPECT_EQ(shown, 4);
}

TEST_F(TDialogsWin32, ANameToSaveIsCompletedAndMayBeReplacedOnRequest) {
    const auto folder = std::filesystem::temp_directory_path() / "save-test";
    std::filesystem::create_directory(folder);
    const auto save = [&](const wchar_t* name, const wchar_t* filter) {
        std::optional<std::wstring> path;
        Ask(
            [&] {
                path = Dialogs.SaveFile(Form, filter, (folder / name).wstring());
                return true;
            },
            [](HWND dialog) { SendMessageW(dialog, WM_COMMAND, IDOK, 0); });
        return path;
    };
    EXPECT_EQ(save(L"name", L"Texts|*.txt;*.log|All|*.*"), (folder / L"name.txt").wstring());
    EXPECT_EQ(save(L"name.ini", L"Texts|*.txt"), (folder / L"name.ini").wstring());
    EXPECT_EQ(save(L"name", L"All|*.*"), (folder / L"name").wstring());
    std::ofstream(folder / L"name.txt") << "x";
    EXPECT_EQ(save(L"name", L"Texts|*.txt"), std::nullopt) << "the question was answered with No";
    std::filesystem::remove_all(folder);
}

TEST_F(TDialogsWin32, AClosedFormAsksNothing) {
    EXPECT_FALSE(
        Ask([&] { return AskMessage(); }, [&](HWND) { SendMessageW(HandleOf(Form), WM_CLOSE, 0, 0); }));
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_FALSE(AskMessage() || AskFile() || AskSave() || AskColor());
}

}  // namespace
