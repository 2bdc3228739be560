// What a window shows after it changed is what it would show if it were drawn for the first time.
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
    void ExpectSizesAreDrawnRight() {
        for (const auto& [width, height] :
             {std::pair(700, 600), {760, 600}, {761, 640}, {460, 380}, {500, 370}, {900, 700}, {600, 400}}) {
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

  private:
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

TEST_F(PaintTest, EverySizeLooksFreshlyDrawn) { ExpectSizesAreDrawnRight(); }

}  // namespace
