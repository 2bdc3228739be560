#include "ui/win32/field_peers.h"

#include <utility>

#include "ui/win32/form_window.h"

namespace {

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// For some scripts Windows takes quadratic time to lay a line out: seconds for 64 K characters.
constexpr std::size_t kLongestShown = 4096;

/// What an edit shows of a text: Windows ends it at a NUL.
std::wstring ShownOf(const std::wstring& text) {
    return text.substr(0, std::min(text.find(L'\0'), kLongestShown));
}

}  // namespace

TLabelPeer::TLabelPeer(TFormWindow& form, TLabel& label, HWND parent) : TWindowPeer(form, label) {
    Create(parent, WC_STATICW, SS_LEFT | WS_GROUP);
}

TEditPeer::TEditPeer(TFormWindow& form, TEdit& edit, HWND parent)
    : TWindowPeer(form, edit), FWhole(edit.Text()) {
    DWORD style = ES_AUTOHSCROLL | WS_TABSTOP | WS_GROUP;
    if (edit.DigitsOnly) style |= ES_NUMBER;
    Create(parent, WC_EDITW, style, WS_EX_CLIENTEDGE);
    Send(EM_LIMITTEXT, kLongestShown);
    Subclass();
}

std::wstring TEditPeer::WindowText() const { return ShownOf(static_cast<TEdit&>(Control()).Text()); }

void TEditPeer::OnCommand(WORD code) {
    auto& edit = static_cast<TEdit&>(Control());
    switch (code) {
        case EN_SETFOCUS:
            edit.SetFocused(true);
            break;
        case EN_KILLFOCUS:
            edit.SetFocused(false);
            break;
        case EN_CHANGE:
            // Windows reports the program's own changes of the text too.
            if (!FShowing) {
                const std::wstring text = TextOf(Handle());
                edit.SetText(text == ShownOf(FWhole) ? FWhole : text);
            }
            break;
        default:
            break;
    }
}

void TEditPeer::ShowState() {
    const std::wstring shown = WindowText();
    const bool isShown = TextOf(Handle()) == shown;
    // What the user types does not displace the whole text, should he take it back.
    if (!isShown || shown == ShownOf(FWhole)) FWhole = static_cast<TEdit&>(Control()).Text();
    if (isShown) return;  // leaves the caret where the user is typing
    FShowing = true;
    SetWindowTextW(Handle(), shown.c_str());
    // Windows puts the caret before the text, which is right only for one that is not shown to its end.
    if (shown.size() == FWhole.size()) Send(EM_SETSEL, shown.size(), static_cast<LPARAM>(shown.size()));
    FShowing = false;
}

/// The edit has a hole where its up-down is, which stands behind it in the order of the tab key.
void TEditPeer::Place(const TRect& place) {
    if (place == Placed()) return;
    Move(place, SWP_NOCOPYBITS | SWP_FRAMECHANGED);
    if (!Edit().HasUpDown()) return;
    const int right = place.Width - kFieldFrame;
    const HRGN shape = CreateRectRgn(0, 0, place.Width, place.Height);
    const HRGN hole = CreateRectRgn(right - FForm.Screen().Scale(kArrowWidth), kFieldFrame, right,
                                    place.Height - kFieldFrame);
    CombineRgn(shape, shape, hole, RGN_DIFF);
    DeleteObject(hole);
    SetWindowRgn(Handle(), shape, TRUE);  // which Windows then owns
}

void TEditPeer::ShrinkClient(RECT& area) const {
    const LONG spare = area.bottom - area.top - FForm.Screen().TextSize(L"0", 1 << 20).Height;
    if (spare > 0) {
        area.top += spare / 2;
        area.bottom -= spare - spare / 2;
    }
    if (static_cast<const TEdit&>(Control()).HasUpDown())
        area.right = std::max(area.left, area.right - FForm.Screen().Scale(kArrowWidth));
}

void TEditPeer::PaintAroundText() const {
    RECT frame{};
    RECT text{};
    GetWindowRect(Handle(), &frame);
    GetClientRect(Handle(), &text);
    MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&text), 2);
    OffsetRect(&text, -frame.left, -frame.top);
    OffsetRect(&frame, -frame.left, -frame.top);
    InflateRect(&frame, -kFieldFrame, -kFieldFrame);
    const HDC target = GetWindowDC(Handle());
    ExcludeClipRect(target, text.left, text.top, text.right, text.bottom);
    const UINT asks = IsWindowEnabled(Handle()) ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC;
    const LRESULT brush = SendMessageW(GetParent(Handle()), asks, reinterpret_cast<WPARAM>(target),
                                       reinterpret_cast<LPARAM>(Handle()));
    FillRect(target, &frame, reinterpret_cast<HBRUSH>(brush));
    ReleaseDC(Handle(), target);
}

void TEditPeer::PaintCue() const {
    const std::wstring& cue = Control().Caption();
    if (cue.empty() || GetFocus() == Handle() || GetWindowTextLengthW(Handle()) != 0) return;
    RECT area{};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
    const HDC target = GetDC(Handle());
    const HGDIOBJ former = SelectObject(target, FForm.Screen().Font());
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, GetSysColor(COLOR_GRAYTEXT));
    DrawTextW(target, cue.c_str(), static_cast<int>(cue.size()), &area,
              DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX | DT_EDITCONTROL);
    SelectObject(target, former);
    ReleaseDC(Handle(), target);
}

LRESULT TEditPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = OnEditMessage(message, wParam, lParam);
    switch (message) {
        case WM_NCCALCSIZE:
            ShrinkClient(*reinterpret_cast<RECT*>(lParam));
            return result;
        case WM_NCPAINT:
            PaintAroundText();
            return result;
        case WM_ENABLE:
            RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
            return result;
        case WM_NCHITTEST:
            return HTCLIENT;
        default:
            return result;
    }
}

LRESULT TEditPeer::OnEditMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    TEdit& edit = Edit();
    if (message == WM_CHAR && !edit.AcceptsKey(static_cast<wchar_t>(wParam))) return 0;
    if (edit.OnKey) {
        if (const auto key = KeyDown(message, wParam); key && edit.OnKey(*key)) return 0;
        if (message == WM_CHAR && (wParam == VK_RETURN || wParam == VK_ESCAPE)) return 0;  // it would beep
        if (message == WM_GETDLGCODE && AsksForKey(lParam))
            return TWindowPeer::OnMessage(message, wParam, lParam) | DLGC_WANTMESSAGE;
    }
    if (edit.Caption().empty()) return TWindowPeer::OnMessage(message, wParam, lParam);
    const LRESULT result = TWindowPeer::OnMessage(message, wParam, lParam);
    if (message == WM_PAINT) PaintCue();
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) InvalidateRect(Handle(), nullptr, TRUE);
    if (message == WM_SETFOCUS) {
        Send(EM_SETSEL, 0, -1);  // a click then sets the caret
        if (const TWindowPeer* from = FForm.PeerOf(reinterpret_cast<HWND>(wParam)))
            edit.Enter(from->Control());
    }
    return result;
}

TComboBoxPeer::TComboBoxPeer(TFormWindow& form, TComboBox& box, HWND parent) : TWindowPeer(form, box) {
    // A scroll bar comes and goes several times until the list has its height, so only one that may need it has it.
    constexpr std::size_t kSurelyShown = 8;
    const DWORD scrolls = box.Items().size() > kSurelyShown ? WS_VSCROLL : 0;
    Create(parent, WC_COMBOBOXW, CBS_DROPDOWNLIST | scrolls | WS_TABSTOP | WS_GROUP);
    Subclass();
    PassWheelOn();
}

void TComboBoxPeer::OnCommand(WORD code) {
    if (code == CBN_SELCHANGE)
        static_cast<TComboBox&>(Control()).SetItemIndex(static_cast<int>(Send(CB_GETCURSEL)));
}

void TComboBoxPeer::ShowItems() {
    if (Send(CB_GETCOUNT) != 0) Send(CB_RESETCONTENT);
    for (const std::wstring& item : static_cast<TComboBox&>(Control()).Items())
        Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
}

void TComboBoxPeer::ShowState() {
    Send(CB_SETCURSEL, static_cast<WPARAM>(static_cast<TComboBox&>(Control()).ItemIndex()));
}

/// The height of a combo box window is that of its dropped list; the closed box is sized by its item height. What it
/// uncovers is its parent's to draw: Windows closes the box without telling the windows below it.
void TComboBoxPeer::Place(const TRect& place) {
    if (std::exchange(FGiven, place) == place && Placed() != TRect()) return;
    constexpr int kMostItemsShown = 16;
    const int items =
        std::min(static_cast<int>(static_cast<TComboBox&>(Control()).Items().size()), kMostItemsShown);
    const int line = static_cast<int>(Send(CB_GETITEMHEIGHT));
    const TRect dropped{place.Left, place.Top, place.Width, place.Height + (items + 1) * line};
    if (dropped == Placed()) return;
    RedrawBelow();
    Move(dropped, SWP_NOREDRAW);
    RECT closed{};
    GetWindowRect(Handle(), &closed);
    const int field = static_cast<int>(Send(CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)));
    const int surplus = static_cast<int>(closed.bottom - closed.top) - place.Height;
    if (surplus != 0) Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), field - surplus);
    RedrawBelow();
}
