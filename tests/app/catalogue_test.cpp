// The catalogue against the form: every row has its controls, and every control that can change has a row.
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "tests/fakes/fake_system.h"

namespace {

std::vector<std::wstring> ControlsOf(const TRow& row) {
    if (const auto* box = std::get_if<TCheckBoxRow>(&row)) return {box->Control};
    if (const auto* pair = std::get_if<TRadioPairRow>(&row)) return {pair->First, pair->Second};
    return {std::get<TSpecialRow>(row).Control};
}

TComponentKind KindOf(const TRow& row, const TControl& control) {
    if (std::holds_alternative<TCheckBoxRow>(row)) return TComponentKind::CheckBox;
    if (std::holds_alternative<TRadioPairRow>(row)) return TComponentKind::RadioButton;
    return control.Kind();
}

bool Records(TComponentKind kind) {
    switch (kind) {
        case TComponentKind::CheckBox:
        case TComponentKind::RadioButton:
        case TComponentKind::ComboBox:
        case TComponentKind::TrackBar:
        case TComponentKind::UpDown:
            return true;
        default:
            return false;
    }
}

TEST(TCatalogue, RowsAndControlsBelongTogether) {
    TFakeSystem fake;
    TQuilltune_FormMain window(fake.System);
    std::map<std::wstring, int> rows;
    std::set<std::wstring> handlers;
    for (const TPageDefinition* page : PageDefinitions()) {
        EXPECT_TRUE(handlers.insert(page->SharedHandler).second);
        for (const TLoader& loader : page->Loaders) {
            for (const TRow& row : loader) {
                for (const std::wstring& name : ControlsOf(row)) {
                    ++rows[name];
                    const TControl* control = window.Find(name);
                    ASSERT_NE(control, nullptr) << testing::PrintToString(name);
                    EXPECT_EQ(control->Kind(), KindOf(row, *control)) << testing::PrintToString(name);
                }
            }
        }
        for (const TPreset& preset : page->Presets) {
            EXPECT_NE(window.Find<TButton>(preset.Button), nullptr) << testing::PrintToString(preset.Button);
            for (const TPresetState& state : preset.States) {
                const TControl* control = window.Find(state.Control);
                ASSERT_NE(control, nullptr) << testing::PrintToString(state.Control);
                EXPECT_TRUE(Records(control->Kind())) << testing::PrintToString(state.Control);
            }
        }
    }
    for (const auto& component : window.Components()) {
        if (!Records(component->Kind())) continue;
        EXPECT_EQ(rows[component->Name()], 1) << testing::PrintToString(component->Name());
    }
}

TEST(TCatalogue, EveryCategoryItemLeadsToAPage) {
    TFakeSystem fake;
    TQuilltune_FormMain window(fake.System);
    std::set<int> tags;
    for (const auto& component : window.Components()) {
        if (component->Kind() != TComponentKind::CategoryItem) continue;
        const int tag = static_cast<const TCategoryItem&>(*component).Tag();
        EXPECT_TRUE(tags.insert(tag).second) << tag;
        EXPECT_NE(window.Find<TNotebookPage>(std::to_wstring(tag)), nullptr) << tag;
    }
    EXPECT_EQ(tags.size(), static_cast<std::size_t>(kPageCount));
}

}  // namespace
