// Bounded numeric fields under the hands of a user: real key strokes in a real window.
#include "platform/numeric_fields.h"
#include "tests/win32/peer_bench.h"

namespace {

constexpr const wchar_t* kCount = L"Edit_Use_MouseFunction_Wheel_Count";  // 1 to 100, filters keys
constexpr const wchar_t* kCountUpDown = L"UpDown_Use_MouseFunction_Wheel_Count";
constexpr const wchar_t* kHover = L"Edit_Use_MouseSensitivity_Hover_Time";  // 0 to 1000
constexpr const wchar_t* kHoverUpDown = L"UpDown_Use_MouseSensitivity_Hover_Time";

class NumericFieldsWin32Test : public TPeerBench {
  protected:
    NumericFieldsWin32Test() {
        Form.Build(Form, Column(Row(Edit(kCount), UpDown(kCountUpDown, kCount, 1, 100, 3)),
                                Row(Edit(kHover), UpDown(kHoverUpDown, kHover, 0, 1000, 400)),
                                Button(L"Button", L"Button")));
        const TNotifyEvent changed = [this](TComponent& sender) { Fired.push_back(sender.Name()); };
        BindNumericFields(Form, L"Checkbox_Use_MouseFunction_ChangeKey_ChangeClick", changed);
        for (const wchar_t* upDown : {kCountUpDown, kHoverUpDown}) Get<TUpDown>(upDown).OnChange = changed;
        Show();
    }

    /// Focuses an edit, selects its text and types over it.
    void Type(const wchar_t* edit, const wchar_t* keys) {
        SetFocus(Window(edit));
        SendMessageW(Window(edit), EM_SETSEL, 0, -1);
        for (; *keys != 0; ++keys) SendMessageW(Window(edit), WM_CHAR, *keys, 1);
    }
};

TEST_F(NumericFieldsWin32Test, TypingKeepsToTheBounds) {
    Type(kCount, L"150");
    EXPECT_EQ(TextOf(kCount), L"100");
    EXPECT_EQ(Get<TUpDown>(kCountUpDown).Position(), 100);
    EXPECT_EQ(TakeFired(), TNames(3, kCountUpDown)) << "for 1, 15 and 100";

    Type(kCount, L"4a7\b-x");
    EXPECT_EQ(TextOf(kCount), L"4");
    Type(kHover, L"5z6");
    EXPECT_EQ(TextOf(kHover), L"56") << "the native edit takes digits only";

    Type(kCount, L"\b");
    EXPECT_EQ(TextOf(kCount), L"");
    TakeFired();
    SetFocus(Window(L"Button"));
    EXPECT_EQ(TextOf(kCount), L"1");
    EXPECT_EQ(Get<TUpDown>(kCountUpDown).Position(), 1);
    EXPECT_EQ(TakeFired(), (TNames{kCountUpDown}));
    EXPECT_EQ(Faults, 0);
}

TEST_F(NumericFieldsWin32Test, ArrowKeysRecordTheNewPosition) {
    Type(kHover, L"999");
    TakeFired();
    for (int i = 0; i < 3; ++i) SendMessageW(Window(kHover), WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(TextOf(kHover), L"1000");
    const TNames fired = TakeFired();
    EXPECT_FALSE(fired.empty());
    for (const std::wstring& sender : fired) EXPECT_EQ(sender, kHoverUpDown);
}

TEST_F(NumericFieldsWin32Test, APastedWordIsAFaultAndStays) {
    SetFocus(Window(kHover));
    SendMessageW(Window(kHover), EM_SETSEL, 0, -1);
    SendMessageW(Window(kHover), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"many"));
    EXPECT_EQ(std::exchange(Faults, 0), 1);
    EXPECT_EQ(TextOf(kHover), L"many");
    SetFocus(Window(L"Button"));
    EXPECT_EQ(std::exchange(Faults, 0), 1);
    EXPECT_EQ(TextOf(kHover), L"many");
    EXPECT_EQ(TakeFired(), TNames{});
}

}  // namespace
