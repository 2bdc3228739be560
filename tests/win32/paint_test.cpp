// What a window shows after it changed is what it would show if it were drawn for the first time.
#include <array>
#include <bit>

#include "tests/win32/peer_bench.h"
#include "ui/containers.h"

namespace {

/// What a window shows, frame and all.
std::vector<COLORREF> PixelsOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HDC memory = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    const HDC source = GetWindowDC(window);
    BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* first = static_cast<const COLORREF*>(bits);
    std::vector<COLORREF> pixels(first, first + width * height);
    ReleaseDC(window, source);
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    return pixels;
}

/// A form with every kind of control, arranged as those of the program are.
void BuildAll(TForm& form) {
    const auto group = [](std::wstring name) {
        TDesigns items;
        for (const wchar_t number : std::wstring(L"01234567"))
            items.push_back(CategoryItem((name + number).c_str(), L"Item", 1, L"general"));
        return CategoryGroup(name.c_str(), L"Group", std::move(items));
    };
    form.ClientWidth = 420;
    form.ClientHeight = 330;
    form.Build(
        form,
        Row(CategoryBar(L"Bar", {group(L"A"), group(L"B")}),
            Column(
                Notebook(
                    L"Notebook",
                    {NotebookPage(
                         1,
                         PageControl(
                             L"Tabs",
                             Sheet(L"Sheet1", L"Sheet 1",
                                   Group(L"Group1", L"Group", CheckBox(L"Box", L"&Box"), Row(Edit(L"Edit")),
                                         Image(L"Picture", L"general")),
                                   Group(L"Group2", L"Group",
                                         Row(RadioButton(L"Radio", L"Radio"), TrackBar(L"Track", 1, 10, 5)),
                                         Row(Label(L"Label", L"Label"), Edit(L"Number").Width(5),
                                             UpDown(L"UpDown", L"Number", 1, 100, 10)),
                                         Row(ComboBox(L"Combo", {L"one", L"two"}), ColorSwatch(L"Swatch"))),
                                   Buttons(Button(L"Default", L"Default"))),
                             Sheet(L"Sheet2", L"Sheet 2", ListView(L"List", {L"Column"}),
                                   Buttons(Button(L"Default2", L"Default"))))),
                     NotebookPage(2,
                                  PageControl(L"Tabs2", Sheet(L"Sheet3", L"Sheet 3",
                                                              Group(L"Group3", L"Group",
                                                                    Label(L"Long",
                                                                          L"A text of several words "
                                                                          L"that may need two lines "
                                                                          L"or even more than two")),
                                                              Buttons(Button(L"Default3", L"Default")))))}),
                Buttons(Button(L"OK", L"OK"), Button(L"Apply", L"Apply")))));
    form.Find<TNotebook>(L"Notebook")->ShowPage(L"1");
}

class PaintTest : public TPeerBench {
  protected:
    PaintTest() {
        BuildAll(Form);
        Show();
        HandleMessages();
        Get<TNotebook>(L"Notebook").ShowPage(L"2");  // creates it
        Get<TNotebook>(L"Notebook").ShowPage(L"1");
        HandleMessages();
    }

    HWND FormWindow() const { return static_cast<TFormWindow*>(Form.Peer())->Handle(); }
    void Resize(int width, int height) const {
        SetWindowPos(FormWindow(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
        HandleMessages();
    }
    /// What `window` shows is what it shows once it is drawn anew.
    void ExpectFreshlyDrawn(const char* when, HWND window) const {
        HandleMessages();
        const std::vector<COLORREF> shown = PixelsOf(window);
        RedrawWindow(FormWindow(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        EXPECT_EQ(Difference(shown, PixelsOf(window)), 0) << when;
    }
    void ExpectFreshlyDrawn(const char* when) const { ExpectFreshlyDrawn(when, FormWindow()); }
    /// Gives every control a dot, or takes it away.
    void Mark(bool marked) {
        for (const auto& component : Form.Components()) {
            auto& control = static_cast<TControl&>(*component);
            control.SetMarked(marked);
            const auto* peer = PeerOf(control);
            if (peer == nullptr || control.Kind() != TComponentKind::CheckBox) continue;
            EXPECT_EQ(GetPropW(peer->Handle(), L"ControlChanged") != nullptr, marked);
        }
    }
    void ExpectSizesAreDrawnRight() {
        for (const auto& [width, height] : {std::pair(700, 600),
                                            {709, 607},
                                            {700, 600},
                                            {760, 600},
                                            {761, 640},
                                            {460, 380},
                                            {500, 370},
                                            {900, 700},
                                            {600, 400}}) {
            Resize(width, height);
            ExpectFreshlyDrawn(testing::PrintToString(std::pair(width, height)).c_str());
        }
        ShowWindow(FormWindow(), SW_MAXIMIZE);
        ExpectFreshlyDrawn("maximised");
        Get<TPageControl>(L"Tabs").SetActiveSheet(Get<TTabSheet>(L"Sheet2"));
        ExpectFreshlyDrawn("a sheet that was hidden", Window(L"Sheet2"));
        ShowWindow(FormWindow(), SW_RESTORE);
        ExpectFreshlyDrawn("restored");
        Get<TNotebook>(L"Notebook").ShowPage(L"2");
        ExpectFreshlyDrawn("a page that was hidden");
        Get<TNotebook>(L"Notebook").ShowPage(L"1");
        Get<TPageControl>(L"Tabs").SetActiveSheet(Get<TTabSheet>(L"Sheet1"));
        Resize(0, 0);
        for (const wchar_t* scrolled : {L"Sheet1", L"Bar"}) {
            EXPECT_NE(GetWindowLongPtrW(Window(scrolled), GWL_STYLE) & WS_VSCROLL, 0);
            for (const WPARAM step : {SB_LINEDOWN, SB_TOP}) {
                Send(scrolled, WM_VSCROLL, step);
                ExpectFreshlyDrawn("scrolled");
            }
        }
        Get<TCheckBox>(L"Box").SetVisible(false);
        ExpectFreshlyDrawn("a control less");
        Get<TCheckBox>(L"Box").SetVisible(true);
        ExpectFreshlyDrawn("a control more");
    }
    /// The form shows what a new one would show.
    void ExpectLikeNew(const char* when) {
        HandleMessages();
        RECT place{};
        GetWindowRect(FormWindow(), &place);
        const std::vector<COLORREF> shown = PixelsOf(FormWindow());
        TForm other(L"Other", L"TPeerBenchForm");
        BuildAll(other);
        other.Find<TPageControl>(L"Tabs")->SetActiveSheet(
            *other.Find<TTabSheet>(Get<TPageControl>(L"Tabs").ActiveSheet()->Name()));
        other.Find<TNotebook>(L"Notebook")->ShowPage(Get<TNotebook>(L"Notebook").ActivePage()->Name());
        auto& window = TFormWindow::Attach(other, GetModuleHandleW(nullptr), {});
        window.Show(SW_SHOW);
        MoveWindow(window.Handle(), place.left, place.top, place.right - place.left, place.bottom - place.top,
                   TRUE);
        HandleMessages();
        EXPECT_EQ(Difference(shown, PixelsOf(window.Handle())), 0) << when;
        DestroyWindow(window.Handle());
        MSG quit;
        PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }
    /// In how many dots two pictures differ.
    static std::ptrdiff_t Difference(const std::vector<COLORREF>& left, const std::vector<COLORREF>& right) {
        EXPECT_EQ(left.size(), right.size());
        EXPECT_GT(std::set<COLORREF>(left.begin(), left.end()).size(), 3u) << "nothing is shown";
        std::ptrdiff_t difference = 0;
        for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i)
            if (((left[i] ^ right[i]) & 0xFFFFFF) != 0) ++difference;
        return difference;
    }
};

/// The theme of Windows, which comes back when the object goes.
class TTheme {
  public:
    TTheme() {
        const auto name =
            Find<HRESULT WINAPI(wchar_t*, int, wchar_t*, int, wchar_t*, int)>("GetCurrentThemeName");
        name(FFile, MAX_PATH, FColor, MAX_PATH, FSize, MAX_PATH);
    }
    ~TTheme() { SwitchOn(); }
    TTheme(const TTheme&) = delete;
    TTheme& operator=(const TTheme&) = delete;

    void SwitchOff() const { Apply(nullptr); }
    void SwitchOn() const {
        const auto open =
            Find<HRESULT WINAPI(const wchar_t*, const wchar_t*, const wchar_t*, HANDLE*, DWORD)>(
                MAKEINTRESOURCEA(2));
        HANDLE theme = nullptr;
        if (SUCCEEDED(open(FFile, FColor, FSize, &theme, 0))) Apply(theme);
    }
    bool IsActive() const { return Find<BOOL WINAPI()>("IsThemeActive")(); }

  private:
    template <typename TFunction>
    TFunction* Find(const char* name) const {
        return std::bit_cast<TFunction*>(GetProcAddress(FLibrary, name));
    }
    void Apply(HANDLE theme) const {
        Find<HRESULT WINAPI(HANDLE, char*, HWND)>(MAKEINTRESOURCEA(4))(theme, nullptr, nullptr);
    }

    HMODULE FLibrary = LoadLibraryW(L"uxtheme.dll");
    wchar_t FFile[MAX_PATH]{};
    wchar_t FColor[MAX_PATH]{};
    wchar_t FSize[MAX_PATH]{};
};

TEST_F(PaintTest, EverySizeLooksFreshlyDrawn) { ExpectSizesAreDrawnRight(); }

TEST_F(PaintTest, ASizeASheetAndAPageAreDrawnAtOnce) {
    const auto waiting = [this] {
        TNames names;
        for (const auto& component : Form.Components()) {
            const auto* peer = PeerOf(static_cast<TControl&>(*component));
            if (peer != nullptr && IsWindowVisible(peer->Handle()) &&
                GetUpdateRect(peer->Handle(), nullptr, FALSE))
                names.push_back(component->Name());
        }
        return names;
    };
    SetWindowPos(FormWindow(), nullptr, 0, 0, 709, 607, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(waiting(), TNames());
    Send(L"Tabs", TCM_SETCURFOCUS, 1);
    EXPECT_EQ(waiting(), TNames({L"Tabs"}));  // which draws its tabs later
    Get<TCategoryItem>(L"A1").OnClick = [this](TComponent&) { Get<TNotebook>(L"Notebook").ShowPage(L"2"); };
    Send(L"A1", BM_CLICK);
    EXPECT_EQ(waiting(), TNames());
}

TEST_F(PaintTest, MarksComeAndGoAndFollowTheirControls) {
    for (const wchar_t* name : {L"Box", L"Number"}) {
        TControl& control = *Form.Find(name);
        const std::vector<COLORREF> plain = PixelsOf(FormWindow());
        control.SetMarked(true);
        ExpectFreshlyDrawn("a dot more");
        const auto dot = Difference(plain, PixelsOf(FormWindow()));
        EXPECT_TRUE(dot > 8 && dot <= 36) << dot << " pixels of " << testing::PrintToString(name);
        control.SetMarked(false);
        HandleMessages();
        EXPECT_EQ(Difference(plain, PixelsOf(FormWindow())), 0) << testing::PrintToString(name);
    }
    for (const wchar_t* name : {L"Box", L"UpDown", L"Combo"}) {
        TControl& control = *Form.Find(name);
        const std::vector<COLORREF> plain = PixelsOf(FormWindow());
        control.SetFramed(true);
        ExpectFreshlyDrawn("a frame");
        EXPECT_GT(Difference(plain, PixelsOf(FormWindow())), 100) << testing::PrintToString(name);
        control.SetFramed(false);
        HandleMessages();
        EXPECT_EQ(Difference(plain, PixelsOf(FormWindow())), 0) << testing::PrintToString(name);
    }
    Mark(true);
    Form.Find(L"Number")->SetFramed(true);
    ExpectSizesAreDrawnRight();
    Form.Find(L"Number")->SetFramed(false);
    Mark(false);
    ExpectLikeNew("no marks");
}

TEST_F(PaintTest, TheFocusOfTheCategoryBarIsShownFromTheFirstKeyOn) {
    const auto focused = [this](const wchar_t* name) {
        SetFocus(Window(name));
        HandleMessages();
        return PixelsOf(Window(L"Bar"));
    };
    const std::vector<COLORREF> plain = focused(L"Box");
    EXPECT_EQ(Difference(plain, focused(L"A0")), 0);
    Send(L"A0", WM_KEYDOWN, VK_HOME);
    EXPECT_GT(Difference(plain, focused(L"A0")), 50);
}

TEST_F(PaintTest, TheThemeCanGoAndComeBack) {
    const TTheme theme;
    ASSERT_TRUE(theme.IsActive());
    theme.SwitchOff();
    ASSERT_FALSE(theme.IsActive());
    ExpectLikeNew("classic");
    ExpectSizesAreDrawnRight();
    theme.SwitchOn();
    ASSERT_TRUE(theme.IsActive());
    ExpectLikeNew("themed");
}

TEST_F(PaintTest, FontsFollow) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    NONCLIENTMETRICSW larger = metrics;
    larger.lfMessageFont.lfHeight += larger.lfMessageFont.lfHeight / 3;
    larger.iScrollWidth += 10;
    for (NONCLIENTMETRICSW* now : {&larger, &metrics}) {
        SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof *now, now, 0);
        SendMessageW(FormWindow(), WM_SETTINGCHANGE, now == &larger ? SPI_SETNONCLIENTMETRICS : 0, 0);
        ExpectLikeNew(now == &larger ? "larger" : "as before");
        Get<TPageControl>(L"Tabs").SetActiveSheet(Get<TTabSheet>(now == &larger ? L"Sheet2" : L"Sheet1"));
        ExpectLikeNew("a sheet that was hidden");
        Get<TNotebook>(L"Notebook").ShowPage(now == &larger ? L"2" : L"1");
        ExpectLikeNew("a page that was hidden");
    }
}

TEST_F(PaintTest, TheResolutionOfAnotherScreenIsFollowed) {
    const auto tell = [this](int dotsPerInch, const RECT& place) {
        SendMessageW(FormWindow(), 0x02E0 /* WM_DPICHANGED */, MAKEWPARAM(dotsPerInch, dotsPerInch),
                     reinterpret_cast<LPARAM>(&place));
        HandleMessages();
    };
    const auto placeOf = [](HWND window) {
        RECT place{};
        GetWindowRect(window, &place);
        return place;
    };
    const RECT before = placeOf(FormWindow());
    const RECT field = placeOf(Window(L"Number"));
    const RECT larger{20, 30, 20 + (before.right - before.left) * 3 / 2,
                      30 + (before.bottom - before.top) * 3 / 2};
    for (int round = 0; round < 2; ++round) {
        tell(144, larger);
        const RECT form = placeOf(FormWindow());
        EXPECT_TRUE(EqualRect(&form, &larger));
        const RECT number = placeOf(Window(L"Number"));
        EXPECT_NEAR(number.bottom - number.top, (field.bottom - field.top) * 3 / 2, 3);
        EXPECT_NEAR(number.right - number.left, (field.right - field.left) * 3 / 2, 6);
        tell(96, before);
        ExpectLikeNew("back in the former resolution");
    }
}

WNDPROC g_trackBar = nullptr;
bool g_toldTrackBar = false;
LRESULT CALLBACK WatchTrackBar(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SYSCOLORCHANGE) g_toldTrackBar = true;
    return CallWindowProcW(g_trackBar, window, message, wParam, lParam);
}

TEST_F(PaintTest, ColoursFollow) {
    const TTheme theme;
    theme.SwitchOff();  // its controls have colours of their own
    g_trackBar = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(Window(L"Track"), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchTrackBar)));
    const INT elements[] = {COLOR_WINDOW, COLOR_3DFACE, COLOR_BTNTEXT};
    const std::array<COLORREF, 3> dark{RGB(0, 0, 60), RGB(60, 60, 60), RGB(255, 255, 255)};
    std::array<COLORREF, 3> before{};
    for (std::size_t i = 0; i < before.size(); ++i) before[i] = GetSysColor(elements[i]);
    for (const auto& colors : {dark, before}) {
        SetSysColors(3, elements, colors.data());
        SendMessageW(FormWindow(), WM_SYSCOLORCHANGE, 0, 0);
        EXPECT_TRUE(std::exchange(g_toldTrackBar, false));
        ExpectLikeNew(colors == dark ? "dark" : "as before");
    }
}

}  // namespace
