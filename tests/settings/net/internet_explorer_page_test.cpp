#include "settings/net/internet_explorer_page.h"

#include "settings/net/mail_page.h"
#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kMain = L"\\Software\\Microsoft\\Internet Explorer\\Main\\";
constexpr const wchar_t* kSettings = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";
constexpr const wchar_t* kPictures = L"Checkbox_IE_Common_Media_Open";
constexpr const wchar_t* kHomePage = L"Edit_IE_Common_Homepage_Address";
constexpr const wchar_t* kCount = L"Checkbox_IE_Advanced_Connection_Count";
constexpr TPlace kInlineImages{kCurrentUser, kMain, L"Display Inline Images"};
constexpr TPlace kStartPage{kCurrentUser, kMain, L"Start Page"};
constexpr TPlace kPerServer{kCurrentUser, kSettings, L"MaxConnectionsPerServer"};

TEST(TInternetExplorerPage, KeepsTheTypesOfItsValues) {
    const TShownCase shown[] = {
        {kPictures, kInlineImages, String(L"YES"), L"on"},
        {kPictures, kInlineImages, String(L"no"), L"off"},
        {kPictures, kInlineImages, std::nullopt, L"on"},
        {kHomePage, kStartPage, String(L"about:blank"), L"about:blank"},
        {kCount, kPerServer, Number(10), L"on"},
        {kCount, kPerServer, Number(4), L"off"},
    };
    ExpectShown(InternetExplorerPage(), shown);
    const auto line = [](const wchar_t* name, const wchar_t* place) {
        return name + std::wstring(L": HKCU") + place;
    };
    const std::wstring further = kCount + std::wstring(L"1: delete HKCU") + kSettings;
    const TRecordedCase recorded[] = {
        {kPictures, L"off", {line(kPictures, kMain) + L"[Display Inline Images] = \"no\""}},
        {kHomePage, L"a b", {line(kHomePage, kMain) + L"[Start Page] = \"a b\""}},
        {kCount,
         L"off",
         {kCount + std::wstring(L": delete HKCU") + kSettings + L"[MaxConnectionsPerServer]",
          further + L"[MaxConnectionsPer1_0Server]"}},
        {L"Updown_IE_Common_History_KeepDays",
         L"7",
         {line(L"Updown_IE_Common_History_KeepDays", kSettings) + L"Url History\\[DaysToKeep] = 7"}},
    };
    ExpectRecorded(InternetExplorerPage(), recorded);
}

TEST(TInternetExplorerPage, ClearsTheHistoryOnlyWhenAsked) {
    const TPlace typed{kCurrentUser, L"Software\\Microsoft\\Internet Explorer\\TypedURLs", L"url1"};
    for (const bool agrees : {false, true}) {
        TPageBench bench(InternetExplorerPage());
        bench.Store(typed, String(L"http://example.com/"));
        bench.Fake.Dialogs.Answer(agrees ? TMessageAnswer::Yes : TMessageAnswer::No);
        bench.Act(L"Button_IE_Common_History_Clear", L"");
        EXPECT_EQ(bench.Fake.Dialogs.Questions().at(0).Text,
                  L"Are you sure you want to clear IE history? It can not be recovered!");
        EXPECT_EQ(bench.Fake.Shell.HistoryClearings(), agrees ? 1 : 0);
        EXPECT_EQ(bench.Fake.Registry.Find({typed.Root, typed.Key, typed.ValueName}) == nullptr, agrees);
        EXPECT_TRUE(bench.Pending().empty()) << "it is done at once";
    }
}

TEST(TMailPage, OutlookIsToldInEveryVersionThatIsThere) {
    const auto preferences = [](const wchar_t* version) {
        return L"\\Software\\Microsoft\\Office\\" + std::wstring(version) + L"\\Outlook\\Preferences\\";
    };
    const std::wstring newest = preferences(L"12.0");
    const std::wstring oldest = preferences(L"10.0");
    TPageBench bench(MailPage());
    bench.Store({kCurrentUser, newest.c_str(), L"MinToTray"}, 1);
    bench.Store({kCurrentUser, oldest.c_str(), L"MinToTray"}, 0);
    bench.Load();
    EXPECT_TRUE(bench.Checked(L"Checkbox_Mail_Outlook_Tray")) << "the newest version shows";
    bench.Act(L"Checkbox_Mail_Outlook_Tray", L"off");
    bench.Act(L"Checkbox_Mail_OutlookExpress_Messenger", L"off");
    EXPECT_EQ(bench.Pending(), (std::vector<std::wstring>{
                                   L"Checkbox_Mail_Outlook_Tray1: HKCU" + newest + L"[MinToTray] = 0",
                                   L"Checkbox_Mail_Outlook_Tray111: HKCU" + oldest + L"[MinToTray] = 0",
                                   L"Checkbox_Mail_OutlookExpress_Messenger: "
                                   L"HKCU\\Software\\Microsoft\\Outlook Express\\[Hide Messenger] = 2"}));
}

}  // namespace
