#include "ui/win32/card_peers.h"

#include <algorithm>

#include "ui/cut_text.h"
#include "ui/win32/category_look.h"
#include "ui/win32/form_window.h"
#include "ui/win32/paint_buffer.h"

namespace {

// At 96 dots per inch.
constexpr int kAccentWidth = 3;
constexpr int kNoticeGap = 12;

constexpr const wchar_t* kBetween = L" \u00B7";  // what stands between the parts of a line

int DrawnHeight(HDC target, const std::wstring& text, int width) {
    RECT place{0, 0, width, 0};
    return DrawTextW(target, text.c_str(), static_cast<int>(text.size()), &place,
                     DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
}

}  // namespace

TCardPeer::TCardPeer(TFormWindow& form, TPanel& card, HWND parent)
    : TContainerPeer(form, card, kCardPadding) {
    CreateContainer(parent, kContainerClass, WS_CHILD | DS_CONTROL, 0);
}

void TCardPeer::Update(TControlAspect aspect) {
    if (aspect != TControlAspect::Caption) return TContainerPeer::Update(aspect);
    SetWindowTextW(Handle(), WindowText().c_str());
    if (IsWindowVisible(Handle())) NotifyWinEvent(EVENT_SYSTEM_ALERT, Handle(), OBJID_CLIENT, CHILDID_SELF);
}

LRESULT TCardPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        Draw(reinterpret_cast<HDC>(wParam));
        return 1;
    }
    if (message == WM_SIZE) InvalidateRect(Handle(), nullptr, TRUE);
    return TContainerPeer::OnMessage(message, wParam, lParam);
}

RECT TCardPeer::ContentArea() const {
    RECT area = TContainerPeer::ContentArea();
    area.left += FForm.Screen().Scale(kAccentWidth);
    return area;
}

void TCardPeer::Draw(HDC target) const {
    const TCategoryColors colors;
    RECT area{};
    GetClientRect(Handle(), &area);
    FillArea(target, area, colors.HeaderLine());
    RECT inner = area;
    InflateRect(&inner, -1, -1);
    FillArea(target, inner, colors.Card());
    area.right = area.left + FForm.Screen().Scale(kAccentWidth);
    FillArea(target, area, colors.Accent());
}

TCardLabelPeer::TCardLabelPeer(TFormWindow& form, TLabel& label, HWND parent) : TWindowPeer(form, label) {
    Create(parent, WC_STATICW, SS_OWNERDRAW | WS_GROUP);
}

void TCardLabelPeer::Update(TControlAspect aspect) {
    if (aspect != TControlAspect::Caption) return TWindowPeer::Update(aspect);
    // The window keeps its place.
    SetWindowTextW(Handle(), WindowText().c_str());
    InvalidateRect(Handle(), nullptr, FALSE);
}

void TCardLabelPeer::OnDraw(const DRAWITEMSTRUCT& item) {
    const auto& label = static_cast<const TLabel&>(Control());
    const TCategoryColors colors;
    const TPaintBuffer buffer(item.hDC, item.rcItem);
    const HDC target = buffer.Handle();
    FillArea(target, item.rcItem, colors.Card());
    const TScreen& screen = FForm.Screen();
    const bool isTitle = label.Look == TTextLook::Title;
    const HGDIOBJ font = SelectObject(target, isTitle ? screen.BoldFont() : screen.Font());
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, isTitle                          ? colors.HeaderText()
                         : label.Look == TTextLook::Quiet ? colors.QuietText()
                                                          : colors.CardText());
    if (label.Look == TTextLook::Plain)
        DrawWrapped(target, item.rcItem);
    else
        DrawLines(target, item.rcItem, static_cast<int>(item.rcItem.bottom - item.rcItem.top) / label.Lines);
    SelectObject(target, font);
}

void TCardLabelPeer::DrawWrapped(HDC target, RECT area) const {
    const int width = static_cast<int>(area.right - area.left);
    const int height = static_cast<int>(area.bottom - area.top);
    const std::wstring shown = CutAtWord(Control().Caption(), [&](const std::wstring& text) {
        return DrawnHeight(target, text, width) <= height;
    });
    DrawTextW(target, shown.c_str(), static_cast<int>(shown.size()), &area, DT_WORDBREAK | DT_NOPREFIX);
}

LONG TCardLabelPeer::DrawNotice(HDC target, RECT area) const {
    const std::wstring& notice = static_cast<const TLabel&>(Control()).Notice;
    const auto length = static_cast<int>(notice.size());
    const COLORREF color = SetTextColor(target, TCategoryColors().Notice());
    DrawTextW(target, notice.c_str(), length, &area, DT_SINGLELINE | DT_NOPREFIX | DT_RIGHT);
    SetTextColor(target, color);
    SIZE size{};
    GetTextExtentPoint32W(target, notice.c_str(), length, &size);
    return size.cx + FForm.Screen().Scale(kNoticeGap);
}

void TCardLabelPeer::DrawLines(HDC target, RECT area, int lineHeight) const {
    const std::wstring& text = Control().Caption();
    const std::wstring& notice = static_cast<const TLabel&>(Control()).Notice;
    const LONG bottom = area.bottom;
    for (std::size_t start = 0; start < text.size() && area.top + lineHeight <= bottom;
         area.top += lineHeight) {
        area.bottom = area.top + lineHeight;
        const std::size_t end = std::min(text.find(L'\n', start), text.size());
        std::wstring line = text.substr(start, end - start);
        const LONG right = area.right;
        if (!notice.empty() && line.ends_with(notice)) {
            line.resize(line.size() - notice.size());
            line.resize(line.find_last_not_of(kBetween) + 1);
            area.right -= DrawNotice(target, area);
        }
        const bool isLast = area.bottom + lineHeight > bottom;
        if (isLast && end < text.size()) line += std::wstring(L" ") + kEllipsis;
        // Of a place in the registry the end says most.
        const UINT cut = line.starts_with(L"HKEY_") ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS;
        DrawTextW(target, line.c_str(), static_cast<int>(line.size()), &area,
                  DT_SINGLELINE | DT_NOPREFIX | cut);
        area.right = right;
        start = end + 1;
    }
}
