#include "ui/win32/list_view_peer.h"

#include <algorithm>

#include "ui/win32/form_window.h"

namespace {

/// At each side of a column's caption, at 96 dots per inch.
constexpr int kCaptionPadding = 8;

/// The list's caption or cell as its messages want it. They read it only, though their type does not say so.
LPWSTR Text(const std::wstring& text) { return const_cast<LPWSTR>(text.c_str()); }

bool IsChecked(UINT state) { return (state & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2); }

}  // namespace

TListViewPeer::TListViewPeer(TFormWindow& form, TListView& list, HWND parent) : TWindowPeer(form, list) {
    Create(parent, WC_LISTVIEWW,
           WS_TABSTOP | WS_GROUP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
           WS_EX_CLIENTEDGE);
}

void TListViewPeer::Update(TControlAspect aspect) {
    if (Handle() == nullptr || aspect != TControlAspect::Caption) {
        TWindowPeer::Update(aspect);
        return;
    }
    ShowColumns();
    FitColumns();
}

void TListViewPeer::ShowItems() {
    // Before the rows come: check boxes that come later are empty, and are reported as the user's doing.
    constexpr DWORD kExtendedStyle = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT;
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kExtendedStyle, kExtendedStyle);
    ShowColumns();
    InsertRows();
    FitColumns();
}

void TListViewPeer::ShowColumns() {
    const auto& columns = static_cast<const TListView&>(Control()).Columns();
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        column.iSubItem = static_cast<int>(i);
        column.pszText = Text(columns[i]);
        if (!Send(LVM_SETCOLUMNW, i, reinterpret_cast<LPARAM>(&column)))
            Send(LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
}

void TListViewPeer::InsertRows() {
    const auto& rows = static_cast<const TListView&>(Control()).Rows();
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
            item.pszText = Text(cells[cell]);
            Send(cell == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
    }
    Send(WM_SETREDRAW, TRUE);
    FShowing = false;
}

void TListViewPeer::ShowState() {
    const auto& rows = static_cast<const TListView&>(Control()).Rows();
    FShowing = true;
    LVITEMW item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        item.state = INDEXTOSTATEIMAGEMASK(rows[row].Checked ? 2 : 1);
        Send(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
    }
    FShowing = false;
}

void TListViewPeer::FitColumns() {
    const auto& columns = static_cast<const TListView&>(Control()).Columns();
    const int padding = FForm.Screen().Scale(kCaptionPadding);
    RECT area{};
    GetClientRect(Handle(), &area);
    int spare = static_cast<int>(area.right);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        Send(LVM_SETCOLUMNWIDTH, i, LVSCW_AUTOSIZE);
        const auto cells = static_cast<int>(Send(LVM_GETCOLUMNWIDTH, i));
        const auto caption =
            static_cast<int>(Send(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(columns[i].c_str())));
        int width = std::max(cells, caption + 2 * padding);
        if (i + 1 == columns.size()) width = std::max(width, spare);
        spare -= width;
        Send(LVM_SETCOLUMNWIDTH, i, width);
    }
}

void TListViewPeer::Place(const TRect& place) {
    TWindowPeer::Place(place);
    FitColumns();
}

LRESULT TListViewPeer::OnNotify(NMHDR& header) {
    if (header.code != LVN_ITEMCHANGED || FShowing) return 0;
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    constexpr UINT kCheckMark = LVIS_STATEIMAGEMASK;
    if ((change.uChanged & LVIF_STATE) != 0 && ((change.uOldState ^ change.uNewState) & kCheckMark) != 0)
        static_cast<TListView&>(Control()).SetRowChecked(static_cast<std::size_t>(change.iItem),
                                                         IsChecked(change.uNewState));
    return 0;
}
