#include "tests/win32/peer_bench.h"

namespace {

constexpr int kWidth = 400;
constexpr int kLine = 20;

/// In which quarters of which lines a label of two lines shows something in a warm colour, a letter for each.
std::string WarmPlaces(TControl& label) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, kWidth, -2 * kLine, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HDC target = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(target, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ former = SelectObject(target, bitmap);
    DRAWITEMSTRUCT item{};
    item.hDC = target;
    item.rcItem = {0, 0, kWidth, 2 * kLine};
    PeerOf(label)->OnDraw(item);
    GdiFlush();
    std::string places(8, '.');
    const auto* pixel = static_cast<const RGBQUAD*>(bits);
    for (int i = 0; i < kWidth * 2 * kLine; ++i, ++pixel) {
        const std::size_t place = static_cast<std::size_t>(i / kWidth / kLine * 4 + i % kWidth * 4 / kWidth);
        if (pixel->rgbRed > pixel->rgbBlue + 60) places[place] = '#';
    }
    SelectObject(target, former);
    DeleteObject(bitmap);
    DeleteDC(target);
    return places;
}

class TCardPeers : public TPeerBench {
  protected:
    TCardPeers() {
        Form.Build(Form, Card(L"Card", CardLabel(L"Label", L"", 2, TTextLook::Quiet)));
        Get<TLabel>(L"Label").Notice = L"warm";
        Show();
    }
};

TEST_F(TCardPeers, ALabelShowsItsNoticeApartAndTellsItInItsText) {
    auto& label = Get<TLabel>(L"Label");
    const std::wstring many(200, L'x');
    for (const auto& [caption, places] :
         {std::pair<std::wstring, const char*>(L"a\nb \u00B7 warm", ".......#"),
          {L"a\nb \u00B7 warm\nc\nd \u00B7 warm", ".......#"},
          {L"a \u00B7 warm\n" + many, "...#...."},
          {L"a\n" + many + L" \u00B7 warm", ".......#"},
          {L"warm is not at the end\nb", "........"}}) {
        label.SetCaption(caption);
        EXPECT_EQ(WarmPlaces(label), places) << testing::PrintToString(caption);
        std::wstring text(1000, L'\0');
        text.resize(static_cast<std::size_t>(GetWindowTextW(Window(L"Label"), text.data(), 1000)));
        EXPECT_EQ(text, caption);
    }
}

TEST_F(TCardPeers, UnderADarkSchemeTheNoticeHasTheColourOfTheOthers) {
    const INT window = COLOR_WINDOW;
    const COLORREF before = GetSysColor(window);
    const COLORREF dark = RGB(0, 0, 0);
    SetSysColors(1, &window, &dark);
    Get<TLabel>(L"Label").SetCaption(L"a\nb \u00B7 warm");
    EXPECT_EQ(WarmPlaces(*Form.Find(L"Label")), "........");
    SetSysColors(1, &window, &before);
}

}  // namespace
