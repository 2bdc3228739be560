// The strip that explains settings, as another program reads it.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

class TDetails : public TProgramTest {
  protected:
    void Focus(const wchar_t* control) const {
        const HWND window = Window.Find(control);
        PostMessageW(Window.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
        ASSERT_TRUE(WaitUntil([&] { return Window.FocusedControl() == control; })) << Utf8(control);
    }
    std::wstring Said(const wchar_t* part) const {
        return Window.Text(L"Label_Details_" + std::wstring(part));
    }
    void ExpectPlace(const wchar_t* words) const {
        EXPECT_TRUE(WaitUntil([&] { return Said(L"Place").find(words) != std::wstring::npos; }, 3000))
            << Utf8(words) << " in: " << Utf8(Said(L"Place"));
    }

    TProgram Program;
    const TMainWindow& Window = Program.Window();
};

TEST_F(TDetails, FollowTheFocusAndTheRegistry) {
    constexpr const wchar_t* kBox = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
    RECT before{};
    GetWindowRect(Window.Find(L"Panel_Details"), &before);
    Window.Click(kDriverItem);
    Focus(kBox);
    ExpectPlace(L"NtfsDisableLastAccessUpdate");
    ExpectPlace(L"stored: (not set)");
    EXPECT_NE(Said(L"Text").find(L"NTFS"), std::wstring::npos);
    Window.Click(kBox);
    ExpectPlace(L"after Apply: 0x00000001 (1)");
    Program.Apply();
    ExpectPlace(L"stored: 0x00000001 (1)");
    EXPECT_EQ(Stored(kLastAccess), Dword(1));

    Focus(kBox);
    Window.Press(VK_F1);
    const TMessageBox help = Window.WaitForQuestion();
    for (const wchar_t* part : {L"Title", L"Text", L"Place"})
        EXPECT_NE(help.Text().find(Said(part)), std::wstring::npos) << Utf8(part);
    EXPECT_EQ(help.Text(), Window.Text(L"Panel_Details"));
    Window.Press(VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return !Window.Question(); }));

    RECT after{};
    GetWindowRect(Window.Find(L"Panel_Details"), &after);
    EXPECT_TRUE(EqualRect(&before, &after)) << "texts move nothing";
}

TEST_F(TDetails, FollowThePointerOnceItRests) {
    Window.Click(kDriverItem);
    Focus(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData");
    ExpectPlace(L"NtfsDisableLastAccessUpdate");
    EnableWindow(Window.Find(kUdmaBox), FALSE);
    const auto point = [&](const wchar_t* control) {
        RECT place{};
        GetWindowRect(Window.Find(control), &place);
        for (const int x : {0, 4}) {
            SetCursorPos(place.left + 10 + x, (place.top + place.bottom) / 2);
            Sleep(50);
        }
    };
    point(kUdmaBox);
    ExpectPlace(L"EnableUDMA66");
    point(L"Button_OK");
    ExpectPlace(L"NtfsDisableLastAccessUpdate");
}

}  // namespace
