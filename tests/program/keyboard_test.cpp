// The program by the keyboard alone.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

class TKeyboard : public TProgramTest {
  protected:
    /// The focus is where the key is expected to lead it.
    void Strike(const wchar_t* key, const wchar_t* focus) const {
        SetForegroundWindow(Window.Handle());
        Window.Strike(key);
        EXPECT_TRUE(WaitUntil([&] { return Window.FocusedControl() == focus; }, 3000))
            << Utf8(key) << " leads to " << Utf8(Window.FocusedControl());
    }

    void ExpectShown(const wchar_t* name) const {
        EXPECT_TRUE(WaitUntil([&] { return Window.Visible(name); }, 3000)) << Utf8(name);
    }

    TProgram Program;
    const TMainWindow& Window = Program.Window();
};

TEST_F(TKeyboard, LeadsToEveryPartSheetAndForm) {
    Window.SetFocus(L"RzGroup_CommonSettings.Items[0]");
    for (int i = 0; i < 9; ++i) Window.Strike(L"Down");
    Strike(L"Down", kDriverItem);
    Strike(L"Enter", kDriverItem);
    ExpectShown(kUdmaBox);
    Strike(L"F6", kUdmaBox);
    Strike(L"F6", L"Button_OK");
    Strike(L"shift+F6", kUdmaBox);
    Strike(L"ctrl+PgDn", L"PageControl_Drives");
    ExpectShown(L"TabSheet_Drives_DiskSpace");
    Strike(L"ctrl+PgUp", L"PageControl_Drives");
    ExpectShown(kUdmaBox);
    Strike(L"shift+F6", kDriverItem);
    Strike(L"ctrl+f", L"Edit_Find");
    Strike(L"Esc", kDriverItem);

    for (const wchar_t* key : {L"alt+Space", L"Up", L"Enter"}) Window.Strike(key);
    const TMainWindow about = TMainWindow::WaitFor(Program.Id(), L"TQuilltune_FormAbout");
    EXPECT_NE(about.Text(L"Label_About_Version").find(L"1.0"), std::wstring::npos);
    for (const wchar_t* library : {L"libpng version 1.", L"zlib version 1."})
        EXPECT_NE(about.Text(L"Label_About_Notices").find(library), std::wstring::npos);
    ASSERT_TRUE(WaitUntil([&] { return about.FocusedControl() == L"Button_About_Close"; }));
    about.Strike(L"Esc");
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(about.Handle()); }));
    EXPECT_TRUE(WaitUntil([&] { return Window.FocusedControl() == kDriverItem; }));
}

}  // namespace
