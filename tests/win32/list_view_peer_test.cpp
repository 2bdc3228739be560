#include <gtest/gtest.h>

#include "ui/controls.h"
#include "ui/design.h"
#include "ui/win32/form_window.h"

namespace {

class ListViewPeerTest : public testing::Test {
  protected:
    ListViewPeerTest() : Form(L"Form", L"TListTestForm") {
        Form.Build(Form, ListView(L"List", {L"Name", L"Command"}));
        List = Form.Find<TListView>(L"List");
        List->SetRows({{{L"Mailer", L"mailer.exe"}, true}, {{L"Sound", L"sound.exe"}, false}});
        List->OnChange = [this](TComponent&) { ++Changes; };
        TFormWindow::Attach(Form, GetModuleHandleW(nullptr), [](const std::exception_ptr&) {
            FAIL();
        }).Show(SW_SHOW);
        Window = dynamic_cast<TWindowPeer*>(List->Peer())->Handle();
    }

    bool IsShownChecked(int row) const { return ListView_GetCheckState(Window, static_cast<UINT>(row)) == 1; }
    std::wstring ShownText(int row, int column) const {
        wchar_t text[100] = L"";
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = 100;
        SendMessageW(Window, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    /// What a click on the check box of a row does.
    void CheckByUser(int row, bool checked) const { ListView_SetCheckState(Window, row, checked); }

    TForm Form;
    TListView* List = nullptr;
    HWND Window = nullptr;
    int Changes = 0;
};

TEST_F(ListViewPeerTest, ShowsRowsAndMarksWithoutReportingThem) {
    EXPECT_EQ(ListView_GetItemCount(Window), 2);
    EXPECT_EQ(ShownText(1, 0), L"Sound");
    EXPECT_EQ(ShownText(1, 1), L"sound.exe");
    EXPECT_TRUE(IsShownChecked(0));
    EXPECT_FALSE(IsShownChecked(1));

    List->SetRows({{{L"Only", L"one.exe"}, true}});
    EXPECT_EQ(ListView_GetItemCount(Window), 1);
    EXPECT_EQ(ShownText(0, 0), L"Only");
    EXPECT_TRUE(IsShownChecked(0));
    EXPECT_TRUE(List->Rows()[0].Checked);
    EXPECT_EQ(Changes, 0);
}

TEST_F(ListViewPeerTest, AUsersMarkIsReportedOnce) {
    CheckByUser(1, true);
    EXPECT_TRUE(List->Rows()[1].Checked);
    EXPECT_EQ(Changes, 1);
    CheckByUser(0, false);
    EXPECT_FALSE(List->Rows()[0].Checked);
    EXPECT_EQ(Changes, 2);

    // Selecting a row changes its state too, but not its mark.
    ListView_SetItemState(Window, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(Changes, 2);

    List->SetRowChecked(0, true);
    EXPECT_TRUE(IsShownChecked(0));
    EXPECT_EQ(Changes, 3);
}

TEST_F(ListViewPeerTest, ColumnsFollowCaptionsAndFillTheList) {
    const std::wstring longCaption = L"A caption that is much longer than any of the cells";
    const int before = ListView_GetColumnWidth(Window, 0);
    List->SetColumn(0, longCaption);
    EXPECT_GT(ListView_GetColumnWidth(Window, 0), before);
    EXPECT_GE(ListView_GetColumnWidth(Window, 0), ListView_GetStringWidth(Window, longCaption.c_str()));

    RECT area{};
    GetClientRect(Window, &area);
    EXPECT_EQ(ListView_GetColumnWidth(Window, 0) + ListView_GetColumnWidth(Window, 1), area.right);
}

}  // namespace
