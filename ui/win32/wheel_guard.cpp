#include "ui/win32/wheel_guard.h"

namespace {

constexpr const wchar_t* kBaseProc =
    L"WheelGuardBase";  // the property that holds the window procedure in charge

LRESULT CALLBACK GuardProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto base = reinterpret_cast<WNDPROC>(GetPropW(window, kBaseProc));
    // Only a drop-down list says that it is open.
    if (message == WM_MOUSEWHEEL && !CallWindowProcW(base, window, CB_GETDROPPEDSTATE, 0, 0))
        return SendMessageW(GetParent(window), message, wParam, lParam);
    if (message == WM_NCDESTROY) RemovePropW(window, kBaseProc);
    return CallWindowProcW(base, window, message, wParam, lParam);
}

}  // namespace

void PassWheelOn(HWND window) {
    SetPropW(window, kBaseProc, reinterpret_cast<HANDLE>(GetWindowLongPtrW(window, GWLP_WNDPROC)));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(GuardProc));
}
