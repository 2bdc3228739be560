// Where the user is in a form: the focus, or else the pointer.
#pragma once

#include <windows.h>

class TControl;
class TFormWindow;

class TAttention {
  public:
    explicit TAttention(TFormWindow& form) : FForm(form) {}

    /// The timer of the form's window that is for PointerRests; beyond those of the form.
    static constexpr UINT_PTR kRestTimer = 0xFFFF;

    /// Where the pointer is now, it has not moved to.
    void Start();
    /// Scrolls what has got the focus into sight, and tells the form of it.
    void FollowFocus();
    /// Waits for the pointer's rest when it has moved.
    void FollowPointer(const MSG& message);
    void PointerRests();

  private:
    /// The control below a point of the screen, enabled or not.
    [[nodiscard]] TControl* ControlAt(POINT point) const;

    TFormWindow& FForm;
    HWND FFocus = nullptr;  ///< as the form knows it
    POINT FPointer{};
};
