// Which Windows a setting is for, in words, and what pages offer on each of them.
#include "settings/levels.h"

#include "settings/page_model.h"
#include "settings/page_table.h"
#include "tests/settings/page_bench.h"

namespace {

TEST(TLevels, SayWhichWindowsTheyAre) {
    const struct {
        TLevels Levels;
        const wchar_t* Words;
        std::vector<std::wstring> Names;
    } cases[] = {
        {kEveryLevel,
         L"all",
         {L"other", L"Windows 2000", L"Windows XP", L"Windows Vista", L"Windows 7", L"Windows 8",
          L"Windows 8.1", L"Windows 10", L"Windows 11"}},
        {kUntil2000, L"up to 2000", {L"other", L"Windows 2000"}},
        {kXpAndVista, L"XP to Vista", {L"Windows XP", L"Windows Vista"}},
        {kSinceWindows10, L"10 and later", {L"Windows 10", L"Windows 11"}},
        {kSinceWindows11, L"11", {L"Windows 11"}},
        {SinceBuild(22621), L"11 since build 22621", {L"Windows 11 since build 22621"}},
        {SinceBuild(16299) & UntilBuild(19040),
         L"10 since build 16299 until build 19040",
         {L"Windows 10 since build 16299 until build 19040"}},
        {kOnlyXp | SinceBuild(22631),
         L"XP, 11 since build 22631",
         {L"Windows XP", L"Windows 11 since build 22631"}},
        {kNoLevel, L"", {}},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(WordsOf(each.Levels), each.Words);
        EXPECT_EQ(NamesOf(each.Levels), each.Names);
    }
    EXPECT_TRUE(WordsOf(kNotWindows2000) == L"all but 2000" && kEveryLevel == ~kNoLevel);
}

TEST(TLevels, ABuildBetweenTwoReleasesCountsAsTheEarlier) {
    const TLevels levels = SinceBuild(17134) & UntilBuild(19043);
    EXPECT_FALSE(levels.Include({10, 17133}) || levels.Include({10, 19044}) || levels.Include(10));
    EXPECT_TRUE(levels.Include({10, 17134}) && levels.Include({10, 18363}) && levels.Include({10, 19043}));
    EXPECT_EQ(TRelease(11).Index() + 1, kReleaseCount);
    EXPECT_TRUE(kSinceWindows11.Include({11, 30000}) && kSinceXp.Include({5, 0}));
    EXPECT_EQ(TRelease(12).Level(), 0);
}

/// Every group and sheet with settings still has one where it is shown, and no label stands before nothing.
TEST(TPage, ShowsNothingEmptyOnAnyWindows) {
    std::size_t shown = 0;
    for (std::size_t i = 0; i < kReleaseCount; ++i) {
        for (const TPageDefinition* page : PageDefinitions()) {
            SCOPED_TRACE(testing::Message() << "page " << page->Tag << ", release " << i);
            TPageBench bench(*page);
            bench.Fake.Services.Put(L"SharedAccess", {.State = TServiceState::Running});
            bench.Context.Release = TRelease::At(i);
            bench.Load();
            std::map<const TControl*, bool> holders;
            for (const TLoader& loader : page->Loaders)
                for (const TRow& row : loader)
                    for (const std::wstring& name : ControlsOf(row)) {
                        const TControl* control = bench.Context.Form.Find(name);
                        const bool isShown = TPageModel::IsShown(*control);
                        shown += isShown ? 1U : 0U;
                        for (const TControl* c = control->Parent(); c != nullptr; c = c->Parent())
                            holders[c] |= isShown;
                    }
            for (const auto& [holder, isLeft] : holders) {
                const bool isBox =
                    holder->Kind() == TComponentKind::GroupBox || holder->Kind() == TComponentKind::TabSheet;
                if (isBox) EXPECT_EQ(TPageModel::IsShown(*holder), isLeft) << holder->Name().c_str();
            }
        }
    }
    EXPECT_GT(shown, 3000U);
}

}  // namespace
