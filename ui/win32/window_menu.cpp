#include "ui/win32/window_menu.h"

#include "ui/form.h"

namespace {

constexpr WPARAM kFirstSwitch = 0x100;  // Windows keeps the last four bits for itself
constexpr WPARAM kSwitchStep = 0x10;

}  // namespace

void TWindowMenu::Add(HWND window) {
    const auto& switches = FForm.Switches;
    if (switches.empty()) return;
    const HMENU menu = GetSystemMenu(window, FALSE);
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    for (std::size_t i = 0; i < switches.size(); ++i)
        AppendMenuW(menu, MF_STRING, kFirstSwitch + i * kSwitchStep, switches[i].Caption.c_str());
    Show(window);
}

void TWindowMenu::Show(HWND window) const {
    const auto& switches = FForm.Switches;
    const HMENU menu = GetSystemMenu(window, FALSE);
    for (std::size_t i = 0; i < switches.size(); ++i)
        CheckMenuItem(menu, static_cast<UINT>(kFirstSwitch + i * kSwitchStep),
                      switches[i].IsOn ? MF_CHECKED : MF_UNCHECKED);
}

bool TWindowMenu::Press(HWND window, WPARAM command) {
    auto& switches = FForm.Switches;
    const std::size_t index = (command - kFirstSwitch) / kSwitchStep;
    if (command < kFirstSwitch || index >= switches.size()) return false;
    TForm::TSwitch& pressed = switches[index];
    pressed.IsOn = pressed.Stays && !pressed.IsOn;
    Show(window);
    pressed.OnClick(pressed.IsOn);
    return true;
}
