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
    /// What a row shows: "+" or "-" for its mark, and its texts.
    std::wstring Shown(int row) const {
        std::wstring shown = ListView_GetCheckState(Handle(), row) == 1 ? L"+" : L"-";
        for (const int column : {0, 1}) {
            wchar_t text[100] = L"";
            ListView_GetItemText(Handle(), row, column, text, 100);
            shown += text;
        }
        return shown;
    }

    int Changes = 0;
};

TEST_F(ListViewPeerTest, ShowsRowsAndMarksWithoutReportingThem) {
    EXPECT_EQ(Shown(0) + Shown(1), L"+Mailermailer.exe-Soundsound.exe");
    List().SetRows({{{L"Only", L"one.exe"}, true}});
    EXPECT_EQ(ListView_GetItemCount(Handle()), 1);
    EXPECT_EQ(Shown(0), L"+Onlyone.exe");
    EXPECT_TRUE(List().Rows()[0].Checked);
    EXPECT_EQ(Changes, 0);
}

TEST_F(ListViewPeerTest, AUsersMarkIsReportedOnce) {
    for (const int row : {1, 0}) {
        ListView_SetCheckState(Handle(), row, row == 1);  // what a click on a row's check box does
        EXPECT_EQ(List().Rows()[static_cast<std::size_t>(row)].Checked, row == 1);
        EXPECT_EQ(Changes, 2 - row);
    }
    // Selecting a row changes its state too, but not its mark.
    ListView_SetItemState(Handle(), 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(Changes, 2);
    List().SetRowChecked(0, true);
    EXPECT_EQ(Shown(0), L"+Mailermailer.exe");
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
