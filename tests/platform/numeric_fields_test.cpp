#include "platform/numeric_fields.h"

#include <set>

#include "platform/faults.h"
#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kCount = L"Edit_Use_MouseFunction_Wheel_Count";  // 1 to 100, filters keys
constexpr const wchar_t* kCountUpDown = L"UpDown_Use_MouseFunction_Wheel_Count";
constexpr const wchar_t* kHover = L"Edit_Use_MouseSensitivity_Hover_Time";  // 0 to 1000
constexpr const wchar_t* kHoverUpDown = L"UpDown_Use_MouseSensitivity_Hover_Time";
constexpr const wchar_t* kCaret = L"Edit_Use_Keyboard_CursorWidth_Width";  // 1 to 10
constexpr const wchar_t* kCaretUpDown = L"UpDown_Use_Keyboard_CursorWidth_Width";
constexpr const wchar_t* kOther = L"Edit_Startup_System_DelayTime_Time";  // of another page
constexpr const wchar_t* kOtherUpDown = L"Updown_Startup_System_DelayTime_Time";
constexpr const wchar_t* kThumbnail = L"Edit_Folder_Thumbnail_Size";  // 32 to 256, its own sender

/// Records the sender under its name: the position of an up-down; of an edit the text, none being 0.
void RecordSender(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    TRegRecor record;
    record.Name = sender.Name();
    record.DataType = TRegDataType::Dword;
    if (sender.Kind() == TComponentKind::UpDown)
        record.Value = static_cast<TUpDown&>(sender).Position();
    else
        record.Value = std::stoi(L"0" + static_cast<TEdit&>(sender).Text());
    context.Changes.Add(record);
}

constexpr const wchar_t* kSenders[] = {kCountUpDown, kHoverUpDown, kCaretUpDown,
                                       kOtherUpDown, kCount,       kThumbnail};
constexpr TRow kRows[] = {
    TSpecialRow{.Controls = kSenders, .Value = {}, .Rule = L"", .Load = nullptr, .Record = RecordSender}};
constexpr TLoader kLoaders[] = {kRows};

constexpr TPageDefinition kInputPage{
    .Tag = 4,
    .SharedHandler = L"Checkbox_Use_MouseFunction_ChangeKey_ChangeClick",
    .Design =
        [] {
            return NotebookPage(4, Row(Edit(kCount), UpDown(kCountUpDown, kCount, 1, 100, 3)),
                                Row(Edit(kHover), UpDown(kHoverUpDown, kHover, 0, 1000, 400)),
                                Row(Edit(kCaret), UpDown(kCaretUpDown, kCaret, 1, 10, 2)),
                                Row(Edit(kOther), UpDown(kOtherUpDown, kOther, 0, 600, 30)));
        },
    .Loaders = kLoaders,
    .Presets = {}};

constexpr TPageDefinition kFolderPage{.Tag = 3,
                                      .SharedHandler = L"Checkbox_Folder_View_Windows_TreeClick",
                                      .Design = [] { return NotebookPage(3, Edit(kThumbnail, L"96")); },
                                      .Loaders = kLoaders,
                                      .Presets = {}};

using TRecorded = std::vector<std::pair<std::wstring, std::int32_t>>;

class TFieldBench : public TPageBench {
  public:
    using TPageBench::TPageBench;

    TEdit& Focus(const wchar_t* edit) {
        Get<TEdit>(edit).SetFocused(true);
        return Get<TEdit>(edit);
    }
    TRecorded Changes() const {
        TRecorded changes;
        for (const TRegRecor& record : Context.Changes.Pending())
            changes.emplace_back(record.Name, std::get<std::int32_t>(record.Value));
        return changes;
    }
};

TEST(TNumericFields, EveryRowIsAFieldOfItsOwn) {
    std::set<std::wstring> edits;
    for (const TNumericField& field : NumericFields()) {
        EXPECT_TRUE(edits.insert(field.Edit).second);
        EXPECT_LT(field.Min, field.Max);
        EXPECT_EQ(std::wstring(field.PageHandler).find(L"Edit"), std::wstring::npos);
    }
    EXPECT_EQ(edits.size(), 19U);
}

TEST(TNumericFields, TheMaximumHoldsWhileTyping) {
    const struct {
        const wchar_t* Edit;
        const wchar_t* UpDown;
        const wchar_t* Typed;
        const wchar_t* Becomes;
        std::int32_t Records;
    } cases[] = {
        {kCount, kCountUpDown, L"7", L"7", 7},          {kCount, kCountUpDown, L"100", L"100", 100},
        {kCount, kCountUpDown, L"101", L"100", 100},    {kCount, kCountUpDown, L"2147483647", L"100", 100},
        {kCount, kCountUpDown, L"0", L"0", 3},          {kCount, kCountUpDown, L"", L"", 3},
        {kHover, kHoverUpDown, L"1001", L"1000", 1000}, {kHover, kHoverUpDown, L"0", L"0", 0},
        {kCaret, kCaretUpDown, L"11", L"10", 10},       {kCaret, kCaretUpDown, L"0", L"1", 1},
        {kCaret, kCaretUpDown, L"-5", L"1", 1},         {kCaret, kCaretUpDown, L"", L"", 2},
    };
    for (const auto& each : cases) {
        TFieldBench bench(kInputPage);
        TEdit& edit = bench.Focus(each.Edit);
        edit.SetText(each.Typed);
        EXPECT_EQ(edit.Text(), each.Becomes);
        EXPECT_EQ(bench.Changes(), (TRecorded{{each.UpDown, each.Records}}));
        EXPECT_EQ(bench.Recorded, 1);
    }
}

TEST(TNumericFields, TheMinimumHoldsOnLeaving) {
    const struct {
        const wchar_t* Edit;
        const wchar_t* Text;
        const wchar_t* Becomes;
        TRecorded Records;
    } cases[] = {
        {kCount, L"", L"1", {{kCountUpDown, 1}}},
        {kCount, L"0", L"1", {{kCountUpDown, 1}}},
        {kCount, L"-7", L"1", {{kCountUpDown, 1}}},
        {kCount, L"1", L"1", {}},
        {kCount, L"500", L"500", {}},  // no typing brought it there
        {kHover, L"", L"0", {{kHoverUpDown, 0}}},
        {kHover, L"0", L"0", {}},
    };
    for (const auto& each : cases) {
        TFieldBench bench(kInputPage);
        TEdit& edit = bench.Get<TEdit>(each.Edit);
        edit.SetText(each.Text);
        edit.SetFocused(true);
        EXPECT_EQ(bench.Recorded, 0) << "nothing is looked at without the focus";
        edit.SetFocused(false);
        EXPECT_EQ(edit.Text(), each.Becomes);
        EXPECT_EQ(bench.Changes(), each.Records);
    }
}

TEST(TNumericFields, AnUpDownRecordsByItself) {
    TFieldBench bench(kInputPage);
    bench.Get<TUpDown>(kCountUpDown).SetPosition(12);
    EXPECT_EQ(bench.Get<TEdit>(kCount).Text(), L"12");
    EXPECT_EQ(bench.Changes(), (TRecorded{{kCountUpDown, 12}}));
    EXPECT_EQ(bench.Recorded, 1);

    bench.Focus(kCount);  // as the arrow keys find it
    bench.Get<TUpDown>(kCountUpDown).SetPosition(13);
    EXPECT_EQ(bench.Changes(), (TRecorded{{kCountUpDown, 13}}));
}

TEST(TNumericFields, LettersDoNotPass) {
    TFieldBench bench(kInputPage);
    for (const wchar_t key : std::wstring(L"0123456789\b"))
        EXPECT_TRUE(bench.Get<TEdit>(kCount).AcceptsKey(key));
    for (const wchar_t key : std::wstring(L"aZ-+ ./:\r\x16\x0663\x00B2"))
        EXPECT_FALSE(bench.Get<TEdit>(kCount).AcceptsKey(key)) << static_cast<int>(key);
    // The other fields leave it to the native edit.
    EXPECT_TRUE(bench.Get<TEdit>(kHover).AcceptsKey(L'a'));
    EXPECT_TRUE(bench.Get<TEdit>(kHover).DigitsOnly);
    EXPECT_TRUE(bench.Get<TEdit>(kCount).DigitsOnly);
}

TEST(TNumericFields, ATextThatIsNoNumberIsAFaultAndStays) {
    for (const wchar_t* text : {L"12a", L"-", L" 5", L"$1F", L"1.5", L"2147483648", L"\x00E4"}) {
        TFieldBench bench(kInputPage);
        TEdit& edit = bench.Focus(kCount);
        EXPECT_THROW(edit.SetText(text), EConvertError);
        EXPECT_THROW(edit.SetFocused(false), EConvertError);
        EXPECT_EQ(edit.Text(), text);
        EXPECT_EQ(bench.Recorded, 0);
    }
    EXPECT_STREQ(EConvertError(L"1\x00E4").what(), "'1\xC3\xA4' is not a valid integer value");
}

TEST(TNumericFields, AnEditMayBeItsOwnSender) {
    TFieldBench bench(kFolderPage);
    TEdit& edit = bench.Focus(kThumbnail);
    edit.SetText(L"");
    EXPECT_EQ(bench.Changes(), (TRecorded{{kThumbnail, 0}}));
    edit.SetFocused(false);
    EXPECT_EQ(edit.Text(), L"32");
    EXPECT_EQ(bench.Changes(), (TRecorded{{kThumbnail, 32}}));
    EXPECT_EQ(bench.Recorded, 2);
}

TEST(TNumericFields, LoadersAndOtherPagesAreLeftAlone) {
    TFieldBench bench(kInputPage);
    {
        const TLoadingScope loading(bench.Context);
        bench.Focus(kCount).SetText(L"150");
        EXPECT_EQ(bench.Get<TEdit>(kCount).Text(), L"100");
    }
    TEdit& other = bench.Focus(kOther);
    other.SetText(L"601");
    other.SetText(L"");
    other.SetFocused(false);
    EXPECT_EQ(other.Text(), L"");
    EXPECT_FALSE(other.DigitsOnly);
    EXPECT_EQ(bench.Recorded, 0);
}

TEST(TNumericFields, AFieldWithoutItsUpDownIsADesignError) {
    TForm form(L"Form", L"TForm");
    form.Build(form, Edit(kCount));
    EXPECT_THROW(BindNumericFields(form, kInputPage.SharedHandler, {}), std::logic_error);
}

}  // namespace
