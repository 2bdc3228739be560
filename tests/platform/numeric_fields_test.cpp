#include "platform/numeric_fields.h"

#include <utility>

#include <gtest/gtest.h>

#include "platform/faults.h"
#include "ui/controls.h"
#include "ui/design.h"
#include "ui/form.h"

namespace {

constexpr const wchar_t* kCount = L"Edit_Count";    // 1 to 100, filters keys
constexpr const wchar_t* kHover = L"Edit_Hover";    // 0 to 1000
constexpr const wchar_t* kCaret = L"Edit_Caret";    // 1 to 10, corrected while typing
constexpr const wchar_t* kSender = L"Edit_Sender";  // 32 to 256, its own sender

std::wstring Arrows(const std::wstring& edit) { return L"UpDown" + edit.substr(4); }

class TNumericFieldsTest : public testing::Test {
  protected:
    /// What was fired: the sender and the number it stands for, of an empty text 0.
    using TFired = std::vector<std::pair<std::wstring, int>>;

    TNumericFieldsTest() {
        Add(Edit(kCount).FilteringKeys(), 1, 100, 3);
        Add(Edit(kHover), 0, 1000, 400);
        Add(Edit(kCaret).Positive(), 1, 10, 2);
        Add(Edit(kSender).Sender(), 32, 256, 96);
    }
    void Add(TControlDesign edit, int min, int max, int position) {
        const std::wstring arrows = Arrows(edit.Name);
        const std::wstring name = edit.Name;
        Form.Build(Form, Row(edit, UpDown(arrows.c_str(), name.c_str(), min, max, position)));
        BindNumericField(*Form.Find<TUpDown>(arrows), [this](TComponent& sender) {
            const auto* edit = Form.Find<TEdit>(sender.Name());
            Fired.emplace_back(sender.Name(), edit != nullptr ? std::stoi(L"0" + edit->Text())
                                                              : static_cast<TUpDown&>(sender).Position());
        });
    }

    TEdit& Field(const wchar_t* edit) { return *Form.Find<TEdit>(edit); }
    TFired TakeFired() { return std::exchange(Fired, {}); }

    TForm Form{L"Form", L"TForm"};
    TFired Fired;
};

TEST_F(TNumericFieldsTest, TheMaximumHoldsWhileTypingAndTheMinimumOnLeaving) {
    const struct {
        const wchar_t* Edit;
        std::wstring Typed;
        std::wstring Becomes;
        int Fires;
        std::wstring Left;  ///< the text in the end; another one than before fires once more
    } cases[] = {
        {kCount, L"7", L"7", 7, L"7"},
        {kCount, L"100", L"100", 100, L"100"},
        {kCount, L"101", L"100", 100, L"100"},
        {kCount, L"2147483647", L"100", 100, L"100"},
        {kCount, L"1", L"1", 1, L"1"},
        {kCount, L"0", L"0", 3, L"1"},
        {kCount, L"-7", L"-7", 3, L"1"},
        {kCount, L"", L"", 3, L"1"},
        {kHover, L"1001", L"1000", 1000, L"1000"},
        {kHover, L"0", L"0", 0, L"0"},
        {kHover, L"", L"", 400, L"0"},
        {kCaret, L"11", L"10", 10, L"10"},
        {kCaret, L"0", L"1", 1, L"1"},
        {kCaret, L"-5", L"1", 1, L"1"},
        {kSender, L"", L"", 0, L"32"},
    };
    // Committed, the edit does at once what leaving it would do, which then has nothing left to do.
    for (std::size_t i = 0; i < 2 * std::size(cases); ++i) {
        const auto& each = cases[i / 2];
        SCOPED_TRACE(testing::PrintToString(each.Typed));
        TEdit& edit = Field(each.Edit);
        const std::wstring sender = each.Edit == kSender ? kSender : Arrows(each.Edit);
        const std::wstring before = edit.Text();
        edit.SetFocused(true);
        edit.SetText(each.Typed);
        EXPECT_EQ(edit.Text(), each.Becomes);
        EXPECT_EQ(TakeFired(), (TFired{{sender, each.Fires}}));
        if (i % 2 == 0)
            edit.SetFocused(false);
        else
            edit.Commit();
        EXPECT_EQ(edit.Text(), each.Left);
        EXPECT_EQ(TakeFired(),
                  each.Left == each.Becomes ? TFired{} : (TFired{{sender, std::stoi(each.Left)}}));
        edit.SetFocused(false);
        EXPECT_EQ(TakeFired(), TFired{});
        edit.SetText(before);
        EXPECT_EQ(TakeFired(), TFired{}) << "nothing is looked at without the focus";
    }
    Field(kCount).SetText(L"500");
    Field(kCount).SetFocused(true);
    Field(kCount).SetFocused(false);
    EXPECT_EQ(Field(kCount).Text(), L"500") << "no typing brought it there";

    // As the arrow keys find it.
    Field(kHover).SetFocused(true);
    Form.Find<TUpDown>(Arrows(kHover))->SetPosition(13);
    EXPECT_EQ(TakeFired(), (TFired{{Arrows(kHover), 13}}));
}

TEST_F(TNumericFieldsTest, LettersDoNotPass) {
    for (const wchar_t key : std::wstring(L"0123456789\b")) EXPECT_TRUE(Field(kCount).AcceptsKey(key));
    for (const wchar_t key : std::wstring(L"aZ-+ ./:\r\x16\x0663\x00B2"))
        EXPECT_FALSE(Field(kCount).AcceptsKey(key)) << static_cast<int>(key);
    EXPECT_TRUE(Field(kHover).AcceptsKey(L'a') && Field(kHover).DigitsOnly) << "left to the native edit";
}

TEST_F(TNumericFieldsTest, ATextThatIsNoNumberIsAFaultAndStays) {
    TEdit& edit = Field(kCount);
    for (const wchar_t* text : {L"12a", L"-", L" 5", L"$1F", L"1.5", L"2147483648", L"\x00E4"}) {
        edit.SetFocused(true);
        EXPECT_THROW(edit.SetText(text), EConvertError);
        EXPECT_THROW(edit.Commit(), EConvertError);
        EXPECT_TRUE(edit.Focused());
        EXPECT_THROW(edit.SetFocused(false), EConvertError);
        EXPECT_EQ(edit.Text(), text);
    }
    EXPECT_TRUE(Fired.empty());
    EXPECT_STREQ(EConvertError(L"1\x00E4").what(), "'1\xC3\xA4' is not a valid integer value");
}

}  // namespace
