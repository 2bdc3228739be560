#include <gtest/gtest.h>

#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/design.h"
#include "ui/win32/form_window.h"

namespace {

/// A window with a category bar of two groups: A (three items, the last one hidden) and B (two items).
class CategoryPeersTest : public testing::Test {
  protected:
    CategoryPeersTest() : Form(L"Form", L"TCategoryTestForm") {
        Form.Build(Form,
                   CategoryBar(L"Bar", {CategoryGroup(L"A", L"First",
                                                      {CategoryItem(L"A0", L"One", 1, L"general"),
                                                       CategoryItem(L"A1", L"Two", 2, L"mail"),
                                                       CategoryItem(L"A2", L"Three", 3, L"none").Hidden()}),
                                        CategoryGroup(L"B", L"Second",
                                                      {CategoryItem(L"B0", L"Four", 4, L"input"),
                                                       CategoryItem(L"B1", L"Five", 5, L"input")})}));
        for (const wchar_t* name : {L"A0", L"A1", L"A2", L"B0", L"B1"})
            Item(name).OnClick = [this](TComponent& item) { Clicks.push_back(item.Name()); };
        TFormWindow::Attach(Form, GetModuleHandleW(nullptr), [](const std::exception_ptr&) {
            FAIL();
        }).Show(SW_SHOW);
        HandleMessages();
    }

    TCategoryItem& Item(const wchar_t* name) { return *Form.Find<TCategoryItem>(name); }
    HWND Window(const wchar_t* name) { return dynamic_cast<TWindowPeer*>(Form.Find(name)->Peer())->Handle(); }
    RECT Place(const wchar_t* name) {
        RECT place{};
        GetWindowRect(Window(name), &place);
        return place;
    }

    static void HandleMessages() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }

    void PressMouse(const wchar_t* name, UINT down) {
        SendMessageW(Window(name), down, MK_LBUTTON, MAKELPARAM(3, 3));
        SendMessageW(Window(name), WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    }

    TForm Form;
    std::vector<std::wstring> Clicks;
};

TEST_F(CategoryPeersTest, EveryWayOfPressingIsOneClick) {
    SendMessageW(Window(L"B0"), BM_CLICK, 0, 0);
    SetFocus(Window(L"A1"));
    SendMessageW(Window(L"A1"), WM_KEYDOWN, VK_SPACE, 0);
    SendMessageW(Window(L"A1"), WM_KEYUP, VK_SPACE, 0);
    // A double click: Windows turns the second press into another message.
    PressMouse(L"A0", WM_LBUTTONDOWN);
    PressMouse(L"A0", WM_LBUTTONDBLCLK);
    EXPECT_EQ(Clicks, (std::vector<std::wstring>{L"B0", L"A1", L"A0", L"A0"}));
}

TEST_F(CategoryPeersTest, ADisabledItemCannotBeClicked) {
    Item(L"A0").SetEnabled(false);
    SendMessageW(Window(L"A0"), BM_CLICK, 0, 0);
    EXPECT_TRUE(Clicks.empty());
}

TEST_F(CategoryPeersTest, ArrowKeysCrossGroupsAndPassWhatCannotBeReached) {
    Item(L"B0").SetEnabled(false);
    SetFocus(Window(L"A0"));
    ASSERT_EQ(GetFocus(), Window(L"A0"));
    const auto press = [this](WPARAM key, const wchar_t* expected) {
        EXPECT_NE(SendMessageW(GetFocus(), WM_GETDLGCODE, key, 0) & DLGC_WANTARROWS, 0);
        SendMessageW(GetFocus(), WM_KEYDOWN, key, 0);
        EXPECT_EQ(GetFocus(), Window(expected)) << key;
    };
    press(VK_UP, L"A0");  // nothing above the first
    press(VK_DOWN, L"A1");
    press(VK_DOWN, L"B1");  // the hidden and the disabled one are left out
    press(VK_DOWN, L"B1");
    press(VK_UP, L"A1");
    press(VK_END, L"B1");
    press(VK_HOME, L"A0");
    EXPECT_TRUE(Clicks.empty()) << "moving is not choosing";
}

TEST_F(CategoryPeersTest, TheTabKeyStopsAtTheSelectedItemOnly) {
    const auto stops = [this] {
        std::wstring stops;
        for (const wchar_t* name : {L"A0", L"A1", L"B0", L"B1"}) {
            if ((GetWindowLongPtrW(Window(name), GWL_STYLE) & WS_TABSTOP) != 0) stops += name;
        }
        return stops;
    };
    Item(L"B0").SetSelected(true);
    EXPECT_EQ(stops(), L"B0");
    SetFocus(Window(L"A1"));
    EXPECT_EQ(stops(), L"A1") << "the focus returns to where it was";
}

TEST_F(CategoryPeersTest, HiddenItemsTakeNoPlace) {
    const LONG before = Place(L"B").top;
    EXPECT_FALSE(IsWindowVisible(Window(L"A2")));
    EXPECT_EQ(Place(L"A").bottom, Place(L"A1").bottom);

    Item(L"A2").SetVisible(true);
    HandleMessages();
    EXPECT_TRUE(IsWindowVisible(Window(L"A2")));
    EXPECT_EQ(Place(L"A2").top, Place(L"A1").bottom);
    EXPECT_EQ(Place(L"A").bottom, Place(L"A2").bottom);
    EXPECT_GT(Place(L"B").top, before);

    // One goes and another comes: the group keeps its height, its items move all the same.
    Item(L"A2").SetVisible(false);
    HandleMessages();
    Item(L"A0").SetVisible(false);
    Item(L"A2").SetVisible(true);
    HandleMessages();
    EXPECT_LT(Place(L"A1").top, Place(L"A2").top);
    EXPECT_EQ(Place(L"A1").bottom, Place(L"A2").top);
    EXPECT_EQ(Place(L"A").bottom, Place(L"A2").bottom);
}

}  // namespace
