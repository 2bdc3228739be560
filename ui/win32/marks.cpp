#include "ui/win32/marks.h"

#include <cstdlib>

#include "ui/pixels.h"
#include "ui/win32/paint_buffer.h"

namespace {

/// Colours that differ by less are hard to tell apart.
constexpr int kLeastMarkContrast = 60;

COLORREF DotColor() {
    const COLORREF color = GetSysColor(COLOR_HOTLIGHT);
    const bool stands =
        std::abs(Lightness(color) - Lightness(GetSysColor(COLOR_3DFACE))) >= kLeastMarkContrast;
    return stands ? color : GetSysColor(COLOR_BTNTEXT);
}

void Redraw(const TWindowPeer& peer, const RECT& dot) {
    RedrawWindow(GetParent(peer.Handle()), &dot, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace

void DrawDot(HDC target, const RECT& area, COLORREF color) {
    TPaintBuffer buffer(target, area);
    buffer.CopyTarget();
    const auto pixels = buffer.Pixels();
    if (!pixels.empty())
        BlendPixels(pixels, DiscPixels(static_cast<int>(area.right - area.left), color).Pixels);
}

void TMarks::Add(TWindowPeer& peer) {
    SetPropW(peer.Handle(), kChangedProperty, reinterpret_cast<HANDLE>(1));
    const RECT dot = FDots[&peer] = peer.DotPlace();
    Redraw(peer, dot);
}

void TMarks::Remove(TWindowPeer& peer) {
    const auto found = FDots.find(&peer);
    if (found == FDots.end()) return;
    RemovePropW(peer.Handle(), kChangedProperty);
    Redraw(peer, found->second);
    FDots.erase(found);
}

void TMarks::Follow(HWND container) {
    if (FFramed != nullptr && GetParent(FFramed->Handle()) == container) Frame(FFramed);
    for (auto& [peer, dot] : FDots) {
        if (GetParent(peer->Handle()) != container) continue;
        const RECT place = peer->DotPlace();
        if (EqualRect(&place, &dot)) continue;
        Redraw(*peer, dot);
        Redraw(*peer, place);
        dot = place;
    }
}

void TMarks::Frame(const TWindowPeer* peer) {
    if (FFramed != nullptr) Redraw(*FFramed, FFrame);
    FFramed = peer;
    if (peer == nullptr) return;
    FFrame = peer->FramePlace();
    Redraw(*peer, FFrame);
}

void TMarks::Draw(HWND container, HDC target) const {
    if (FFramed != nullptr && GetParent(FFramed->Handle()) == container) {
        RECT frame = FFrame;
        for (int width = FFramed->FrameWidth(); width > 0; --width) {
            FrameRect(target, &frame, GetSysColorBrush(COLOR_HIGHLIGHT));
            InflateRect(&frame, -1, -1);
        }
    }
    for (const auto& [peer, dot] : FDots) {
        if (GetParent(peer->Handle()) == container) DrawDot(target, dot, DotColor());
    }
}
