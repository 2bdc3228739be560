#include "ui/win32/list_view_peer.h"

#include <algorithm>

#include "ui/win32/form_window.h"

namespace {

/// At each side of a column's caption, at 96 dots per inch.
constexpr int kCaptionPadding = 8;

bool IsChecked(UINT state) { return (state & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2); }

}  // namespace

void TListViewPeer::CreateList(HWND parent, DWORD style) {
    Create(parent, WC_LISTVIEWW,
           WS_TABSTOP | WS_GROUP | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER | style,
           WS_EX_CLIENTEDGE);
    Subclass();
}

void TListViewPeer::Update(TControlAspect aspect) {
    if (Handle() == nullptr || aspect != TControlAspect::Caption) {
        TWindowPeer::Update(aspect);
        return;
    }
    ShowColumns();
    FitColumns();
}

void TListViewPeer::Place(const TRect& place) {
    TWindowPeer::Place(place);
    FitColumns();
}

int TListViewPeer::WidthOf(const std::wstring& text) const {
    const auto width = static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str())));
    return width + 2 * FForm.Screen().Scale(kCaptionPadding);
}

int TListViewPeer::Width() const {
    RECT area{};
    GetClientRect(Handle(), &area);
    return static_cast<int>(area.right);
}

void TListViewPeer::ShowColumns() {
    const auto& columns = List().Columns();
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        column.iSubItem = static_cast<int>(i);
        column.pszText = MessageText(columns[i]);
        if (!Send(LVM_SETCOLUMNW, i, reinterpret_cast<LPARAM>(&column)))
            Send(LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
}

TCheckListPeer::TCheckListPeer(TFormWindow& form, TListView& list, HWND parent) : TListViewPeer(form, list) {
    CreateList(parent, LVS_SINGLESEL);
}

void TCheckListPeer::ShowItems() {
    // Before the rows come: check boxes that come later are empty, and are reported as the user's doing.
    SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    ShowColumns();
    InsertRows();
    FitColumns();
}

void TCheckListPeer::InsertRows() {
    const auto& rows = List().Rows();
    FShowing = true;
    Send(WM_SETREDRAW, FALSE);
    Send(LVM_DELETEALLITEMS);
    LVITEMW item{};
    for (std::size_t row = 0; row < rows.size(); ++row) {
        item.iItem = static_cast<int>(row);
        const auto& cells = rows[row].Cells;
        for (std::size_t cell = 0; cell < cells.size(); ++cell) {
            item.mask = LVIF_TEXT;
            item.iSubItem = static_cast<int>(cell);
            item.pszText = MessageText(cells[cell]);
            Send(cell == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
    }
    Send(WM_SETREDRAW, TRUE);
    FShowing = false;
}

void TCheckListPeer::ShowState() {
    const auto& rows = List().Rows();
    FShowing = true;
    LVITEMW item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        item.state = INDEXTOSTATEIMAGEMASK(rows[row].Checked ? 2 : 1);
        Send(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
    }
    FShowing = false;
}

void TCheckListPeer::FitColumns() {
    const auto& columns = List().Columns();
    int spare = Width();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        Send(LVM_SETCOLUMNWIDTH, i, LVSCW_AUTOSIZE);
        const auto cells = static_cast<int>(Send(LVM_GETCOLUMNWIDTH, i));
        int width = std::max(cells, WidthOf(columns[i]));
        if (i + 1 == columns.size()) width = std::max(width, spare);
        spare -= width;
        Send(LVM_SETCOLUMNWIDTH, i, width);
    }
}

LRESULT TCheckListPeer::OnNotify(NMHDR& header) {
    if (header.code != LVN_ITEMCHANGED || FShowing) return 0;
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    constexpr UINT kCheckMark = LVIS_STATEIMAGEMASK;
    if ((change.uChanged & LVIF_STATE) != 0 && ((change.uOldState ^ change.uNewState) & kCheckMark) != 0)
        List().SetRowChecked(static_cast<std::size_t>(change.iItem), IsChecked(change.uNewState));
    return 0;
}
