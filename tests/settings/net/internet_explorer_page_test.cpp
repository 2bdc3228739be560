#include "settings/net/internet_explorer_page.h"

#include "tests/settings/page_bench.h"

namespace {

TEST(TInternetExplorerPage, ClearsTheHistoryOnlyWhenAsked) {
    const TPlace typed{kCurrentUser, L"Software\\Microsoft\\Internet Explorer\\TypedURLs", L"url1"};
    for (const bool agrees : {false, true}) {
        TPageBench bench(InternetExplorerPage());
        bench.Store(typed, String(L"http://example.com/"));
        bench.Fake.Dialogs.Answer(agrees ? TMessageAnswer::Yes : TMessageAnswer::No);
        bench.Act(L"Button_IE_Common_History_Clear", L"");
        EXPECT_EQ(bench.Fake.Dialogs.Questions().at(0).Text,
                  L"Are you sure you want to clear IE history? It can not be recovered!");
        EXPECT_EQ(bench.Fake.Dialogs.Askers(), std::vector{bench.Context.Form.Name()});
        EXPECT_EQ(bench.Fake.Shell.HistoryClearings(), agrees ? 1 : 0);
        EXPECT_EQ(bench.Fake.Registry.Find({typed.Root, typed.Key, typed.ValueName}) == nullptr, agrees);
        EXPECT_TRUE(bench.Pending().empty()) << "it is done at once";
    }
}

}  // namespace
