#include "ui/win32/table_peer.h"

#include <algorithm>
#include <utility>

#include "ui/cut_text.h"
#include "ui/win32/form_window.h"

namespace {

// At 96 dots per inch.
constexpr int kEmptyMargin = 16;
constexpr int kTipWidth = 480;

constexpr WPARAM kSelectAll = 1;  // Ctrl+A as a character

}  // namespace

TTablePeer::TTablePeer(TFormWindow& form, TListView& list, HWND parent) : TListViewPeer(form, list) {
    CreateList(parent, LVS_OWNERDATA | (list.SelectsOne ? LVS_SINGLESEL : 0));
}

void TTablePeer::ShowItems() {
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_INFOTIP);
    ShowColumns();
    if (const auto tips = reinterpret_cast<HWND>(Send(LVM_GETTOOLTIPS)))  // of more lines than one
        SendMessageW(tips, TTM_SETMAXTIPWIDTH, 0, FForm.Screen().Scale(kTipWidth));
    FShowing = true;
    Send(WM_SETREDRAW, FALSE);
    Send(LVM_SETITEMCOUNT, 0);  // Windows would keep the selection and the scrolling of the former rows
    Send(LVM_SETITEMCOUNT, List().Rows().size());
    Send(WM_SETREDRAW, TRUE);
    InvalidateRect(Handle(), nullptr, TRUE);
    FShowing = false;
    FitColumns();
    ShowSpoken();
}

TSpoken TTablePeer::Spoken() const {
    TSpoken spoken = TListViewPeer::Spoken();
    if (List().Rows().empty()) spoken.Description = List().EmptyText;
    return spoken;
}

const std::wstring& TTablePeer::TextOf(std::size_t row, std::size_t cell) {
    static const std::wstring kNone;
    const auto& rows = List().Rows();
    if (row >= rows.size() || cell >= rows[row].Cells.size()) return kNone;
    const std::wstring& text = rows[row].Cells[cell];
    if (!FDraws) return text;
    std::rotate(FDrawn.begin(), FDrawn.begin() + 1, FDrawn.end());
    FDrawn.back() = CutInside(text, [&](const std::wstring& each) { return Fits(each, cell); });
    return FDrawn.back();
}

bool TTablePeer::Fits(const std::wstring& text, std::size_t cell) const {
    return WidthOf(text) <= Send(LVM_GETCOLUMNWIDTH, cell);
}

std::wstring TTablePeer::TipOf(std::size_t row) const {
    const auto& rows = List().Rows();
    std::wstring tip;
    bool isCut = false;
    for (std::size_t cell = 0; row < rows.size() && cell < rows[row].Cells.size(); ++cell) {
        const std::wstring& text = rows[row].Cells[cell];
        isCut |= !Fits(text, cell);
        tip += (tip.empty() ? L"" : L"\n") + text;
    }
    return isCut ? tip : std::wstring();
}

void TTablePeer::DrawEmptyText() const {
    const std::wstring& text = List().EmptyText;
    RECT area{};
    RECT header{};
    GetClientRect(Handle(), &area);
    GetWindowRect(reinterpret_cast<HWND>(Send(LVM_GETHEADER)), &header);
    const int margin = FForm.Screen().Scale(kEmptyMargin);
    area.top += header.bottom - header.top;
    InflateRect(&area, -margin, -margin);
    const HDC target = GetDC(Handle());
    const HGDIOBJ former = SelectObject(target, FForm.Screen().Font());
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, GetSysColor(COLOR_WINDOWTEXT));
    DrawTextW(target, text.c_str(), static_cast<int>(text.size()), &area,
              DT_WORDBREAK | DT_CENTER | DT_NOPREFIX);
    SelectObject(target, former);
    ReleaseDC(Handle(), target);
}

void TTablePeer::ShowState() {
    const std::vector<std::size_t> rows = List().Selected();
    if (rows == SelectedRows()) return;
    FShowing = true;
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
    item.state = LVIS_SELECTED;
    for (const std::size_t row : rows) Send(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
    if (!rows.empty()) {
        item.state = item.stateMask = LVIS_FOCUSED;
        Send(LVM_SETITEMSTATE, rows.front(), reinterpret_cast<LPARAM>(&item));
        Send(LVM_ENSUREVISIBLE, rows.front());
    }
    FShowing = false;
}

void TTablePeer::FitColumns() {
    if (FHasOwnWidths) return;
    const auto& columns = List().Columns();
    std::vector<int> widths;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        // The longest text is nearly always the widest one, too.
        const std::wstring* longest = nullptr;
        for (const TListView::TRow& row : List().Rows()) {
            if (i < row.Cells.size() && (longest == nullptr || row.Cells[i].size() > longest->size()))
                longest = &row.Cells[i];
        }
        int width = longest == nullptr ? 0 : WidthOf(*longest);
        // What is cut of a place in the registry is missed least.
        if (longest != nullptr && longest->starts_with(L"HKEY_") && columns.size() > 3)
            width = std::min(width, Width() / static_cast<int>(columns.size()));
        widths.push_back(std::max(WidthOf(columns[i]), width));
    }
    widths = FairShares(widths, Width());
    for (std::size_t i = 0; i < widths.size(); ++i) Send(LVM_SETCOLUMNWIDTH, i, MAKELPARAM(widths[i], 0));
}

std::vector<std::size_t> TTablePeer::SelectedRows() const {
    std::vector<std::size_t> rows;
    for (LRESULT row = -1; (row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0;)
        rows.push_back(static_cast<std::size_t>(row));
    return rows;
}

int TTablePeer::FocusedRow() const {
    return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

int TTablePeer::FindRow(const NMLVFINDITEMW& search) const {
    if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0) return -1;
    const auto& rows = List().Rows();
    const int length = lstrlenW(search.lvfi.psz);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::size_t row = (static_cast<std::size_t>(std::max(0, search.iStart)) + i) % rows.size();
        if (rows[row].Cells.empty() || rows[row].Cells[0].size() < static_cast<std::size_t>(length)) continue;
        if (CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, rows[row].Cells[0].c_str(), length,
                           search.lvfi.psz, length) == CSTR_EQUAL)
            return static_cast<int>(row);
    }
    return -1;
}

LRESULT TTablePeer::OnNotify(NMHDR& header) {
    switch (header.code) {
        case LVN_GETDISPINFOW: {
            auto& item = reinterpret_cast<NMLVDISPINFOW&>(header).item;
            if ((item.mask & LVIF_TEXT) != 0)
                item.pszText = MessageText(
                    TextOf(static_cast<std::size_t>(item.iItem), static_cast<std::size_t>(item.iSubItem)));
            return 0;
        }
        case LVN_GETINFOTIPW: {
            const auto& asked = reinterpret_cast<const NMLVGETINFOTIPW&>(header);
            const std::wstring tip = TipOf(static_cast<std::size_t>(asked.iItem));
            const auto most = static_cast<std::size_t>(std::max(1, asked.cchTextMax)) - 1;
            asked.pszText[tip.copy(asked.pszText, most)] = L'\0';
            return 0;
        }
        case LVN_ODFINDITEMW:
            return FindRow(reinterpret_cast<const NMLVFINDITEMW&>(header));
        case LVN_ITEMCHANGED:
        case LVN_ODSTATECHANGED:
            if (!FShowing) FHasChanged = true;
            return 0;
        case NM_DBLCLK:
            FOpened = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
            return 0;
        default:
            return 0;
    }
}

LRESULT TTablePeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    ++FDepth;
    const bool draws = message == WM_PAINT;
    if (draws) FDraws = true;
    const bool isEmpty = draws && List().Rows().empty() && !List().EmptyText.empty();
    if (isEmpty) InvalidateRect(Handle(), nullptr, TRUE);  // all of it, for the text is drawn over it
    const LRESULT result = OnKey(message, wParam) ? 0 : TWindowPeer::OnMessage(message, wParam, lParam);
    if (draws) FDraws = false;
    if (isEmpty) DrawEmptyText();
    if (--FDepth == 0) FireEvents();
    if (message == WM_GETDLGCODE && lParam != 0 && Takes(*reinterpret_cast<const MSG*>(lParam)))
        return result | DLGC_WANTMESSAGE;
    if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == HDN_ENDTRACKW)
        FHasOwnWidths = true;
    return result;
}

bool TTablePeer::OnKey(UINT message, WPARAM key) {
    if (message == WM_KEYDOWN && key == VK_RETURN && TakesEnter()) {
        FOpened = FocusedRow();
        return true;
    }
    if (message == WM_KEYDOWN && key == VK_ESCAPE && List().OnKey) {
        FEscapes = true;
        return true;
    }
    if (message == WM_KEYDOWN && key == VK_DELETE) {
        FDeletes = true;
        return true;
    }
    if (message != WM_CHAR) return false;
    if (key == kSelectAll && !List().SelectsOne) {
        LVITEMW item{};
        item.state = item.stateMask = LVIS_SELECTED;
        Send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
    }
    return key < VK_SPACE;  // the list would look for a row that begins with it
}

bool TTablePeer::Takes(const MSG& message) const {
    return (message.message == WM_KEYDOWN && message.wParam == VK_RETURN && TakesEnter()) ||
           (List().OnKey && KeyDown(message.message, message.wParam));
}

bool TTablePeer::TakesEnter() const { return List().OnOpen && FocusedRow() >= 0; }

/// They may have the window closed, or another one shown.
void TTablePeer::FireEvents() {
    TListView& list = List();
    const int opened = std::exchange(FOpened, -1);
    const bool deletes = std::exchange(FDeletes, false);
    const bool escapes = std::exchange(FEscapes, false);
    if (std::exchange(FHasChanged, false)) list.SetSelected(SelectedRows(), FocusedRow());
    if (opened >= 0) list.Open(static_cast<std::size_t>(opened));
    if (deletes) list.Delete();
    if (escapes) (void)list.OnKey(TKey::Escape);
}
