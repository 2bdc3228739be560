#include "settings/shell/folder_page.h"

#include <algorithm>

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kTree = L"Checkbox_Folder_View_Windows_Tree";
constexpr const wchar_t* kDetails = L"Checkbox_Folder_View_Windows_Details";
constexpr const wchar_t* kSaveViews = L"Checkbox_Folder_View_BehaviorSet_SaveViewSet";
constexpr const wchar_t* kCount = L"Trabar_Folder_View_BehaviorSet_SaveViewSetCount";
constexpr const wchar_t* kCountShow = L"Label_Folder_View_BehaviorSet_SaveViewSetCountShow";
constexpr const wchar_t* kFileTip = L"Checkbox_Folder_List_Details_FileAndDesktopTip";
constexpr const wchar_t* kFolderTip = L"Checkbox_Folder_List_Details_FolderTip";
constexpr const wchar_t* kWithNumber = L"Radio_Folder_List_ArrangeIcons_WithNumber";
constexpr const wchar_t* kWithLetter = L"Radio_Folder_List_ArrangeIcons_WithLetter";
constexpr const wchar_t* kInColor = L"Checkbox_Folder_List_EAndCFileWithColor";
constexpr const wchar_t* kCompressed = L"Button_Folder_List_CompressedFile_Change";
constexpr const wchar_t* kCompressedLabel = L"Label_Folder_List_CompressedFile";
constexpr const wchar_t* kCompressedColor = L"Ctrbar_Folder_List_CompressedFile_Color";
constexpr const wchar_t* kEncrypted = L"Button_Folder_List_EncryptedFile_Change";
constexpr const wchar_t* kEncryptedColor = L"Ctrbar_Folder_List_EncryptedFile_Color";
constexpr const wchar_t* kSize = L"Edit_Folder_Thumbnail_Size";
constexpr const wchar_t* kSizeArrows = L"UpDown_Folder_Thumbnail_Size";
constexpr const wchar_t* kCache = L"Checkbox_Folder_Thumbnail_Cache";
constexpr const wchar_t* kHot = L"Button_Folder_Choose_Click_Change";
constexpr const wchar_t* kHotColor = L"Ctrbar_Folder_Choose_Click_Color";
constexpr const wchar_t* kCheckBoxes = L"Checkbox_Folder_Choose_AddCheckBox";

// Written as Windows has them, not as the page spells them.
constexpr TPlace Advanced(const wchar_t* name) {
    return {kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced", name};
}
constexpr TPlace Explorer(const wchar_t* name) {
    return {kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer", name};
}
constexpr const wchar_t* kPolicies = L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr TPlace kVerb{kClassesRoot, L"Folder\\shell", L""};
constexpr TPlace kPreview{kCurrentUser, kPolicies, L"NoPreviewPane"};
constexpr TPlace kLogical{kLocalMachine, kPolicies, L"NoStrCmpLogical"};
constexpr TPlace kHotValue{kCurrentUser, L"Control Panel\\Colors", L"HotTrackingColor"};
constexpr TPlace kAltColor = Explorer(L"AltColor");

TEST(TFolderPage, ShowsStoredValues) {
    constexpr const wchar_t* kShowMenus = L"Checkbox_Folder_View_Windows_ShowMenuBar";
    const TShownCase cases[] = {
        {kTree, kVerb, String(L"explore"), L"on", 5},
        {kTree, kVerb, String(L"open"), L"off", 4},
        {kTree, kVerb, String(L"explore"), L"kept", 6},
        {kShowMenus, Advanced(L"AlwaysShowMenus"), std::nullopt, L"on", 6},
        {kShowMenus, Advanced(L"AlwaysShowMenus"), std::nullopt, L"kept", 5},
        {kDetails, kPreview, std::nullopt, L"on"},
        {kDetails, kPreview, std::nullopt, L"kept", 5},
        {kDetails, kPreview, Number(0), L"off"},
        {L"Checkbox_Folder_View_Windows_Restore", Advanced(L"PersistBrowsers"), Number(2), L"on"},
        {kCountShow,
         {kCurrentUser, L"Software\\Microsoft\\Windows\\Shell", L"BagMRU Size"},
         Number(9000),
         L"7000"},
        {kFolderTip, Advanced(L"FolderContentsInfoTip"), Number(0), L"off"},
        {kWithNumber, kLogical, std::nullopt, L"on"},
        {kWithLetter, kLogical, Number(2), L"on"},
        {kInColor, Advanced(L"ShowCompColor"), Number(2), L"on"},
        {kCompressedColor, kAltColor, Bytes({0x12, 0x34, 0x56}), L"0x563412"},
        {kCompressedColor, kAltColor, Bytes({0xFF, 0xFF}), L"kept"},
        {kEncryptedColor, Explorer(L"AltEncryptionColor"), Bytes({1, 2, 3, 0}), L"0x030201"},
        {kSize, Explorer(L"ThumbnailSize"), Number(128), L"128"},
        {kCache, Advanced(L"DisableThumbnailCache"), std::nullopt, L"kept"},
        {kHotColor, kHotValue, String(L"0 102 204"), L"0xCC6600"},
        {kHotColor, kHotValue, String(L" 1  2 3 "), L"0x030201"},
        {kHotColor, kHotValue, String(L"1 2"), L"kept"},
        {kHotColor, kHotValue, String(L"1 2 256"), L"kept"},
        {kHotColor, kHotValue, String(L"1 2 3 4"), L"kept"},
        {kCheckBoxes, Advanced(L"AutoCheckSelect"), Number(1), L"on", 6},
        {kCheckBoxes, Advanced(L"AutoCheckSelect"), Number(1), L"kept", 5},
    };
    ExpectShown(FolderPage(), cases);
}

std::wstring Line(const std::wstring& name, const std::wstring& change) { return name + L": " + change; }

const std::wstring kExplorerKey = L"HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::wstring kPolicyKey = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\";

TEST(TFolderPage, RecordsWhatTheUserDoes) {
    const std::wstring tree = kTree;
    const std::wstring count = kCount;
    const std::wstring verb = L"HKCR\\Folder\\shell\\explore\\";
    const std::wstring logical = Line(kWithLetter, L"HKLM\\" + kPolicyKey + L"[NoStrCmpLogical] = ");
    const TRecordedCase cases[] = {
        {kTree,
         L"on",
         {Line(tree, L"HKCR\\Folder\\shell\\[] = \"explore\""),
          Line(tree + L"1", verb + L"[BrowserFlags] = 22"), Line(tree + L"2", verb + L"[ExplorerFlags] = 22"),
          Line(tree + L"3", verb + L"Command[] = \"%SystemRoot%\\Explorer.exe /e,/idlist,%I,%L\"")}},
        {kTree, L"off", {Line(tree, L"HKCR\\Folder\\shell\\[] = \"\"")}},
        {kDetails, L"on", {Line(kDetails, L"delete HKCU\\" + kPolicyKey + L"[NoPreviewPane]")}, true},
        {kDetails, L"off", {Line(kDetails, L"HKCU\\" + kPolicyKey + L"[NoPreviewPane] = 1")}, true},
        {kSaveViews, L"on", {Line(kSaveViews, kExplorerKey + L"Advanced\\[ClassicViewState] = 0")}},
        {kCount,
         L"400",
         {Line(count + L"1", L"HKCU\\Software\\Microsoft\\Windows\\Shell\\[BagMRU Size] = 400"),
          Line(count + L"2", L"HKCU\\Software\\Microsoft\\Windows\\ShellNoRoam\\[BagMRU Size] = 400")}},
        {kWithLetter, L"on", {logical + L"1"}},
        {kCache, L"off", {Line(kCache, kExplorerKey + L"Advanced\\[DisableThumbnailCache] = 1")}},
        {kCheckBoxes, L"on", {Line(kCheckBoxes, kExplorerKey + L"Advanced\\[AutoCheckSelect] = 1")}},
        // Whether it is typed or comes from the arrows, the size is the edit's change.
        {kSize, L"300", {Line(kSize, kExplorerKey + L"[ThumbnailSize] = 256")}},
        {kSizeArrows, L"128", {Line(kSize, kExplorerKey + L"[ThumbnailSize] = 128")}},
    };
    ExpectRecorded(FolderPage(), cases);

    TPageBench bench(FolderPage());
    bench.Store({kClassesRoot, L"Folder\\shell\\explore", L"Name"}, String(L"x"));
    for (const wchar_t* control : {kTree, kWithLetter, kWithNumber}) bench.Click(control, true);
    EXPECT_EQ(bench.Pending(),
              (std::vector{Line(tree, L"HKCR\\Folder\\shell\\[] = \"explore\""), logical + L"0"}))
        << "a verb that exists is left as it is; both radio buttons make one change";
}

TEST(TFolderPage, BoxesEnableWhatDependsOnThem) {
    TPageBench bench(FolderPage());
    const auto enabled = [&](const wchar_t* name) { return bench.Get<TControl>(name).Enabled(); };
    bench.Store(Advanced(L"ClassicViewState"), 1);
    bench.Store(Advanced(L"ShowInfoTip"), 0);
    bench.Load();
    for (const wchar_t* name : {kCount, kFolderTip, kCompressed, kEncrypted}) EXPECT_FALSE(enabled(name));
    EXPECT_TRUE(enabled(kCompressedLabel)) << "only a click greys the labels";
    for (const bool checked : {true, false}) {
        for (const wchar_t* box : {kSaveViews, kFileTip, kInColor}) bench.Click(box, checked);
        for (const wchar_t* name : {kCount, kFolderTip, kCompressed, kEncrypted, kCompressedLabel})
            EXPECT_EQ(enabled(name), checked) << testing::PrintToString(name);
    }
}

TEST(TFolderPage, LabelRepeatsTheCount) {
    TPageBench bench(FolderPage());
    bench.Act(kCount, L"401");
    EXPECT_EQ(bench.State(kCountShow), L"401");
    bench.Get<TLabel>(kCountShow).SetCaption(L"");
    bench.Click(kFileTip, true);
    EXPECT_EQ(bench.State(kCountShow), L"401") << "the tips' box brings it up to date too";
}

TEST(TFolderPage, ColorsArePickedInTheDialog) {
    struct TCase {
        const wchar_t* Button;
        const wchar_t* Swatch;
        TColor Default;  ///< Explorer's own
        std::wstring Records;
    };
    const TCase cases[] = {
        {kCompressed, kCompressedColor, 0xFF0000, kExplorerKey + L"[AltColor] = FF 20 01 00"},
        {kEncrypted, kEncryptedColor, 0x0D9213, kExplorerKey + L"[AltEncryptionColor] = FF 20 01 00"},
        {kHot, kHotColor, 0xCC6600, L"HKCU\\Control Panel\\Colors\\[HotTrackingColor] = \"255 32 1\""},
    };
    for (const TCase& c : cases) {
        TPageBench bench(FolderPage());
        for (const std::optional<TColor> answer : {std::optional<TColor>(0x0120FF), {}})
            bench.Fake.Dialogs.AnswerColor(answer);
        bench.Act(c.Button, L"");
        bench.Act(c.Button, L"");
        EXPECT_EQ(bench.Fake.Dialogs.InitialColors(), (std::vector<TColor>{c.Default, 0x0120FF}));
        EXPECT_EQ(bench.State(c.Swatch), L"0x0120FF") << "and a cancelled dialog keeps it";
        EXPECT_EQ(bench.Pending(), std::vector{Line(c.Button, c.Records)});
    }
    TPageBench bench(FolderPage());
    bench.Act(kCompressed, L"");
    EXPECT_TRUE(bench.Pending().empty()) << "cancelled";
}

TEST(TFolderPage, EmptySizeIsRecordedAsNoneAndThenAsTheLeast) {
    TPageBench bench(FolderPage());
    const auto size = [](const wchar_t* number) {
        return std::vector{Line(kSize, kExplorerKey + L"[ThumbnailSize] = " + number)};
    };
    auto& edit = bench.Get<TEdit>(kSize);
    bench.Act(kSize, L"");
    EXPECT_EQ(bench.Pending(), size(L"0"));
    edit.SetFocused(false);
    EXPECT_EQ(edit.Text(), L"32");
    EXPECT_EQ(bench.Pending(), size(L"32"));
    bench.Act(kSize, L"40");
    const int recorded = bench.Recorded;
    edit.SetFocused(false);
    EXPECT_EQ(bench.Recorded, recorded) << "a size within the bounds is left as it is";
}

TEST(TFolderPage, DefaultButtons) {
    TPageBench bench(FolderPage());
    for (const wchar_t* box : {kTree, kWithLetter}) bench.Preset(box, true);
    for (const wchar_t* range : {kCount, kSizeArrows}) bench.Act(range, L"100");
    for (const wchar_t* button : {L"Button_Folder_View_BehaviorSet_Default", L"Button_Folder_List_Default",
                                  L"Button_Folder_Thumbnail_Default"})
        bench.Act(button, L"");
    for (const wchar_t* box : {kDetails, kSaveViews, kFileTip, kFolderTip, kWithNumber, kInColor, kCache})
        EXPECT_TRUE(bench.Checked(box)) << testing::PrintToString(box);
    EXPECT_FALSE(bench.Checked(kTree));
    EXPECT_EQ(bench.State(kCount), L"5000");
    const std::vector<std::wstring> pending = bench.Pending();
    EXPECT_EQ(std::ranges::count(pending, Line(kSize, kExplorerKey + L"[ThumbnailSize] = 96")), 1);
}

}  // namespace
