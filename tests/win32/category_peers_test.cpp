#include "tests/win32/peer_bench.h"
#include "ui/containers.h"

namespace {

/// A window with a category bar of two groups: A (three items, the last one hidden) and B (two items).
class CategoryPeersTest : public TPeerBench {
  protected:
    CategoryPeersTest() {
        const auto item = [](const wchar_t* name) { return CategoryItem(name, name, 1, L"general"); };
        Form.Build(Form, CategoryBar(L"Bar", {CategoryGroup(L"A", L"First",
                                                            {item(L"A0"), item(L"A1"), item(L"A2").Hidden()}),
                                              CategoryGroup(L"B", L"Second", {item(L"B0"), item(L"B1")})}));
        for (const wchar_t* name : {L"A0", L"A1", L"A2", L"B0", L"B1"}) Item(name).OnClick = Note;
        Show();
        HandleMessages();
    }

    TCategoryItem& Item(const wchar_t* name) { return Get<TCategoryItem>(name); }
};

TEST_F(CategoryPeersTest, EveryWayOfPressingAnEnabledItemIsOneClick) {
    Item(L"B1").SetEnabled(false);
    for (const wchar_t* name : {L"B0", L"B1"}) Send(name, BM_CLICK);
    SetFocus(Window(L"A1"));
    Send(L"A1", WM_KEYDOWN, VK_SPACE);
    Send(L"A1", WM_KEYUP, VK_SPACE);
    // A double click: Windows turns the second press into another message.
    for (const UINT down : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
        Send(L"A0", down, MK_LBUTTON, MAKELPARAM(3, 3));
        Send(L"A0", WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    }
    EXPECT_EQ(Fired, (TNames{L"B0", L"A1", L"A0", L"A0"}));
}

TEST_F(CategoryPeersTest, ArrowKeysCrossGroupsAndPassWhatCannotBeReached) {
    Item(L"B0").SetEnabled(false);
    SetFocus(Window(L"A0"));
    // Nothing is above the first and below the last; the hidden and the disabled one are left out.
    for (const auto& [key, expected] : {std::pair(VK_UP, L"A0"),
                                        {VK_DOWN, L"A1"},
                                        {VK_DOWN, L"B1"},
                                        {VK_DOWN, L"B1"},
                                        {VK_UP, L"A1"},
                                        {VK_END, L"B1"},
                                        {VK_HOME, L"A0"}}) {
        EXPECT_NE(SendMessageW(GetFocus(), WM_GETDLGCODE, key, 0) & DLGC_WANTARROWS, 0);
        SendMessageW(GetFocus(), WM_KEYDOWN, key, 0);
        EXPECT_EQ(GetFocus(), Window(expected)) << key;
    }
    EXPECT_TRUE(Fired.empty()) << "moving is not choosing";
}

TEST_F(CategoryPeersTest, TheTabKeyStopsAtTheSelectedItemOnly) {
    const auto stops = [this] {
        std::wstring stops;
        for (const wchar_t* name : {L"A0", L"A1", L"B0", L"B1"})
            if (TabStops(name)) stops += name;
        return stops;
    };
    Item(L"B0").SetSelected(true);
    EXPECT_EQ(stops(), L"B0");
    SetFocus(Window(L"A1"));
    EXPECT_EQ(stops(), L"A1") << "the focus returns to where it was";
}

TEST_F(CategoryPeersTest, HiddenItemsTakeNoPlace) {
    const LONG before = Place(L"B").top;
    EXPECT_FALSE(IsShown(L"A2"));
    EXPECT_EQ(Place(L"A").bottom, Place(L"A1").bottom);

    const auto expectBelowA1 = [this] {
        HandleMessages();
        EXPECT_EQ(Place(L"A2").top, Place(L"A1").bottom);
        EXPECT_EQ(Place(L"A").bottom, Place(L"A2").bottom);
    };
    Item(L"A2").SetVisible(true);
    expectBelowA1();
    EXPECT_TRUE(IsShown(L"A2"));
    EXPECT_GT(Place(L"B").top, before);

    // One goes and another comes: the group keeps its height, its items move all the same.
    Item(L"A2").SetVisible(false);
    HandleMessages();
    Item(L"A0").SetVisible(false);
    Item(L"A2").SetVisible(true);
    expectBelowA1();
}

}  // namespace
