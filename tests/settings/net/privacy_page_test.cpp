#include "settings/net/privacy_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kUpdates = L"Checkbox_Privacy_Common_AutoUpdate_Active";
constexpr const wchar_t* kKind = L"CB_Privacy_Common_AutoUpdate_Type";
constexpr const wchar_t* kCache = L"Checkbox_CleanTraces_ClearIECache_ClearOnExit";
constexpr const wchar_t* kAuthentication = L"Checkbox_Privacy_IE_Authentication_Enable";

#define CURRENT_VERSION L"Software\\Microsoft\\Windows\\CurrentVersion\\"
constexpr TPlace kOptions{kLocalMachine, CURRENT_VERSION L"WindowsUpdate\\Auto Update", L"AUOptions"};
constexpr TPlace kPersistent{kCurrentUser, CURRENT_VERSION L"Internet Settings\\Cache", L"Persistent"};
constexpr TPlace kNegotiate{kCurrentUser, CURRENT_VERSION L"Internet Settings", L"EnableNegotiate"};

TEST(TPrivacyPage, ShowsStoredValues) {
    const TShownCase cases[] = {
        {kUpdates, kOptions, std::nullopt, L"kept"},
        {kUpdates, kOptions, Number(5), L"on"},
        {kKind, kOptions, Number(0), L"0"},
        {kKind, kOptions, Number(2), L"1"},
        {kKind, kOptions, Number(4), L"3"},
        {kKind, kOptions, Number(1), L"kept"},
        {kCache, kPersistent, std::nullopt, L"kept"},
        {kCache, kPersistent, Number(0), L"on"},
        {kAuthentication, kNegotiate, Number(0), L"on"},
        {kAuthentication, kNegotiate, Number(2), L"off"},
    };
    ExpectShown(PrivacyPage(), cases);
}

TEST(TPrivacyPage, RecordsWhatTheBoxesMean) {
    const TRecordedCase cases[] = {
        {kCache,
         L"on",
         {kCache + std::wstring(L": HKCU\\" CURRENT_VERSION L"Internet Settings\\Cache\\[Persistent] = 0")}},
        {kAuthentication,
         L"on",
         {kAuthentication +
          std::wstring(L": HKCU\\" CURRENT_VERSION L"Internet Settings\\[EnableNegotiate] = 0")}},
    };
    ExpectRecorded(PrivacyPage(), cases);
    TPageBench bench(PrivacyPage());
    for (const wchar_t* box : {kCache, kAuthentication}) bench.Preset(box, true);
    for (const wchar_t* button : {L"Button_CleanTraces_Default", L"Button_Privacy_IE_Default"})
        bench.Act(button, L"");
    EXPECT_FALSE(bench.Checked(kCache) || bench.Checked(kAuthentication));
    EXPECT_EQ(bench.Recorded, 2);
}

TEST(TPrivacyPage, UpdateBoxAndListMakeOneChangeThatTheNextLoadShows) {
    TPageBench bench(PrivacyPage());
    bench.Store(kOptions, 1);
    bench.Load();
    bench.Act(kKind, L"2");
    for (const auto& [control, state, number] : {std::tuple(kUpdates, L"on", L"3"),
                                                 {kKind, L"0", L"0"},
                                                 {kKind, L"1", L"2"},
                                                 {kKind, L"3", L"4"},
                                                 {kUpdates, L"off", L"1"},
                                                 {L"Button_Privacy_Common_Default", L"", L"0"}}) {
        bench.Act(control, state);
        EXPECT_EQ(bench.Pending(),
                  std::vector{L"CHKAutoupdate: HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\"
                              L"WindowsUpdate\\Auto Update\\[AUOptions] = " +
                              std::wstring(number)});
        EXPECT_EQ(bench.Get<TComboBox>(kKind).Enabled(), number != std::wstring(L"1"));
    }
    bench.Preset(kUpdates, false);
    bench.Load();
    EXPECT_TRUE(bench.Checked(kUpdates)) << "the pending change, not the stored value";
}

}  // namespace
