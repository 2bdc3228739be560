#include "ui/component.h"

void TControl::SetCaption(const std::wstring& caption) {
    if (caption == FCaption) return;
    FCaption = caption;
    UpdatePeer(TControlAspect::Caption);
}

void TControl::SetEnabled(bool enabled) {
    if (enabled == FEnabled) return;
    FEnabled = enabled;
    UpdatePeer(TControlAspect::Enabled);
}

void TControl::SetVisible(bool visible) {
    if (visible == FVisible) return;
    FVisible = visible;
    UpdatePeer(TControlAspect::Visible);
}

void TControl::SetMarked(bool marked) {
    if (marked == FMarked) return;
    FMarked = marked;
    UpdatePeer(TControlAspect::Mark);
}

void TControl::SetFramed(bool framed) {
    if (framed == FFramed) return;
    FFramed = framed;
    UpdatePeer(TControlAspect::Frame);
}
