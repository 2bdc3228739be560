#include <gtest/gtest.h>

#include "ui/controls.h"
#include "ui/design.h"
#include "ui/win32/form_window.h"

namespace {

TEST(ColorSwatchPeerTest, OtherProcessesCanReadTheColour) {
    TForm form(L"Form", L"TSwatchTestForm");
    form.Build(form, ColorSwatch(L"Swatch"));
    auto* swatch = form.Find<TColorSwatch>(L"Swatch");
    TFormWindow::Attach(form, GetModuleHandleW(nullptr), [](const std::exception_ptr&) {
        FAIL();
    }).Show(SW_SHOW);
    const HWND window = dynamic_cast<TWindowPeer*>(swatch->Peer())->Handle();
    const auto property = [window] { return reinterpret_cast<ULONG_PTR>(GetPropW(window, L"ControlColor")); };

    EXPECT_EQ(property(), 0x01000000u) << "black is told apart from no property";
    swatch->SetColor(0x00C65D21);
    EXPECT_EQ(property(), 0x01C65D21u);

    UpdateWindow(window);
    const HDC device = GetDC(window);
    EXPECT_EQ(GetPixel(device, 3, 3), 0x00C65D21u);
    ReleaseDC(window, device);
}

}  // namespace
