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
    : TContainerPeer(form, card, card.Look == TPanelLook::Card ? kCardPadding : 0) {
    CreateContainer(parent, kContainerClass, WS_CHILD | DS_CONTROL, 0);
}

void TCardPeer::Update(TControlAspect aspect) {
    if (aspect != TControlAspect::Caption) return TContainerPeer::Update(aspect);
    SetWindowTextW(Handle(), WindowText().c_str());
    if (Look() == TPanelLook::Card && IsWindowVisible(Handle()))
        NotifyWinEvent(EVENT_SYSTEM_ALERT, Handle(), OBJID_CLIENT, CHILDID_SELF);
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
    if (Look() == TPanelLook::Card)
        area.left += FForm.Screen().Scale(kAccentWidth);
    else
        area.bottom -= FForm.Screen().Scale(kHeaderFoot);
    return area;
}

void TCardPeer::Draw(HDC target) const {
    const TCategoryColors colors;
    const TCategoryColors::TPanel panel = colors.Panel(Look());
    RECT area{};
    GetClientRect(Handle(), &area);
    FillArea(target, area, panel.Line);
    RECT inner = area;
    if (Look() == TPanelLook::Header) {
        --inner.bottom;
        FillArea(target, inner, panel.Ground);
        return;
    }
    InflateRect(&inner, -1, -1);
    FillArea(target, inner, panel.Ground);
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
    const TCategoryColors::TPanel colors =
        TCategoryColors().Panel(static_cast<const TPanel*>(label.Parent())->Look);
    const TPaintBuffer buffer(item.hDC, item.rcItem);
    const HDC target = buffer.Handle();
    FillArea(target, item.rcItem, colors.Ground);
    const TScreen& screen = FForm.Screen();
    const bool isHeading = label.Look == TTextLook::Heading;
    const bool isTitle = label.Look == TTextLook::Title;
    const HGDIOBJ font = SelectObject(target, isHeading ? screen.HeadingFont()
                                              : isTitle ? screen.BoldFont()
                                                        : screen.Font());
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, isHeading || isTitle             ? colors.Title
                         : label.Look == TTextLook::Quiet ? colors.Quiet
                                                          : colors.Text);
    if (label.Look == TTextLook::Plain)
        DrawWrapped(target, item.rcItem);
    else
        DrawLines(target, item.rcItem, colors.Notice);
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

LONG TCardLabelPeer::DrawNotice(HDC target, RECT area, COLORREF color) const {
    const std::wstring& notice = static_cast<const TLabel&>(Control()).Notice;
    const auto length = static_cast<int>(notice.size());
    const COLORREF textColor = SetTextColor(target, color);
    DrawTextW(target, notice.c_str(), length, &area, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_RIGHT);
    SetTextColor(target, textColor);
    SIZE size{};
    GetTextExtentPoint32W(target, notice.c_str(), length, &size);
    return size.cx + FForm.Screen().Scale(kNoticeGap);
}

void TCardLabelPeer::DrawLines(HDC target, RECT area, COLORREF noticeColor) const {
    const std::wstring& text = Control().Caption();
    const auto& label = static_cast<const TLabel&>(Control());
    const std::wstring& notice = label.Notice;
    const LONG lineHeight = (area.bottom - area.top) / label.Lines;
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
            area.right -= DrawNotice(target, area, noticeColor);
        }
        const bool isLast = area.bottom + lineHeight > bottom;
        if (isLast && end < text.size()) line += std::wstring(L" ") + kEllipsis;
        // Of a place in the registry the end says most.
        const UINT cut = line.starts_with(L"HKEY_") ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS;
        DrawTextW(target, line.c_str(), static_cast<int>(line.size()), &area,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | cut);
        area.right = right;
        start = end + 1;
    }
}
