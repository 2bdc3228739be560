#include "tests/win32/peer_bench.h"

namespace {

using ColorSwatchPeerTest = TPeerBench;

TEST_F(ColorSwatchPeerTest, OtherProcessesCanReadTheColour) {
    Form.Build(Form, ColorSwatch(L"Swatch"));
    Show();
    const HWND window = Window(L"Swatch");
    const auto property = [window] { return reinterpret_cast<ULONG_PTR>(GetPropW(window, L"ControlColor")); };
    EXPECT_EQ(property(), 0x01000000u) << "black is told apart from no property";
    Get<TColorSwatch>(L"Swatch").SetColor(0x00C65D21);
    EXPECT_EQ(property(), 0x01C65D21u);

    UpdateWindow(window);
    const HDC device = GetDC(window);
    EXPECT_EQ(GetPixel(device, 3, 3), 0x00C65D21u);
    ReleaseDC(window, device);
}

}  // namespace
