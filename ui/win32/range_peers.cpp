#include "ui/win32/range_peers.h"

#include <utility>

#include "ui/win32/form_window.h"

TTrackBarPeer::TTrackBarPeer(TFormWindow& form, TTrackBar& bar, HWND parent) : TWindowPeer(form, bar) {
    constexpr int kTicks = 10;
    Create(parent, TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS | WS_TABSTOP | WS_GROUP);
    Subclass();
    const int step = std::max(1, (bar.Max() - bar.Min()) / kTicks);
    Send(TBM_SETRANGEMIN, FALSE, bar.Min());
    Send(TBM_SETRANGEMAX, FALSE, bar.Max());
    Send(TBM_SETTICFREQ, static_cast<WPARAM>(step));
    Send(TBM_SETPAGESIZE, 0, step);
    PassWheelOn();
    ShowState();  // once more: the first time the range was still the default one
}

void TTrackBarPeer::OnScroll() {
    static_cast<TTrackBar&>(Control()).SetPosition(static_cast<int>(Send(TBM_GETPOS)));
}

void TTrackBarPeer::ShowState() { Send(TBM_SETPOS, TRUE, static_cast<TTrackBar&>(Control()).Position()); }

TUpDownPeer::TUpDownPeer(TFormWindow& form, TUpDown& upDown, HWND parent) : TWindowPeer(form, upDown) {
    Create(parent, UPDOWN_CLASSW, UDS_ARROWKEYS);
    Subclass();
    Send(UDM_SETRANGE32, static_cast<WPARAM>(upDown.Min()), upDown.Max());
    PassWheelOn();
    ShowState();
}

/// Every message to an edit with an up-down takes longer, and to place it takes many.
void TUpDownPeer::Place(const TRect& place) {
    TWindowPeer::Place(place);
    if (!std::exchange(FIsPaired, true)) Pair();
}

void TUpDownPeer::Pair() {
    const TEdit* associate = static_cast<TUpDown&>(Control()).Associate();
    auto* edit = associate == nullptr ? nullptr : PeerOf(*associate);
    if (edit == nullptr) return;
    Send(UDM_SETBUDDY, reinterpret_cast<WPARAM>(edit->Handle()));  // for the arrow keys in the edit
    edit->PassWheelOn();
}

LRESULT TUpDownPeer::OnNotify(NMHDR& header) {
    if (header.code != static_cast<UINT>(UDN_DELTAPOS)) return 0;
    auto& upDown = static_cast<TUpDown&>(Control());
    upDown.SetPosition(upDown.Position() + reinterpret_cast<NMUPDOWN&>(header).iDelta);
    return 1;  // the position is the control's; Windows must not move it by itself
}

void TUpDownPeer::ShowState() { Send(UDM_SETPOS32, 0, static_cast<TUpDown&>(Control()).Position()); }

TTimerPeer::TTimerPeer(TFormWindow& form, TTimer& timer) : FForm(form), FTimer(timer) {
    Update(TControlAspect::Enabled);
}

void TTimerPeer::Update(TControlAspect aspect) {
    if (aspect != TControlAspect::Enabled || FTimer.Enabled() == (FId != 0)) return;
    if (FTimer.Enabled()) {
        FId = FForm.StartTimer(FTimer);
    } else {
        FForm.StopTimer(FId);
        FId = 0;
    }
}
