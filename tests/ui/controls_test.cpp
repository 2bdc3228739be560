#include "ui/controls.h"

#include <gtest/gtest.h>

#include "ui/containers.h"
#include "ui/design.h"
#include "ui/form.h"
#include "ui/state.h"

namespace {

/// A form with one group of controls whose events are written down.
class TControls : public testing::Test {
  protected:
    TControls() : Form(L"Form", L"TForm") {
        Form.Build(Form, Group(L"Group", L"", CheckBox(L"Box", L"Box"), RadioButton(L"First", L"First"),
                               RadioButton(L"Second", L"Second").Checked(), Edit(L"Edit", L"x"),
                               UpDown(L"UpDown", L"Edit", 1, 100, 10), TrackBar(L"Track", 0, 10, 5),
                               ComboBox(L"Combo", {L"a", L"b", L"c"})));
        Form.Build(Form, Group(L"Other", L"", RadioButton(L"Elsewhere", L"Elsewhere").Checked()));
        const TNotifyEvent note = [this](TComponent& sender) { Fired.push_back(sender.Name()); };
        Get<TCheckBox>(L"Box").OnClick = note;
        for (const wchar_t* radio : {L"First", L"Second", L"Elsewhere"})
            Get<TRadioButton>(radio).OnClick = note;
        Get<TEdit>(L"Edit").OnChange = note;
        Get<TUpDown>(L"UpDown").OnChange = note;
        Get<TTrackBar>(L"Track").OnChange = note;
        Get<TComboBox>(L"Combo").OnChange = note;
    }

    template <typename T>
    T& Get(const wchar_t* name) {
        return *Form.Find<T>(name);
    }

    std::vector<std::wstring> TakeFired() { return std::exchange(Fired, {}); }

    using TNames = std::vector<std::wstring>;
    TForm Form;
    TNames Fired;
};

TEST_F(TControls, FireWhenTheStateChangesAndOnlyThen) {
    Get<TCheckBox>(L"Box").SetChecked(false);
    Get<TTrackBar>(L"Track").SetPosition(5);
    Get<TComboBox>(L"Combo").SetItemIndex(-1);
    EXPECT_EQ(TakeFired(), TNames{});

    Get<TCheckBox>(L"Box").SetChecked(true);
    Get<TTrackBar>(L"Track").SetPosition(99);
    Get<TComboBox>(L"Combo").SetItemIndex(2);
    EXPECT_EQ(TakeFired(), (TNames{L"Box", L"Track", L"Combo"}));
    EXPECT_EQ(Get<TTrackBar>(L"Track").Position(), 10);

    Get<TTrackBar>(L"Track").SetPosition(11);  // still the upper bound
    EXPECT_EQ(TakeFired(), TNames{});
}

TEST_F(TControls, RadioButtonsClearTheirSiblingsSilently) {
    Get<TRadioButton>(L"First").SetChecked(true);
    EXPECT_EQ(TakeFired(), TNames{L"First"});
    EXPECT_FALSE(Get<TRadioButton>(L"Second").Checked());
    EXPECT_TRUE(Get<TRadioButton>(L"Elsewhere").Checked()) << "a button of another parent is no sibling";
}

TEST_F(TControls, AnUpDownAndItsEditFollowEachOther) {
    EXPECT_EQ(Get<TEdit>(L"Edit").Text(), L"10") << "the edit shows the position from the start";

    Get<TUpDown>(L"UpDown").SetPosition(20);
    EXPECT_EQ(Get<TEdit>(L"Edit").Text(), L"20");
    EXPECT_EQ(TakeFired(), (TNames{L"Edit", L"UpDown"}));

    // The edit keeps what the user typed, and only its own event is fired.
    for (const auto& [text, position] : {std::pair(L"35", 35),
                                         {L"", 35},
                                         {L"0", 35},
                                         {L"101", 35},
                                         {L"4x", 35},
                                         {L"99999999999999999999", 35},
                                         {L"007", 7}}) {
        Get<TEdit>(L"Edit").SetText(text);
        EXPECT_EQ(Get<TUpDown>(L"UpDown").Position(), position) << testing::PrintToString(text);
        EXPECT_EQ(Get<TEdit>(L"Edit").Text(), text);
        EXPECT_EQ(TakeFired(), TNames{L"Edit"});
    }

    // An arrow at the end of the range cannot move, but shows where it stands.
    Get<TUpDown>(L"UpDown").SetPosition(100);
    Get<TEdit>(L"Edit").SetText(L"");
    TakeFired();
    Get<TUpDown>(L"UpDown").SetPosition(101);
    EXPECT_EQ(Get<TEdit>(L"Edit").Text(), L"100");
    EXPECT_EQ(TakeFired(), TNames{L"Edit"});
}

TEST_F(TControls, ListsKeepTheirSelectionWhenItemsAreRenamed) {
    auto& combo = Get<TComboBox>(L"Combo");
    combo.SetItemIndex(1);
    TakeFired();
    combo.SetItem(1, L"B");
    combo.SetItem(9, L"nowhere");
    EXPECT_EQ(combo.ItemIndex(), 1);
    EXPECT_EQ(combo.Items()[1], L"B");
    combo.Reinitialise();
    EXPECT_EQ(combo.ItemIndex(), 0);
    EXPECT_EQ(TakeFired(), TNames{});
    combo.SetItemIndex(3);
    EXPECT_EQ(combo.ItemIndex(), -1) << "no item, no choice";
}

TEST_F(TControls, AnEditFiresItsExitWhenTheFocusLeavesOrTheTextIsCommitted) {
    auto& edit = Get<TEdit>(L"Edit");
    int exits = 0;
    edit.OnExit = [&](TComponent&) {
        ++exits;
        EXPECT_FALSE(edit.Focused());
    };
    for (const bool focused : {true, true, false, false}) edit.SetFocused(focused);
    edit.Commit();
    EXPECT_EQ(exits, 1) << "without the focus it has been left already";
    edit.SetFocused(true);
    edit.Commit();
    EXPECT_TRUE(edit.Focused());
    EXPECT_EQ(exits, 2);
}

TEST(TFormTest, RefusesTwoComponentsOfOneName) {
    TForm form(L"Form", L"TForm");
    form.Build(form, CheckBox(L"Box", L""));
    EXPECT_THROW(form.Build(form, CheckBox(L"Box", L"")), std::logic_error);
    EXPECT_EQ(form.Find<TRadioButton>(L"Box"), nullptr) << "found by name, but of another type";
}

TEST(TState, IsReadAndSetAlikeAndOtherKindsChangeNothing) {
    TForm form(L"Form", L"TForm");
    form.Build(form, Group(L"All", L"", CheckBox(L"0", L""), RadioButton(L"1", L""),
                           ComboBox(L"2", {L"a", L"b"}), TrackBar(L"3", 0, 9, 0), Edit(L"4"),
                           ColorSwatch(L"5", 0), ListView(L"6", {L""}), Label(L"7", L"")));
    form.Find<TListView>(L"6")->SetRows({{{L"A:"}, false}, {{L"B:"}, false}});
    const TControlState states[] = {
        true, true, TItemState{1}, TNumberState{7}, L"text", TColorState{0xFF}, TChecksState{false, true},
        {}};
    for (std::size_t i = 0; i < std::size(states); ++i) {
        TControl& control = *form.Find(std::to_wstring(i));
        for (const TControlState& state : states) {
            const TControlState before = StateOf(control);
            SetState(control, state);
            EXPECT_EQ(StateOf(control), state.index() == before.index() ? state : before) << i;
        }
        EXPECT_EQ(StateOf(control), states[i]);
        SetState(control, StateFromNumber(control, 0));
        EXPECT_EQ(StateOf(control), i > 3 ? states[i] : StateFromNumber(control, 0));
    }
}

TEST(TFormTest, NotebooksAndTabsShowOneOfTheirs) {
    TForm form(L"Form", L"TForm");
    form.Build(form, Notebook(L"Book", {NotebookPage(1),
                                        NotebookPage(2, PageControl(L"Tabs", Sheet(L"A", L"A"),
                                                                    Sheet(L"B", L"B"), Sheet(L"C", L"C")))}));
    for (const wchar_t* page : {L"1", L"2", L"3"}) form.Find<TNotebook>(L"Book")->ShowPage(page);
    EXPECT_FALSE(form.Find(L"1")->Visible());
    EXPECT_TRUE(form.Find(L"2")->Visible());

    auto& tabs = *form.Find<TPageControl>(L"Tabs");
    const auto active = [&] { return tabs.ActiveSheet() == nullptr ? L"" : tabs.ActiveSheet()->Name(); };
    EXPECT_EQ(active(), L"A");
    for (const auto& [backwards, sheet] : {std::pair(true, L"C"), {false, L"A"}, {false, L"B"}}) {
        tabs.StepSheet(backwards);
        EXPECT_EQ(active(), sheet) << "round and round";
    }
    // A sheet without a tab cannot be the chosen one.
    for (const auto& [hidden, sheet] : {std::pair(L"B", L"A"), {L"A", L"C"}, {L"C", L""}}) {
        tabs.SetTabVisible(*form.Find<TTabSheet>(hidden), false);
        EXPECT_EQ(active(), sheet);
    }
}

}  // namespace
