#include "tests/win32/peer_bench.h"

namespace {

class ListViewPeerTest : public TPeerBench {
  protected:
    ListViewPeerTest() {
        Form.Build(Form, ListView(L"List", {L"Name", L"Command"}));
        List().SetRows({{{L"Mailer", L"mailer.exe"}, true}, {{L"Sound", L"sound.exe"}, false}});
        List().OnChange = [this](TComponent&) { ++Changes; };
        Show();
    }

    TListView& List() { return Get<TListView>(L"List"); }
    HWND Handle() const { return Window(L"List"); }
    bool IsShownChecked(UINT row) const { return ListView_GetCheckState(Handle(), row) == 1; }
    std::wstring ShownText(int row, int column) const {
        wchar_t text[100] = L"";
        ListView_GetItemText(Handle(), row, column, text, 100);
        return text;
    }

    int Changes = 0;
};

TEST_F(ListViewPeerTest, ShowsRowsAndMarksWithoutReportingThem) {
    EXPECT_EQ(ListView_GetItemCount(Handle()), 2);
    EXPECT_EQ(ShownText(1, 0) + ShownText(1, 1), L"Soundsound.exe");
    EXPECT_TRUE(IsShownChecked(0));
    EXPECT_FALSE(IsShownChecked(1));

    List().SetRows({{{L"Only", L"one.exe"}, true}});
    EXPECT_EQ(ListView_GetItemCount(Handle()), 1);
    EXPECT_EQ(ShownText(0, 0), L"Only");
    EXPECT_TRUE(IsShownChecked(0));
    EXPECT_TRUE(List().Rows()[0].Checked);
    EXPECT_EQ(Changes, 0);
}

TEST_F(ListViewPeerTest, AUsersMarkIsReportedOnce) {
    ListView_SetCheckState(Handle(), 1, true);  // what a click on a row's check box does
    EXPECT_TRUE(List().Rows()[1].Checked);
    EXPECT_EQ(Changes, 1);
    ListView_SetCheckState(Handle(), 0, false);
    EXPECT_FALSE(List().Rows()[0].Checked);
    EXPECT_EQ(Changes, 2);

    // Selecting a row changes its state too, but not its mark.
    ListView_SetItemState(Handle(), 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(Changes, 2);
    List().SetRowChecked(0, true);
    EXPECT_TRUE(IsShownChecked(0));
    EXPECT_EQ(Changes, 3);
}

TEST_F(ListViewPeerTest, ColumnsFollowCaptionsAndFillTheList) {
    const std::wstring caption = L"A caption that is much longer than any of the cells";
    List().SetColumn(0, caption);
    EXPECT_GE(ListView_GetColumnWidth(Handle(), 0), ListView_GetStringWidth(Handle(), caption.c_str()));
    RECT area{};
    GetClientRect(Handle(), &area);
    EXPECT_EQ(ListView_GetColumnWidth(Handle(), 0) + ListView_GetColumnWidth(Handle(), 1), area.right);
}

}  // namespace
