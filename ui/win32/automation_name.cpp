#include "ui/win32/automation_name.h"

namespace {

constexpr const wchar_t* kNameProperty = L"ControlName";

}  // namespace

void SetAutomationName(HWND window, const std::wstring& name) {
    const ATOM atom = GlobalAddAtomW(name.c_str());
    if (atom == 0) return;
    if (!SetPropW(window, kNameProperty, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom))))
        GlobalDeleteAtom(atom);
}

void RemoveAutomationName(HWND window) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(RemovePropW(window, kNameProperty)));
    if (atom != 0) GlobalDeleteAtom(atom);
}
