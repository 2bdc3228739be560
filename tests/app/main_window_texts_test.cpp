// What the window says of the page and of the setting where the user is.
#include <algorithm>
#include <set>

#include "tests/app/main_window_fixture.h"

namespace {

TEST_F(TMainWindow, TheHeaderSaysWhichPageIsShownAndWhatItIsFor) {
    Open();
    std::set<std::wstring> said;
    for (const auto& component : Window->Components()) {
        const auto* item = dynamic_cast<const TCategoryItem*>(component.get());
        if (item == nullptr || !item->Visible()) continue;
        Click(item->Name().c_str());
        const std::wstring& text = Window->Find(L"Label_Header_Text")->Caption();
        EXPECT_EQ(Window->Find(L"Label_Header_Title")->Caption(), item->Caption());
        EXPECT_EQ(Get<TImage>(L"Image_Header").Picture(), item->Picture());
        EXPECT_EQ(Window->Find(L"Panel_Header")->Caption(), item->Caption() + L"\n" + text);
        EXPECT_TRUE(said.insert(text).second && !text.ends_with(L'.')) << testing::PrintToString(text);
    }
    EXPECT_EQ(said.size(), 17U);
    const auto says = [&](const wchar_t* item) {
        Click(item);
        return Window->Find(L"Label_Header_Text")->Caption();
    };
    const std::wstring about = says(kDriverItem);
    Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    EXPECT_TRUE(says(kDriverItem).starts_with(L"Without administrator rights"));
    EXPECT_TRUE(said.contains(says(L"RzGroup_Use.Items[1]"))) << "nothing there is for all users";
    EXPECT_NE(about, says(kDriverItem));
}

TEST_F(TMainWindow, ExplainsTheSettingThatTheUserIsAt) {
    Fake.Registry.Put(kLastAccessValue, {TRegDataType::Dword, 1});
    Open();
    Click(kDriverItem);
    const auto said = [this](const wchar_t* part) {
        return Window->Find(L"Label_Details_" + std::wstring(part))->Caption();
    };
    const std::wstring place =
        L"HKEY_LOCAL_"
        L"MACHINE\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\NtfsDisableLastAccessUpdate\nstored: ";
    const std::wstring idle = said(L"Title");
    Window->OnFocus(Window->Find(kDriverItem));
    EXPECT_EQ(said(L"Title"), idle);

    Window->OnFocus(Window->Find(kLastAccess));
    EXPECT_EQ(said(L"Title"), L"Record the date of the last access to files and folders");
    EXPECT_NE(said(L"Text").find(L"NTFS"), std::wstring::npos);
    EXPECT_EQ(said(L"Place"), place + L"0x00000001 (1) \u00B7 not changed");
    Toggle(kLastAccess);
    EXPECT_EQ(said(L"Place"), place + L"0x00000001 (1) \u00B7 after Apply: 0x00000000 (0) (pending)");
    Apply();
    EXPECT_EQ(said(L"Place"), place + L"0x00000000 (0) \u00B7 not changed");
    Fake.Registry.Put(kLastAccessValue, {TRegDataType::Dword, 7});
    Window->ComeBack();
    EXPECT_EQ(said(L"Place"), place + L"0x00000007 (7) \u00B7 not changed");

    Window->OnPoint(Window->Find(kUdma));
    EXPECT_EQ(said(L"Title"), L"Use Ultra DMA mode 66 for hard disks");
    EXPECT_NE(said(L"Place").find(L"after a restart"), std::wstring::npos);
    Window->OnHelp(Window->Find(kLastAccess));
    const std::wstring help = Fake.Dialogs.Questions().back().Text;
    Window->OnPoint(nullptr);
    EXPECT_EQ(help, said(L"Title") + L"\n\n" + said(L"Text") + L"\n\n" + said(L"Place"));
    EXPECT_EQ(help, Window->Find(L"Panel_Details")->Caption()) << "it is the focus again";

    Window->OnFocus(Window->Find(L"Button_Apply"));
    EXPECT_EQ(help, Window->Find(L"Panel_Details")->Caption()) << "what becomes of it";
    Click(L"RzGroup_Display.Items[3]");
    EXPECT_EQ(said(L"Title"), idle) << "it is no longer to be seen";

    // A label speaks of what is behind it, an edit of its up-down.
    for (const wchar_t* control :
         {L"Label_Taskbar_ButtonFlashes_Speed_Flash", L"Edit_Taskbar_ButtonFlashes_Speed_Flash",
          L"UpDown_Taskbar_ButtonFlashes_Speed_Flash"}) {
        ASSERT_NE(Window->Find(control), nullptr);
        Window->OnFocus(Window->Find(control));
        EXPECT_EQ(said(L"Title"), L"Number of flashes") << testing::PrintToString(std::wstring(control));
    }

    // What has no effect says why, and is enabled on both its pages once it has one.
    constexpr const wchar_t* kSides[] = {L"CB_Taskbar_MinWindow_Left",
                                         L"CB_CommonSettings_Display_MinWindow_Left"};
    Get<TPageControl>(L"PageControl_Taskbar").SetActiveSheet(Get<TTabSheet>(L"TabSheet_Taskbar_MinWindow"));
    Window->OnFocus(Window->Find(kSides[0]));
    EXPECT_TRUE(said(L"Text").starts_with(L"Has no effect while \"Hidden\" is chosen. "));
    for (const wchar_t* side : kSides) EXPECT_FALSE(Enabled(side));
    Get<TComboBox>(L"CB_Taskbar_MinWindow_Arrange").SetItemIndex(1);
    EXPECT_FALSE(said(L"Text").starts_with(L"Has no effect"));
    for (const wchar_t* side : kSides) EXPECT_TRUE(Enabled(side));
    EXPECT_TRUE(Enabled(L"Label_CommonSettings_Display_MinWindow_Left"));

    Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    Click(kDriverItem);
    Window->OnFocus(Window->Find(kLastAccess));
    EXPECT_TRUE(said(L"Place").ends_with(L"not changed \u00B7 needs administrator rights"));
}

TEST_F(TMainWindow, StripAndHeaderGiveWayToThePages) {
    Open();
    const auto shown = [this] {
        std::vector<bool> shown;
        for (const wchar_t* name :
             {L"Label_Details_Text", L"Panel_Details", L"Label_Header_Text", L"Panel_Header"})
            shown.push_back(Window->Find(name)->Visible());
        return shown;
    };
    std::vector<bool> left(4, true);
    int height = 566;
    Window->OnHeight(height);
    for (std::size_t gone = 0;; ++gone) {
        EXPECT_EQ(shown(), left) << height;
        if (gone == left.size()) break;
        left[gone] = false;
        while (height > 400 && std::ranges::count(shown(), true) == std::ranges::count(left, true) + 1)
            Window->OnHeight(--height);
        if (gone == 1) EXPECT_LT(height, 536) << "on a screen of 800 by 600 the strip tells the place";
    }
    Window->OnHeight(700);
    Click(kDriverItem);
    for (const bool isOn : {false, true}) {
        Window->Switches.front().OnClick(isOn);
        Window->OnFocus(Window->Find(isOn ? kUdma : kLastAccess));
        EXPECT_EQ(shown()[1], isOn);
    }
    EXPECT_EQ(Window->Find(L"Label_Details_Title")->Caption(), L"Use Ultra DMA mode 66 for hard disks");
}

}  // namespace
