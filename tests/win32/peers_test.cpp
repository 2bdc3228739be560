// The native controls in a real window: what a user does changes the state, and a changed state shows.
#include "tests/win32/peer_bench.h"
#include "ui/containers.h"

namespace {

class PeersTest : public TPeerBench {
  protected:
    PeersTest() {
        Form.ClientWidth = 500;  // the content of sheets grows to 560
        Form.Build(Form, Timer(L"Timer", 10));
        Form.Build(
            Form,
            Notebook(L"Notebook",
                     {NotebookPage(1,
                                   Group(L"Group", L"Group", CheckBox(L"Box", L"&Box"),
                                         RadioButton(L"First", L"First"), CheckBox(L"Between", L"Between"),
                                         RadioButton(L"Second", L"Second"), Edit(L"Last"),
                                         RadioButton(L"Third", L"Third")),
                                   Row(Edit(L"Edit").Width(5), UpDown(L"UpDown", L"Edit", 1, 100, 10)),
                                   Edit(L"Text"), TrackBar(L"Track", 100, 7000, 500),
                                   ComboBox(L"Combo", {L"a", L"b", L"c"}), Button(L"Button", L"Button")),
                      NotebookPage(2, PageControl(L"Tabs", Sheet(L"A", L"Sheet A", CheckBox(L"InA", L"A")),
                                                  Sheet(L"B", L"Sheet B", CheckBox(L"InB", L"B"))))}));
        Get<TCheckBox>(L"Box").OnClick = Get<TButton>(L"Button").OnClick = Note;
        for (const wchar_t* name : {L"First", L"Second", L"Third"}) Get<TRadioButton>(name).OnClick = Note;
        Get<TEdit>(L"Edit").OnChange = Get<TEdit>(L"Text").OnChange = Get<TUpDown>(L"UpDown").OnChange = Note;
        Get<TTrackBar>(L"Track").OnChange = Get<TComboBox>(L"Combo").OnChange = Note;
        Get<TEdit>(L"Edit").DigitsOnly = true;
        Get<TNotebook>(L"Notebook").ShowPage(L"1");
        Show();
    }

    bool IsShownChecked(const wchar_t* name) const { return Send(name, BM_GETCHECK) == BST_CHECKED; }
    /// Presses a key in the control that has the focus.
    static void Press(WPARAM key) {
        MSG message{GetFocus(), WM_KEYDOWN, key, 1, 0, {}};
        if (!IsDialogMessageW(GetAncestor(message.hwnd, GA_ROOT), &message)) DispatchMessageW(&message);
    }
    void Turn(const wchar_t* name, int delta) const { Send(name, WM_MOUSEWHEEL, MAKEWPARAM(0, delta)); }
    /// Types over what stands in the edit.
    void Type(const std::wstring& text) const {
        Send(L"Edit", EM_SETSEL, 0, -1);
        for (const wchar_t c : text) Send(L"Edit", WM_CHAR, static_cast<WPARAM>(c));
    }
};

TEST_F(PeersTest, ClicksChangeTheStateAndTheStateShows) {
    Send(L"Box", BM_CLICK);
    EXPECT_TRUE(Get<TCheckBox>(L"Box").Checked());
    Get<TCheckBox>(L"Box").SetChecked(false);
    EXPECT_FALSE(IsShownChecked(L"Box"));
    for (const wchar_t* name : {L"Button", L"Second", L"First"}) Send(name, BM_CLICK);
    EXPECT_FALSE(IsShownChecked(L"Second"));
    EXPECT_EQ(Fired, (TNames{L"Box", L"Box", L"Button", L"Second", L"First"}));
}

TEST_F(PeersTest, TheTabKeyReachesOneRadioButtonAndTheFocusAloneChecksNone) {
    SetFocus(Window(L"Box"));
    SetFocus(Window(L"First"));
    EXPECT_FALSE(Get<TRadioButton>(L"First").Checked());
    EXPECT_FALSE(IsShownChecked(L"First"));
    EXPECT_EQ(TakeFired(), TNames{});

    const auto stops = [this] { return std::pair(TabStops(L"First"), TabStops(L"Second")); };
    EXPECT_EQ(stops(), std::pair(true, false));
    Get<TRadioButton>(L"Second").SetChecked(true);
    EXPECT_EQ(stops(), std::pair(false, true));
    Send(L"First", BM_CLICK);
    EXPECT_EQ(stops(), std::pair(true, false));
}

TEST_F(PeersTest, ArrowKeysGoRoundTheRadioButtonsWhateverStandsBetween) {
    SetFocus(Window(L"First"));
    for (const auto& [key, expected] : {std::pair(VK_DOWN, L"Second"),
                                        {VK_RIGHT, L"Third"},
                                        {VK_DOWN, L"First"},
                                        {VK_LEFT, L"Third"},
                                        {VK_UP, L"Second"}}) {
        Press(key);
        EXPECT_EQ(GetFocus(), Window(expected));
        EXPECT_TRUE(IsShownChecked(expected));
        EXPECT_EQ(TakeFired(), TNames{expected});
        EXPECT_TRUE(TabStops(expected));
    }
    Get<TRadioButton>(L"Third").SetEnabled(false);
    Press(VK_DOWN);
    EXPECT_EQ(TakeFired(), TNames{L"First"});
    Get<TRadioButton>(L"First").SetEnabled(false);
    EXPECT_TRUE(TabStops(L"Second")) << "the first that can be chosen";
}

TEST_F(PeersTest, TypedTextAndArrowsMoveTheNumber) {
    SetFocus(Window(L"Edit"));
    EXPECT_TRUE(Get<TEdit>(L"Edit").Focused());
    Type(L"4x2");
    EXPECT_EQ(Get<TUpDown>(L"UpDown").Position(), 42);
    EXPECT_EQ(TakeFired(), (TNames{L"Edit", L"Edit"})) << "typing is the edit's event, not the arrows'";

    Send(L"Edit", WM_KEYDOWN, VK_UP);
    Send(L"Edit", WM_KEYUP, VK_UP);
    EXPECT_EQ(Get<TUpDown>(L"UpDown").Position(), 43);
    EXPECT_EQ(TextOf(L"Edit"), L"43");
    EXPECT_EQ(TakeFired(), (TNames{L"Edit", L"UpDown"}));

    Get<TEdit>(L"Edit").OnKeyPress = [](wchar_t key) { return key == L'1'; };
    Type(L"x1");
    EXPECT_EQ(Get<TEdit>(L"Edit").Text(), L"1");
    SetFocus(Window(L"Box"));
    EXPECT_FALSE(Get<TEdit>(L"Edit").Focused());
}

TEST_F(PeersTest, AnEditIsChangedByWhatChangesItsTextAndByThatAlone) {
    const auto& edit = Get<TEdit>(L"Text");
    for (const WPARAM key : {VK_TAB, VK_SHIFT, VK_HOME})
        for (const UINT message : {WM_KEYDOWN, WM_KEYUP}) Send(L"Text", message, key);
    EXPECT_EQ(TakeFired(), TNames{});
    // From another program, as by a paste, and taken back.
    Send(L"Text", WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"one"));
    EXPECT_EQ(edit.Text(), L"one");
    Send(L"Text", EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"two "));
    EXPECT_EQ(edit.Text(), L"two one");
    Send(L"Text", WM_UNDO);
    EXPECT_EQ(edit.Text(), L"one");
    EXPECT_EQ(TakeFired(), (TNames{L"Text", L"Text", L"Text"}));
}

TEST_F(PeersTest, AnEditKeepsWhatItDoesNotShow) {
    auto& edit = Get<TEdit>(L"Text");
    const std::wstring longText = L"0123456789" + std::wstring(1 << 20, L'x');
    for (const std::wstring& text : {longText, std::wstring(L"a\0b", 3), std::wstring(L"a\r\nb")}) {
        edit.SetText(text);
        TakeFired();
        EXPECT_LT(GetWindowTextLengthW(Window(L"Text")), 10000) << "Windows takes its time for a long one";
        EXPECT_EQ(Send(L"Text", EM_GETSEL), text[1] == L'\r' ? 0x40004 : 0) << "in sight is the beginning";
        EXPECT_EQ(TextOf(L"Text").substr(0, 3), text.substr(0, std::min<std::size_t>(text.find(L'\0'), 3)));
        SetFocus(Window(L"Text"));
        Send(L"Text", EM_SETSEL, 0, 1);
        Send(L"Text", EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"?"));
        EXPECT_EQ(edit.Text()[0], L'?') << "what the user changes is what he sees";
        EXPECT_LT(edit.Text().size(), 10000U);
        Send(L"Text", WM_UNDO);
        EXPECT_TRUE(edit.Text() == text) << "taken back";
        EXPECT_EQ(TakeFired(), (TNames{L"Text", L"Text"}));
    }
}

TEST_F(PeersTest, TrackBarsAndListsFollowTheUser) {
    EXPECT_EQ(Send(L"Track", TBM_GETPOS), 500);
    Send(L"Track", WM_KEYDOWN, VK_END);
    EXPECT_EQ(Get<TTrackBar>(L"Track").Position(), 7000);

    Send(L"Combo", CB_SETCURSEL, 1);
    SendMessageW(GetParent(Window(L"Combo")), WM_COMMAND,
                 MAKEWPARAM(GetDlgCtrlID(Window(L"Combo")), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Window(L"Combo")));
    EXPECT_EQ(Get<TComboBox>(L"Combo").ItemIndex(), 1);
    Get<TComboBox>(L"Combo").SetItem(1, L"B");
    EXPECT_EQ(TextOf(L"Combo"), L"B");
    EXPECT_EQ(Fired, (TNames{L"Track", L"Combo"}));
}

TEST_F(PeersTest, PagesComeIntoBeingWhenTheyAreShown) {
    EXPECT_EQ(Form.Find(L"InA")->Peer(), nullptr);
    Get<TNotebook>(L"Notebook").ShowPage(L"2");
    EXPECT_NE(Form.Find(L"InA")->Peer(), nullptr);
    const auto shown = [this] { return std::pair(IsShown(L"A"), IsShown(L"B")); };
    EXPECT_EQ(shown(), std::pair(true, false));
    Send(L"Tabs", TCM_SETCURFOCUS, 1);
    EXPECT_EQ(Get<TPageControl>(L"Tabs").ActiveSheet(), Form.Find(L"B"));
    EXPECT_EQ(shown(), std::pair(false, true));
    Get<TPageControl>(L"Tabs").SetTabVisible(Get<TTabSheet>(L"B"), false);
    EXPECT_TRUE(IsShown(L"A"));
    EXPECT_EQ(Send(L"Tabs", TCM_GETITEMCOUNT), 1);
}

TEST_F(PeersTest, WhatIsHiddenIsPlacedWhenItIsShown) {
    auto& notebook = Get<TNotebook>(L"Notebook");
    notebook.ShowPage(L"2");
    Send(L"Tabs", TCM_SETCURFOCUS, 1);
    Send(L"Tabs", TCM_SETCURFOCUS, 0);
    notebook.ShowPage(L"1");
    const auto width = [this](const wchar_t* name) { return Place(name).right - Place(name).left; };
    const LONG text = width(L"Text");
    const LONG inner = width(L"InA");
    RECT place{};
    const HWND form = static_cast<TFormWindow*>(Form.Peer())->Handle();
    GetWindowRect(form, &place);
    SetWindowPos(form, nullptr, 0, 0, place.right - place.left + 50, place.bottom - place.top + 50,
                 SWP_NOMOVE | SWP_NOZORDER);
    Get<TCheckBox>(L"InB").SetVisible(false);
    HandleMessages();
    const auto widths = [&] { return std::vector{width(L"Text"), width(L"InA"), width(L"InB")}; };
    EXPECT_EQ(widths(), (std::vector{text + 50, inner, inner}));
    notebook.ShowPage(L"2");
    EXPECT_EQ(widths(), (std::vector{text + 50, inner + 50, inner}));
    Get<TCheckBox>(L"InB").SetVisible(true);
    HandleMessages();
    EXPECT_EQ(width(L"InB"), inner);
    Send(L"Tabs", TCM_SETCURFOCUS, 1);
    EXPECT_EQ(width(L"InB"), inner + 50);
}

TEST_F(PeersTest, HiddenPagesComeIntoBeingWhileThereIsNothingElseToDo) {
    const auto exists = [this](const wchar_t* name) { return Form.Find(name)->Peer() != nullptr; };
    int ticks = 0;
    Get<TTimer>(L"Timer").OnTimer = [&](TComponent&) {
        if (++ticks == 500 || (exists(L"InB") && Place(L"InB").right > Place(L"InB").left))
            PostQuitMessage(0);
    };
    Get<TTimer>(L"Timer").SetEnabled(true);
    EXPECT_FALSE(exists(L"Tabs"));
    static_cast<TFormWindow*>(Form.Peer())->Run();
    EXPECT_LT(ticks, 500);
    EXPECT_FALSE(IsShown(L"InA") || IsShown(L"InB"));
    const std::pair hidden{Place(L"InA"), Place(L"InB")};
    Get<TNotebook>(L"Notebook").ShowPage(L"2");
    EXPECT_TRUE(IsShown(L"InA"));
    const RECT first = Place(L"InA");
    Send(L"Tabs", TCM_SETCURFOCUS, 1);
    const RECT second = Place(L"InB");
    EXPECT_TRUE(EqualRect(&hidden.first, &first) && EqualRect(&hidden.second, &second));
}

using TStartTest = TPeerBench;

TEST_F(TStartTest, TimersWaitForTheFirstPageAndNotForItsDrawingAndAShownPageIsCompleteLikeWhatComesLate) {
    const auto page = [](int tag, int boxes = 60) {
        const auto sheet = [tag, boxes](std::wstring name) {
            name += std::to_wstring(tag);
            TControlDesign design = Sheet(name.c_str(), L"Sheet");
            for (int i = 0; i < boxes; ++i)
                design.Children.push_back(CheckBox((name + std::to_wstring(i)).c_str(), L"Box"));
            design.Children.push_back(CheckBox((L"Last" + name).c_str(), L"Box"));
            return design;
        };
        return NotebookPage(tag,
                            PageControl((L"Tabs" + std::to_wstring(tag)).c_str(), sheet(L"A"), sheet(L"B")));
    };
    Form.Build(Form, Timer(L"Timer", 1));
    Form.Build(Form, Edit(L"Field"));
    Form.Build(Form, Table(L"Found", {L"Column"}).Hidden().Late());
    Form.Build(Form, Card(L"Card", CardLabel(L"Said", L"Text", 1, TTextLook::Plain)).Late());
    Form.Build(Form, Notebook(L"Notebook", {page(1), page(2), page(3), page(4, 80)}));
    const auto exists = [this](const wchar_t* name) { return Form.Find(name)->Peer() != nullptr; };
    int ticks = 0;
    Get<TTimer>(L"Timer").OnTimer = [&](TComponent&) {
        if (++ticks == 1) {
            EXPECT_TRUE(exists(L"LastB1"));
            HWND next = Window(L"Field");
            for (const wchar_t* name : {L"Found", L"Card", L"Notebook"})
                EXPECT_EQ(next = GetWindow(next, GW_HWNDNEXT), Window(name)) << "the order of the design";
            EXPECT_EQ(std::pair(IsShown(L"Said"), IsShown(L"Found")), std::pair(true, false));
            EXPECT_EQ(Place(L"Card").left, Place(L"Field").left);
            EXPECT_GT(Place(L"Said").right, Place(L"Said").left);
            Get<TNotebook>(L"Notebook").ShowPage(L"3");
            EXPECT_TRUE(exists(L"LastA3") && exists(L"LastB3"));
        }
        if (ticks == 2) {
            EXPECT_TRUE(GetUpdateRect(Window(L"A30"), nullptr, FALSE)) << "drawn when all is there";
        }
        if (ticks == 500 || exists(L"LastB2")) PostQuitMessage(0);
    };
    Get<TTimer>(L"Timer").SetEnabled(true);
    Show();
    EXPECT_FALSE(exists(L"Card") || exists(L"Found"));
    static_cast<TFormWindow*>(Form.Peer())->Run();
    EXPECT_LT(ticks, 500);
    EXPECT_TRUE(exists(L"LastB4")) << "it is larger";
}

TEST_F(PeersTest, AFaultInAHandlerIsReportedAndTheWindowLivesOn) {
    Get<TCheckBox>(L"Box").OnClick = [](TComponent&) { throw std::runtime_error("fault"); };
    Send(L"Box", BM_CLICK);
    EXPECT_EQ(std::exchange(Faults, 0), 1);
    EXPECT_TRUE(Get<TCheckBox>(L"Box").Checked());
    Send(L"Button", BM_CLICK);
    EXPECT_EQ(Fired, TNames{L"Button"});
}

TEST_F(PeersTest, TheWheelScrollsOnlyWhatIsTallerThanItsPlace) {
    const HWND page = GetParent(Window(L"Box"));
    const auto resize = [page](int height) {
        SetWindowPos(page, nullptr, 0, 0, 300, height, SWP_NOMOVE | SWP_NOZORDER);
    };
    resize(60);
    const LONG before = Place(L"Box").top;
    SendMessageW(page, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_LT(Place(L"Box").top, before);
    resize(1000);
    EXPECT_EQ(Place(L"Box").top, before) << "everything is in sight again";
}

/// A page that is scrolled by the wheel over its controls.
class WheelTest : public PeersTest {
  protected:
    static constexpr int kHeight = 100;

    WheelTest() {
        SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &FLines, 0);
        SetWindowPos(GetParent(Window(L"Box")), nullptr, 0, 0, 300, kHeight, SWP_NOMOVE | SWP_NOZORDER);
    }
    ~WheelTest() override { SetLines(FLines); }
    static void SetLines(UINT lines) { SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, lines, nullptr, 0); }
    /// How far the content moves up.
    LONG TurnOver(const wchar_t* name, int delta) const {
        const LONG before = Place(L"Box").top;
        Turn(name, delta);
        return before - Place(L"Box").top;
    }

  private:
    UINT FLines = 3;
};

TEST_F(WheelTest, ControlsPassTheWheelOnAndKeepTheirState) {
    Get<TComboBox>(L"Combo").SetItemIndex(1);
    TakeFired();
    for (const wchar_t* name : {L"Combo", L"UpDown", L"Edit", L"Track"}) {
        SetFocus(Window(name));
        const LONG down = TurnOver(name, -WHEEL_DELTA);
        EXPECT_GT(down, 0) << name;
        EXPECT_EQ(TurnOver(name, WHEEL_DELTA), -down) << name;
    }
    EXPECT_EQ(TakeFired(), TNames{});
    EXPECT_EQ(Send(L"Combo", CB_GETCURSEL), 1);
    EXPECT_EQ(Send(L"Track", TBM_GETPOS), 500);

    SetFocus(Window(L"Combo"));
    Send(L"Combo", CB_SHOWDROPDOWN, TRUE);
    EXPECT_EQ(TurnOver(L"Combo", -WHEEL_DELTA), 0) << "an open list takes the wheel itself";
    Send(L"Combo", CB_SHOWDROPDOWN, FALSE);
}

TEST_F(WheelTest, ANotchIsAPageAtMostAndItsPartsAddUp) {
    SetLines(1);
    const LONG line = TurnOver(L"Box", -WHEEL_DELTA);
    LONG sum = 0;
    for (int i = 0; i < 8; ++i) sum += TurnOver(L"Box", -WHEEL_DELTA / 8);
    EXPECT_EQ(sum, line);
    TurnOver(L"Box", 2 * WHEEL_DELTA);
    for (const UINT page : {WHEEL_PAGESCROLL, 0x7FFFFFFFu, 50u}) {
        SetLines(page);
        EXPECT_EQ(TurnOver(L"Box", -WHEEL_DELTA), kHeight) << page;
        EXPECT_EQ(TurnOver(L"Box", WHEEL_DELTA), -kHeight) << page;
    }
    SetLines(0);
    EXPECT_EQ(TurnOver(L"Box", -WHEEL_DELTA), 0);
}

TEST_F(PeersTest, RevealsAControlWhereverItLies) {
    Get<TNotebook>(L"Notebook").ShowPage(L"2");
    Form.Reveal(*Form.Find(L"InB"));
    EXPECT_TRUE(IsShown(L"InB"));
    EXPECT_EQ(GetFocus(), Window(L"InB"));
    Form.Reveal(*Form.Find(L"UpDown"));
    EXPECT_EQ(GetFocus(), Window(L"InB")) << "the page is not shown";
    Get<TNotebook>(L"Notebook").ShowPage(L"1");
    SetWindowPos(Window(L"Notebook"), nullptr, 0, 0, 300, 120, SWP_NOMOVE);  // the page has to be scrolled
    for (const wchar_t* name : {L"UpDown", L"Box"}) {
        Form.Reveal(*Form.Find(name));
        const wchar_t* focused = lstrcmpW(name, L"Box") == 0 ? L"Box" : L"Edit";
        EXPECT_EQ(GetFocus(), Window(focused));
        const RECT place = Place(focused);
        const RECT page = Place(L"1");
        EXPECT_TRUE(place.top >= page.top && place.bottom <= page.bottom) << testing::PrintToString(name);
    }
}

}  // namespace
