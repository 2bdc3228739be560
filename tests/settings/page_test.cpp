// What a page does whatever its settings are.
#include "settings/page.h"

#include "settings/store.h"
#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kPageKey = L"\\Software\\Test\\";
constexpr TPlace kPlace{kCurrentUser, kPageKey, L"Value"};

TControlDesign Design() {
    return NotebookPage(
        1,
        PageControl(
            L"PageControl",
            Sheet(L"Sheet", L"", CheckBox(L"Box", L""), Group(L"Group", L"", CheckBox(L"Grouped", L"")),
                  ComboBox(L"List", {L"one", L"two"}), TrackBar(L"Slider", 0, 100, 7), Edit(L"Text", L"old"),
                  Edit(L"Stray"), Button(L"Button", L""), Button(L"StrayButton", L"")),
            Sheet(L"OtherSheet", L"", CheckBox(L"OnOtherSheet", L""))));
}

constexpr TBoxRule kShows{.Missing = kClear, .When = {{1, kChecked}}, .Otherwise = kClear};
constexpr TBoxRecord kRecords{.Checked = Dword(1), .Clear = Dword(0)};
constexpr TDatum kItems[] = {Dword(1), Dword(2)};
constexpr const wchar_t* kButtons[] = {L"Button"};

void RecordPress(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    RecordNumber(context, sender.Name(), row.Value, 5);
}

constexpr TRow kRows[] = {
    TCheckBoxRow{.Control = L"Box", .Value = kPlace, .Shows = kShows, .Records = kRecords},
    TCheckBoxRow{.Control = L"Grouped", .Value = kPlace, .Shows = kShows, .Records = kRecords},
    TCheckBoxRow{.Control = L"OnOtherSheet", .Value = kPlace, .Shows = kShows, .Records = kRecords},
    TChoiceRow{.Control = L"List", .Value = kPlace, .Items = kItems},
    TNumberRow{.Control = L"Slider", .Value = kPlace},
    TTextRow{.Control = L"Text", .Value = kPlace},
    TSpecialRow{.Controls = kButtons, .Value = kPlace, .Rule = L"", .Load = nullptr, .Record = RecordPress},
};
constexpr TLoader kLoaders[] = {kRows};
constexpr TOffer kOffers[] = {{L"Box", kSinceXp}, {L"Group", kSinceVista}, {L"OtherSheet", kUntilXp}};

constexpr TPageDefinition kPage{
    .Tag = 1, .SharedHandler = L"BoxClick", .Design = Design, .Loaders = kLoaders, .Presets = {}};

TEST(TPage, WhatIsNotOfferedIsHiddenAndNotLoaded) {
    TPageDefinition page = kPage;
    page.Offers = kOffers;
    for (const auto& [level, box, group, sheet] :
         {std::tuple{4, false, false, true}, {5, true, false, true}, {6, true, true, false}}) {
        TPageBench bench(page);
        bench.Context.WindowsLevel = level;
        bench.Store(kPlace, 1);
        bench.Load();
        EXPECT_EQ(bench.Get<TControl>(L"Box").Visible(), box) << level;
        EXPECT_EQ(bench.Checked(L"Box"), box) << level;
        EXPECT_EQ(bench.Get<TControl>(L"Group").Visible(), group) << level;
        EXPECT_EQ(bench.Checked(L"Grouped"), group) << level;
        EXPECT_EQ(bench.Get<TTabSheet>(L"OtherSheet").TabVisible(), sheet) << level;
        EXPECT_EQ(bench.Checked(L"OnOtherSheet"), sheet) << level;
    }
}

TEST(TPage, PresetsSetWhatIsMeantForTheWindows) {
    static constexpr TPresetState kStates[] = {{L"Box", 1, kSinceXp}, {L"List", 1}};
    constexpr TPreset kPresets[] = {{L"StrayButton", kStates}};
    TPageDefinition page = kPage;
    page.Presets = kPresets;
    for (const int level : {4, 5}) {
        TPageBench bench(page);
        bench.Context.WindowsLevel = level;
        bench.Act(L"StrayButton", {});
        EXPECT_EQ(bench.Checked(L"Box"), level >= 5);
        EXPECT_EQ(bench.State(L"List"), L"1");
    }
}

TEST(TPage, APreparationThatFailsKeepsTheLoadersFromRunning) {
    TPageDefinition page = kPage;
    page.Offers = kOffers;
    for (const bool ready : {false, true}) {
        page.Prepare = ready ? [](TPageContext& context) { return context.Loading; }
                             : [](TPageContext& /*context*/) { return false; };
        TPageBench bench(page);
        bench.Context.WindowsLevel = 5;
        bench.Store(kPlace, 1);
        bench.Load();
        EXPECT_EQ(bench.Checked(L"Box"), ready);
        EXPECT_FALSE(bench.Get<TControl>(L"Group").Visible());
        EXPECT_FALSE(bench.Context.Loading);
    }
}

TEST(TPage, ShowsPendingChangesOfOtherPagesWhenItIsToldSo) {
    TPageDefinition page = kPage;
    for (const bool showsPending : {false, true}) {
        page.ShowsPending = showsPending;
        TPageBench bench(page);
        bench.Store(kPlace, 2);
        Record(bench.Context, L"ControlOfAnotherPage", kPlace, Dword(1));
        bench.Load();
        EXPECT_EQ(bench.Checked(L"Box"), showsPending);
        EXPECT_EQ(bench.State(L"List"), showsPending ? L"0" : L"1");
    }
}

TEST(TPage, ButtonsAndEditsRecordWhenARowNamesThem) {
    const TRecordedCase recorded[] = {
        {L"Button", {}, {L"Button: HKCU\\Software\\Test\\[Value] = 5"}},
        {L"Text", L"new", {L"Text: HKCU\\Software\\Test\\[Value] = \"new\""}},
    };
    ExpectRecorded(kPage, recorded);
    TPageBench bench(kPage);
    bench.Act(L"Stray", L"new");
    bench.Act(L"StrayButton", {});
    EXPECT_EQ(bench.Recorded, 0);
}

TEST(TPage, AnEditRecordsEveryOtherTextAndNoneTwice) {
    TPageBench bench(kPage);
    bench.Store(kPlace, String(L"loaded"));
    bench.Load();
    for (const wchar_t* text : {L"loaded", L"", L"", L"loaded"}) bench.Act(L"Text", text);
    EXPECT_EQ(bench.Recorded, 2) << "clearing it is a change, and so is taking that back";
    EXPECT_EQ(bench.Pending(),
              std::vector<std::wstring>{L"Text: HKCU\\Software\\Test\\[Value] = \"loaded\""});
}

TEST(TPage, AValueThatAControlCannotShowLeavesItAlone) {
    for (const auto& stored : {Number(7), String(L"many"), Bytes({1, 2, 3, 4, 5})}) {
        TPageBench bench(kPage);
        {
            const TLoadingScope loading(bench.Context);
            bench.Act(L"List", L"1");
        }
        bench.Store(kPlace, stored);
        bench.Load();
        EXPECT_EQ(bench.State(L"List"), L"1");
        EXPECT_EQ(bench.State(L"Slider"), L"7");
    }
}

}  // namespace
