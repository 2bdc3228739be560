// What has no effect is disabled, and the reason is said, on every page and every Windows.
#include "settings/needs.h"

#include "settings/page_table.h"
#include "tests/settings/page_bench.h"

namespace {

const TControl* PageOf(const TControl* control) {
    while (control->Kind() != TComponentKind::NotebookPage) control = control->Parent();
    return control;
}

/// Does what a user does to meet the need, or no longer to meet it.
void Bring(TPageBench& bench, const TNeed& need, bool isMet) {
    TControl& of = bench.Get<TControl>(need.Of);
    const bool isState = isMet != need.IsNot;
    if (of.Kind() != TComponentKind::RadioButton || isState)
        return SetState(of, StateFromNumber(of, isState ? need.State : need.State == 0 ? 1 : 0));
    for (TControl* sibling : of.Parent()->Children())
        if (sibling != &of && sibling->Kind() == TComponentKind::RadioButton) return SetState(*sibling, true);
}

void ExpectHonest(TPageBench& bench, const TPageDefinition& page) {
    const auto holds = [&](const TNeed& need) { return need.Levels.Include(bench.Context.Release); };
    for (const TNeed& need : page.Needs) {
        if (!holds(need)) continue;
        for (const bool isMet : {true, false, true}) {
            for (const TNeed& other : page.Needs) Bring(bench, other, true);
            Bring(bench, need, isMet);
            for (const wchar_t* name : need.Controls) {
                SCOPED_TRACE(testing::PrintToString(std::wstring(name)) + (isMet ? " met" : " not met"));
                const TControl& control = bench.Get<TControl>(name);
                EXPECT_EQ(PageOf(&control), PageOf(&bench.Get<TControl>(need.Of)));
                EXPECT_EQ(control.Enabled(), isMet || !need.Disables);
                EXPECT_EQ(ReasonsFor(bench.Context, name).empty(), isMet);
                for (const TLoader& loader : page.Loaders)
                    for (const TRow& row : loader)
                        for (const TNeed& other : NeedsOf(row))
                            EXPECT_EQ(std::ranges::count(other.Controls, std::wstring(name)), 0)
                                << "that would be two masters";
            }
        }
    }
}

TEST(TNeeds, DisableAndSayWhyExactlyWhileTheyAreNotMet) {
    int pages = 0;
    for (const int level : {4, 5, 6, 7, 8, 9, 10, 11}) {
        for (const TPageDefinition* page : PageDefinitions()) {
            SCOPED_TRACE(testing::Message() << "page " << page->Tag << " on level " << level);
            TPageBench bench(*page);
            bench.Context.Release = level;
            bench.Fake.Registry.PutKey(
                TRootKey::LocalMachine,
                L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
            bench.Fake.Files.PutText(L"C:\\Mozilla\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
            bench.Load();
            ExpectHonest(bench, *page);
            pages += page->Needs.empty() ? 0 : 1;
            for (const TLoader& loader : page->Loaders)
                for (const TRow& row : loader)
                    for (const TNeed& need : NeedsOf(row))
                        for (const wchar_t* control : need.Controls)
                            EXPECT_TRUE(TouchedBy(row).contains(control) &&
                                        bench.Context.Form.Find(control) != nullptr);
        }
    }
    EXPECT_GT(pages, 20);
}

}  // namespace
