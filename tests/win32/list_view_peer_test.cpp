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

class TablePeerTest : public TPeerBench {
  protected:
    using TRows = std::vector<std::size_t>;

    TablePeerTest() {
        Form.Build(Form,
                   Column(Table(L"Table", {L"Setting", L"Place"}), Buttons(Button(L"Default", L"Default"))));
        Get<TButton>(L"Default").Default = true;
        List().OnSelect = List().OnDelete = Note;
        List().OnOpen = [this](TComponent&) { Opened.push_back(List().FocusedRow()); };
        SetRows(4);
        Show();
        SetFocus(Handle());
    }
    TListView& List() { return Get<TListView>(L"Table"); }
    HWND Handle() const { return Window(L"Table"); }
    void SetRows(int count) {
        std::vector<TListView::TRow> rows;
        for (int i = 0; i < count; ++i)
            rows.push_back({{L"row" + std::to_wstring(i), std::wstring(300, L'x')}});
        List().SetRows(rows);
    }
    void Click(int row, UINT message = WM_LBUTTONDOWN, WPARAM keys = 0) const {
        RECT place{LVIR_LABEL};
        SendMessageW(Handle(), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
        const LPARAM point = MAKELPARAM(place.left + 4, (place.top + place.bottom) / 2);
        PostMessageW(Handle(), WM_LBUTTONUP, 0, point);  // Windows waits for it before it goes on
        SendMessageW(Handle(), message, keys | MK_LBUTTON, point);
        HandleMessages();
    }
    void Press(UINT message, WPARAM key) const {
        MSG pressed{Handle(), message, key, 1, 0, {}};
        if (!IsDialogMessageW(GetAncestor(Handle(), GA_ROOT), &pressed)) DispatchMessageW(&pressed);
        HandleMessages();
    }
    std::wstring Cell(int row, int column) const {
        wchar_t text[400] = L"";
        ListView_GetItemText(Handle(), row, column, text, 400);
        return text;
    }

    std::vector<int> Opened;
};

TEST_F(TablePeerTest, WhatIsCutIsStillToldWhole) {
    const std::wstring setting = std::wstring(200, L'x') + L" (Page, Sheet)";
    List().SetRows({{{setting, L"place"}}, {{L"a", L"b"}}});
    HandleMessages();
    EXPECT_EQ(Cell(0, 0), setting);
    const auto tip = [this](int row) {
        wchar_t text[300] = L"";
        NMLVGETINFOTIPW asked{};
        asked.hdr = {Handle(), 0, static_cast<UINT>(LVN_GETINFOTIPW)};
        asked.pszText = text;
        asked.cchTextMax = 300;
        asked.iItem = row;
        SendMessageW(GetParent(Handle()), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&asked));
        return std::wstring(text);
    };
    EXPECT_EQ(tip(0), setting + L"\nplace");
    EXPECT_EQ(tip(1), L"");
    EXPECT_EQ(tip(7), L"");
}

TEST_F(TablePeerTest, WhatStandsInBracketsAtTheEndIsNotCut) {
    const std::wstring caption(200, L'x');
    List().SetRows({{{caption + L" (A)", L""}}, {{caption + L" (W)", L""}}, {{caption + L" (A)", L""}}});
    UpdateWindow(Handle());
    const HDC target = GetDC(Handle());
    const auto pixels = [&](int row) {
        RECT place{};
        ListView_GetItemRect(Handle(), row, &place, LVIR_LABEL);
        std::vector<COLORREF> shown;
        for (LONG y = place.top; y < place.bottom; ++y)
            for (LONG x = place.left; x < place.right; ++x) shown.push_back(GetPixel(target, x, y));
        return shown;
    };
    EXPECT_NE(pixels(0), pixels(1));
    EXPECT_EQ(pixels(0), pixels(2));
    ReleaseDC(Handle(), target);
}

TEST_F(TablePeerTest, AnEmptyOneSaysSo) {
    const auto dark = [this] {
        RECT area{};
        GetClientRect(Handle(), &area);
        UpdateWindow(Handle());
        const HDC target = GetDC(Handle());
        int count = 0;
        for (int y = 30; y < area.bottom; ++y)
            for (int x = 0; x < area.right; ++x)
                if (GetPixel(target, x, y) != GetSysColor(COLOR_WINDOW)) ++count;
        ReleaseDC(Handle(), target);
        return count;
    };
    List().EmptyText = L"Nothing";
    SetRows(0);
    const int text = dark();
    EXPECT_GT(text, 20);
    EXPECT_EQ(ListView_GetItemCount(Handle()), 0);
    const RECT part{0, 0, 60, 60};
    InvalidateRect(Handle(), &part, TRUE);
    EXPECT_EQ(dark(), text) << "as if it were drawn for the first time";
    List().EmptyText.clear();
    SetRows(0);
    EXPECT_EQ(dark(), 0);
}

TEST_F(TablePeerTest, RowsAreSelectedByMouseKeysAndFromOutsideWithOneEventEach) {
    EXPECT_EQ(Cell(2, 0), L"row2");
    EXPECT_EQ(Cell(3, 1).size(), 300u) << "longer than a cell of Windows' own";
    EXPECT_EQ(Cell(9, 9), L"");
    const auto expect = [this](const TRows& rows, int focused) {
        EXPECT_EQ(List().Selected(), rows);
        EXPECT_EQ(List().FocusedRow(), focused);
        EXPECT_EQ(TakeFired().size(), 1u);
    };
    Click(1);
    expect({1}, 1);
    Click(2);
    expect({2}, 2);
    Click(0, WM_LBUTTONDOWN, MK_CONTROL);
    expect({0, 2}, 0);
    Click(3);
    expect({3}, 3);
    Press(WM_KEYDOWN, VK_UP);
    expect({2}, 2);
    Press(WM_CHAR, 1);
    expect({0, 1, 2, 3}, 2);
    List().SetSelected({1, 3, 7});
    expect({1, 3}, 1);
    EXPECT_EQ(ListView_GetSelectedCount(Handle()), 2u);
    ListView_SetItemState(Handle(), -1, 0, LVIS_SELECTED);
    expect({}, 1);
    ListView_SetItemState(Handle(), 0, LVIS_SELECTED, LVIS_SELECTED);
    expect({0}, 1);
    Press(WM_CHAR, L'r');  // looks for a row after the focused one
    expect({2}, 2);
}

TEST_F(TablePeerTest, OpensAndDeletesRows) {
    auto& button = Get<TButton>(L"Default");
    button.OnClick = Note;
    Press(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(TakeFired(), TNames{L"Default"}) << "there is no row to open";
    Click(2);
    Click(2, WM_LBUTTONDBLCLK);
    Press(WM_KEYDOWN, VK_RETURN);
    Press(WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ(Opened, (std::vector{2, 2}));
    EXPECT_EQ(TakeFired(), (TNames{L"Table", L"Table"}));
    List().OnOpen = nullptr;
    Press(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(TakeFired(), TNames{L"Default"});
}

TEST_F(TablePeerTest, ColumnsStayInSightUntilTheUserSetsThem) {
    const auto widths = [this] {
        return ListView_GetColumnWidth(Handle(), 0) + ListView_GetColumnWidth(Handle(), 1);
    };
    const auto room = [this] {
        RECT area{};
        GetClientRect(Handle(), &area);
        return area.right;
    };
    EXPECT_EQ(widths(), room());
    EXPECT_GE(ListView_GetColumnWidth(Handle(), 0), ListView_GetStringWidth(Handle(), L"Setting"));
    const HWND form = GetAncestor(Handle(), GA_ROOT);
    SetWindowPos(form, nullptr, 0, 0, 1000, 700, SWP_NOMOVE);
    EXPECT_EQ(widths(), room());
    ListView_SetColumnWidth(Handle(), 0, 30);
    NMHEADERW end{{ListView_GetHeader(Handle()), 0, HDN_ENDTRACKW}, 0, 0, nullptr};
    SendMessageW(Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&end));
    SetWindowPos(form, nullptr, 0, 0, 900, 700, SWP_NOMOVE);
    EXPECT_EQ(ListView_GetColumnWidth(Handle(), 0), 30);
}

/// How long the thread has had a processor, in milliseconds: what else the machine does takes none of it.
std::uint64_t TimeSpent() {
    FILETIME begin, end, kernel, user;
    GetThreadTimes(GetCurrentThread(), &begin, &end, &kernel, &user);
    constexpr std::uint64_t kUnits = 10000;
    return (std::uint64_t{kernel.dwLowDateTime} + user.dwLowDateTime) / kUnits;
}

TEST_F(TablePeerTest, ManyRowsAreShownAndSelectedInNoTime) {
    List().SetSelected({1});
    Fired.clear();
    const std::uint64_t start = TimeSpent();
    SetRows(20000);
    EXPECT_EQ(List().Selected(), TRows{});
    EXPECT_EQ(ListView_GetSelectedCount(Handle()), 0u);
    EXPECT_EQ(Cell(19999, 0), L"row19999");
    Press(WM_CHAR, 1);
    EXPECT_EQ(List().Selected().size(), 20000u);
    EXPECT_EQ(TakeFired(), (TNames{L"Table", L"Table"}));
    SetRows(2);
    EXPECT_EQ(ListView_GetItemCount(Handle()), 2);
    EXPECT_LT(TimeSpent() - start, 2000u);
}

}  // namespace
