// The native controls in a real window: what a user does changes the state, and a changed state shows.
#include "tests/win32/peer_bench.h"
#include "ui/containers.h"

namespace {

class PeersTest : public TPeerBench {
  protected:
    PeersTest() {
        Form.Build(
            Form,
            Notebook(L"Notebook",
                     {NotebookPage(1,
                                   Group(L"Group", L"Group", CheckBox(L"Box", L"&Box"),
                                         RadioButton(L"First", L"First"), RadioButton(L"Second", L"Second")),
                                   Row(Edit(L"Edit").Width(5), UpDown(L"UpDown", L"Edit", 1, 100, 10)),
                                   TrackBar(L"Track", 100, 7000, 500), ComboBox(L"Combo", {L"a", L"b", L"c"}),
                                   Label(L"Label", L"Text"), Button(L"Button", L"Button")),
                      NotebookPage(2, PageControl(L"Tabs", Sheet(L"A", L"Sheet A", CheckBox(L"InA", L"A")),
                                                  Sheet(L"B", L"Sheet B", CheckBox(L"InB", L"B"))))}));
        const TNotifyEvent note = [this](TComponent& sender) { Fired.push_back(sender.Name()); };
        Get<TCheckBox>(L"Box").OnClick = note;
        Get<TRadioButton>(L"First").OnClick = note;
        Get<TRadioButton>(L"Second").OnClick = note;
        Get<TEdit>(L"Edit").OnChange = note;
        Get<TUpDown>(L"UpDown").OnChange = note;
        Get<TTrackBar>(L"Track").OnChange = note;
        Get<TComboBox>(L"Combo").OnChange = note;
        Get<TButton>(L"Button").OnClick = note;
        Get<TNotebook>(L"Notebook").ShowPage(L"1");
        Show();
    }
};

TEST_F(PeersTest, ClicksChangeTheStateAndTheStateShows) {
    SendMessageW(Window(L"Box"), BM_CLICK, 0, 0);
    EXPECT_TRUE(Get<TCheckBox>(L"Box").Checked());
    Get<TCheckBox>(L"Box").SetChecked(false);
    EXPECT_EQ(SendMessageW(Window(L"Box"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    SendMessageW(Window(L"Button"), BM_CLICK, 0, 0);
    EXPECT_EQ(TakeFired(), (TNames{L"Box", L"Box", L"Button"}));

    SendMessageW(Window(L"Second"), BM_CLICK, 0, 0);
    SendMessageW(Window(L"First"), BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessageW(Window(L"Second"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(TakeFired(), (TNames{L"Second", L"First"}));
}

TEST_F(PeersTest, TheFocusAloneChecksNoRadioButton) {
    SetFocus(Window(L"Box"));
    SetFocus(Window(L"First"));
    EXPECT_FALSE(Get<TRadioButton>(L"First").Checked());
    EXPECT_EQ(SendMessageW(Window(L"First"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(TakeFired(), TNames{});
}

TEST_F(PeersTest, TheTabKeyReachesRadioButtonsAlsoWhenNoneIsChecked) {
    const auto stops = [this](const wchar_t* name) {
        return (GetWindowLongW(Window(name), GWL_STYLE) & WS_TABSTOP) != 0;
    };
    EXPECT_TRUE(stops(L"First"));
    EXPECT_FALSE(stops(L"Second"));
    Get<TRadioButton>(L"Second").SetChecked(true);
    EXPECT_FALSE(stops(L"First"));
    EXPECT_TRUE(stops(L"Second"));
    SendMessageW(Window(L"First"), BM_CLICK, 0, 0);
    EXPECT_TRUE(stops(L"First"));
    EXPECT_FALSE(stops(L"Second"));
}

TEST_F(PeersTest, TypedTextAndArrowsMoveTheNumber) {
    SetFocus(Window(L"Edit"));
    EXPECT_TRUE(Get<TEdit>(L"Edit").Focused());
    SendMessageW(Window(L"Edit"), EM_SETSEL, 0, -1);
    for (const wchar_t c : std::wstring(L"42"))
        SendMessageW(Window(L"Edit"), WM_CHAR, static_cast<WPARAM>(c), 0);
    EXPECT_EQ(Get<TUpDown>(L"UpDown").Position(), 42);
    EXPECT_EQ(TakeFired(), (TNames{L"Edit", L"Edit"})) << "typing is the edit's event, not the arrows'";

    SendMessageW(Window(L"Edit"), WM_KEYDOWN, VK_UP, 0);
    SendMessageW(Window(L"Edit"), WM_KEYUP, VK_UP, 0);
    EXPECT_EQ(Get<TUpDown>(L"UpDown").Position(), 43);
    EXPECT_EQ(TextOf(L"Edit"), L"43");
    EXPECT_EQ(TakeFired(), (TNames{L"Edit", L"UpDown"}));

    Get<TEdit>(L"Edit").OnKeyPress = [](wchar_t key) { return key == L'1'; };
    SendMessageW(Window(L"Edit"), EM_SETSEL, 0, -1);
    for (const wchar_t c : std::wstring(L"x1"))
        SendMessageW(Window(L"Edit"), WM_CHAR, static_cast<WPARAM>(c), 0);
    EXPECT_EQ(Get<TEdit>(L"Edit").Text(), L"1");
    SetFocus(Window(L"Box"));
    EXPECT_FALSE(Get<TEdit>(L"Edit").Focused());
}

TEST_F(PeersTest, TrackBarsAndListsFollowTheUser) {
    EXPECT_EQ(SendMessageW(Window(L"Track"), TBM_GETPOS, 0, 0), 500);
    SendMessageW(Window(L"Track"), WM_KEYDOWN, VK_END, 0);
    EXPECT_EQ(Get<TTrackBar>(L"Track").Position(), 7000);

    SendMessageW(Window(L"Combo"), CB_SETCURSEL, 1, 0);
    SendMessageW(GetParent(Window(L"Combo")), WM_COMMAND,
                 MAKEWPARAM(GetDlgCtrlID(Window(L"Combo")), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Window(L"Combo")));
    EXPECT_EQ(Get<TComboBox>(L"Combo").ItemIndex(), 1);
    Get<TComboBox>(L"Combo").SetItem(1, L"B");
    EXPECT_EQ(TextOf(L"Combo"), L"B");
    EXPECT_EQ(TakeFired(), (TNames{L"Track", L"Combo"}));
}

TEST_F(PeersTest, PagesComeIntoBeingWhenTheyAreShown) {
    EXPECT_EQ(Form.Find(L"InA")->Peer(), nullptr);
    Get<TNotebook>(L"Notebook").ShowPage(L"2");
    EXPECT_NE(Form.Find(L"InA")->Peer(), nullptr);
    EXPECT_TRUE(IsShown(L"A"));
    EXPECT_FALSE(IsShown(L"B"));

    SendMessageW(Window(L"Tabs"), TCM_SETCURFOCUS, 1, 0);
    EXPECT_EQ(Get<TPageControl>(L"Tabs").ActiveSheet(), Form.Find(L"B"));
    EXPECT_TRUE(IsShown(L"B"));
    EXPECT_FALSE(IsShown(L"A"));

    Get<TPageControl>(L"Tabs").SetTabVisible(Get<TTabSheet>(L"B"), false);
    EXPECT_TRUE(IsShown(L"A"));
    EXPECT_EQ(SendMessageW(Window(L"Tabs"), TCM_GETITEMCOUNT, 0, 0), 1);
}

TEST_F(PeersTest, EveryControlCarriesItsName) {
    for (const wchar_t* name : {L"Notebook", L"1", L"Group", L"Box", L"Edit", L"UpDown", L"Label"}) {
        const auto atom =
            static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(Window(name), L"ControlName")));
        wchar_t text[100]{};
        GlobalGetAtomNameW(atom, text, 100);
        EXPECT_STREQ(text, name);
    }
}

TEST_F(PeersTest, AFaultInAHandlerIsReportedAndTheWindowLivesOn) {
    Get<TCheckBox>(L"Box").OnClick = [](TComponent&) { throw std::runtime_error("fault"); };
    SendMessageW(Window(L"Box"), BM_CLICK, 0, 0);
    EXPECT_EQ(Faults, 1);
    EXPECT_TRUE(Get<TCheckBox>(L"Box").Checked());
    SendMessageW(Window(L"Button"), BM_CLICK, 0, 0);
    EXPECT_EQ(TakeFired(), TNames{L"Button"});
}

TEST_F(PeersTest, TheWheelScrollsOnlyWhatIsTallerThanItsPlace) {
    const HWND page = GetParent(Window(L"Box"));
    SetWindowPos(page, nullptr, 0, 0, 300, 60, SWP_NOMOVE | SWP_NOZORDER);
    RECT before{};
    GetWindowRect(Window(L"Box"), &before);
    SendMessageW(page, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    RECT after{};
    GetWindowRect(Window(L"Box"), &after);
    EXPECT_LT(after.top, before.top);
    SetWindowPos(page, nullptr, 0, 0, 300, 1000, SWP_NOMOVE | SWP_NOZORDER);
    GetWindowRect(Window(L"Box"), &after);
    EXPECT_EQ(after.top, before.top) << "everything is in sight again";
}

}  // namespace
