// However often a box is clicked, Apply leaves what one click into the state that it shows would leave.
#include "settings/page_table.h"
#include "settings/shell/desktop_icons.h"
#include "tests/settings/page_bench.h"

namespace {

/// Boxes that keep the operation of their first click, and the one whose further values stay once they are recorded.
constexpr const wchar_t* kOthers[] = {
    L"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin",
    L"Checkbox_UserLogin_Message_Notify_ActiveShowMessage",
    L"Checkbox_Folder_View_Windows_Tree",
};

/// Puts a value there, with another one and a key beside it.
void Populate(TPageBench& bench, const TPlace& place) {
    bench.Store(place, String(L"found"));
    bench.Store({place.Root, place.Key, L"neighbour"}, 1);
    const std::wstring below = std::wstring(place.Key) + L"\\below";
    bench.Store({place.Root, below.c_str(), L"neighbour"}, 1);
}

/// What is stored after each box of the page was clicked so often that it shows `state` at last.
std::vector<std::wstring> StoredAfter(const TPageDefinition& page, bool populated, int clicks, bool state) {
    TPageBench bench(page);
    for (const TLoader& loader : page.Loaders) {
        for (const TRow& row : loader) {
            for (const TPlace& place : PlacesOf(row))
                if (populated && place.Kind == TPlaceKind::Registry) Populate(bench, place);
        }
    }
    for (const TLoader& loader : page.Loaders) {
        for (const TRow& row : loader) {
            for (const std::wstring& name : ControlsOf(row)) {
                if (auto* list = bench.Context.Form.Find<TComboBox>(name)) list->Reinitialise();
            }
            for (const std::wstring& name : ControlsOf(row)) {
                if (bench.Context.Form.Find<TCheckBox>(name) == nullptr ||
                    std::ranges::count(kOthers, name) != 0)
                    continue;
                bench.Preset(name, clicks % 2 == 0 ? state : !state);
                for (int i = clicks; i > 0; --i) bench.Click(name, i % 2 == 0 ? !state : state);
            }
        }
    }
    bench.Context.Changes.WriteAll();
    return bench.Fake.Registry.Lines();
}

TEST(TClicks, AnyNumberLeavesWhatOneLeaves) {
    std::vector<const TPageDefinition*> pages(PageDefinitions().begin(), PageDefinitions().end());
    pages.push_back(&DesktopIcons());
    for (const TPageDefinition* page : pages) {
        for (const bool populated : {false, true}) {
            for (const bool state : {false, true}) {
                const auto once = StoredAfter(*page, populated, 1, state);
                for (const int clicks : {2, 3})
                    EXPECT_EQ(StoredAfter(*page, populated, clicks, state), once)
                        << "page " << page->Tag << ", " << clicks << " clicks, shows " << state;
            }
        }
    }
}

}  // namespace
