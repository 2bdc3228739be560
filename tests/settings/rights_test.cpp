#include "settings/rights.h"

#include "settings/page_table.h"
#include "tests/settings/page_bench.h"

namespace {

TRegistryTarget Key(TRootKey root, const wchar_t* key) {
    return {.Root = root, .Key = key, .ValueName = L"v"};
}

TEST(TRights, AreThoseOfTheNearestKeyThatIsThere) {
    TFakeSystem fake;
    EXPECT_TRUE(HasAdministratorRights(fake.System));
    fake.Registry.PutKey(TRootKey::LocalMachine, L"SOFTWARE\\Open");
    fake.Registry.PutKey(TRootKey::LocalMachine, L"SOFTWARE\\Closed");
    fake.Registry.DenyAccess(TRootKey::LocalMachine, L"SOFTWARE\\Closed");
    fake.Registry.DenyAccess(TRootKey::CurrentUser, L"Policies");
    fake.Registry.PutKey(TRootKey::CurrentUser, L"Policies");
    const auto may = [&](const TTarget& target) { return MayChange(fake.System, target); };
    EXPECT_TRUE(may(Key(TRootKey::LocalMachine, L"SOFTWARE\\Open")));
    EXPECT_TRUE(may(Key(TRootKey::LocalMachine, L"SOFTWARE\\Open\\New\\Newer")));
    EXPECT_FALSE(may(Key(TRootKey::LocalMachine, L"SOFTWARE\\Closed")));
    EXPECT_FALSE(may(Key(TRootKey::LocalMachine, L"SOFTWARE\\Closed\\New")));
    EXPECT_FALSE(may(Key(TRootKey::CurrentUser, L"Policies\\Explorer"))) << "the user's, and yet not his";
    EXPECT_TRUE(may(TServiceTarget{L"wscsvc"}));
    fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    EXPECT_FALSE(HasAdministratorRights(fake.System) || may(TServiceTarget{L"wscsvc"}));
    EXPECT_TRUE(may(TParameterTarget{}) && may(TPreferenceTarget{}));
}

TEST(TRights, TheHeaderSpeaksOfThemWhereTheyMatter) {
    for (const TPageDefinition* page : PageDefinitions()) {
        for (const int level : {4, 5, 6, 7, 8, 9, 10, 11}) {
            SCOPED_TRACE(testing::Message() << "page " << page->Tag << " on level " << level);
            TPageBench bench(*page);
            bench.Context.Release = level;
            bench.Load();
            EXPECT_EQ(RightsLine(bench.Context, *page), L"");
            bench.Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
            bench.Load();
            const auto stars =
                std::ranges::count_if(bench.Context.Form.Components(), [](const auto& component) {
                    return static_cast<const TControl&>(*component).Caption().find(L'*') !=
                           std::wstring::npos;
                });
            if (page->Tag == 1 || page->Tag == 8 || page->Tag == 9) EXPECT_EQ(stars, 0);
            EXPECT_EQ(RightsLine(bench.Context, *page).empty(), stars == 0);
        }
    }
}

}  // namespace
