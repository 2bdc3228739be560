#include "ui/win32/card_peers.h"

#include <algorithm>

#include "ui/cut_text.h"
#include "ui/win32/category_look.h"
#include "ui/win32/form_window.h"
#include "ui/win32/paint_buffer.h"

namespace {

// At 96 dots per inch.
constexpr int kAccentWidth = 3;
constexpr int kPartGap = 12;      // between the two parts of a line
constexpr int kLeastOfFirst = 3;  // the part of a line, as its divisor, that its first text has at least
constexpr int kUnlimited = 1 << 20;

SIZE DrawnSize(HDC target, const std::wstring& text, int width) {
    RECT place{0, 0, width, 0};
    DrawTextW(target, text.c_str(), static_cast<int>(text.size()), &place,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return {place.right, place.bottom};
}

void DrawPart(HDC target, const std::wstring& text, RECT area, UINT cut) {
    DrawTextW(target, text.c_str(), static_cast<int>(text.size()), &area, DT_SINGLELINE | DT_NOPREFIX | cut);
}

}  // namespace

TCardPeer::TCardPeer(TFormWindow& form, TPanel& card, HWND parent)
    : TContainerPeer(form, card, kCardPadding) {
    CreateContainer(parent, kContainerClass, WS_CHILD | DS_CONTROL, 0);
}

void TCardPeer::Update(TControlAspect aspect) {
    if (aspect != TControlAspect::Caption) return TContainerPeer::Update(aspect);
    SetWindowTextW(Handle(), WindowText().c_str());
    if (IsWindowVisible(Handle())) FDescriptions.Alert(Handle());
}

LRESULT TCardPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        Draw(reinterpret_cast<HDC>(wParam));
        return 1;
    }
    if (message == WM_SIZE) InvalidateRect(Handle(), nullptr, TRUE);
    return TContainerPeer::OnMessage(message, wParam, lParam);
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
    if (label.Lines > 1)
        DrawWrapped(target, item.rcItem);
    else
        DrawLine(target, item.rcItem);
    SelectObject(target, font);
}

void TCardLabelPeer::DrawWrapped(HDC target, RECT area) const {
    const int width = static_cast<int>(area.right - area.left);
    const int height = static_cast<int>(area.bottom - area.top);
    const std::wstring shown = CutAtWord(Control().Caption(), [&](const std::wstring& text) {
        return DrawnSize(target, text, width).cy <= height;
    });
    DrawTextW(target, shown.c_str(), static_cast<int>(shown.size()), &area, DT_WORDBREAK | DT_NOPREFIX);
}

void TCardLabelPeer::DrawLine(HDC target, RECT area) const {
    const std::wstring& text = Control().Caption();
    const std::size_t firstEnd = std::min(text.find(L'\n'), text.size());
    const std::wstring first = text.substr(0, firstEnd);
    if (firstEnd < text.size()) {
        const std::size_t secondEnd = text.find(L'\n', firstEnd + 1);
        std::wstring second = text.substr(firstEnd + 1, secondEnd - firstEnd - 1);
        if (secondEnd != std::wstring::npos) second += std::wstring(L" ") + kEllipsis;
        RECT right = area;
        right.left = std::max(area.right - DrawnSize(target, second, kUnlimited).cx,
                              area.left + (area.right - area.left) / kLeastOfFirst);
        DrawPart(target, second, right, DT_END_ELLIPSIS);
        area.right = right.left - FForm.Screen().Scale(kPartGap);
    }
    // Of a place in the registry the end says most.
    DrawPart(target, first, area,
             first.find(L'\\') == std::wstring::npos ? DT_END_ELLIPSIS : DT_PATH_ELLIPSIS);
}
