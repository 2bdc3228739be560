// The catalogue against the form: every row has its controls, and every control that can change has a row.
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "app/folder_form.h"
#include "app/main_window.h"
#include "settings/shell/desktop_icons.h"
#include "tests/fakes/fake_system.h"

namespace {

/// Whether a row of its kind can stand for a control of that kind.
bool Fits(const TRow& row, TComponentKind kind) {
    if (std::holds_alternative<TCheckBoxRow>(row) || std::holds_alternative<TKeyRow>(row))
        return kind == TComponentKind::CheckBox;
    if (std::holds_alternative<TRadioPairRow>(row)) return kind == TComponentKind::RadioButton;
    if (std::holds_alternative<TChoiceRow>(row)) return kind == TComponentKind::ComboBox;
    if (std::holds_alternative<TTextRow>(row)) return kind == TComponentKind::Edit;
    if (std::holds_alternative<TNumberRow>(row))
        return kind == TComponentKind::UpDown || kind == TComponentKind::TrackBar ||
               kind == TComponentKind::Edit || kind == TComponentKind::ComboBox;
    return true;
}

bool Records(TComponentKind kind) {
    using enum TComponentKind;
    return kind == CheckBox || kind == RadioButton || kind == ComboBox || kind == TrackBar || kind == UpDown;
}

constexpr int kLevels[] = {0, 4, 5, 6, 7};

bool IsOffered(const TPageDefinition& page, const TControl* control, int level) {
    for (; control != nullptr; control = control->Parent())
        for (const TOffer& offer : page.Offers)
            if (control->Name() == offer.Control && !offer.Levels.Include(level)) return false;
    return true;
}

void ExpectBelongTogether(const TForm& window, std::span<const TPageDefinition* const> pages,
                          std::set<std::wstring>& handlers) {
    std::map<std::pair<std::wstring, int>, int> rows;  // by control and level
    std::set<std::pair<std::wstring, int>> hidden;
    for (const TPageDefinition* page : pages) {
        EXPECT_TRUE(handlers.insert(page->SharedHandler).second);
        for (const TLoader& loader : page->Loaders) {
            for (const TRow& row : loader) {
                for (const std::wstring& name : ControlsOf(row)) {
                    const TControl* control = window.Find(name);
                    for (const int level : kLevels) {
                        if (LevelsOf(row).Include(level)) ++rows[{name, level}];
                        if (!IsOffered(*page, control, level)) hidden.insert({name, level});
                    }
                    EXPECT_TRUE(control != nullptr && Fits(row, control->Kind()))
                        << testing::PrintToString(name);
                }
            }
        }
        for (const TLevelCaption& name : page->LevelCaptions)
            EXPECT_NE(window.Find(name.Control), nullptr) << testing::PrintToString(name.Control);
        for (const TPreset& preset : page->Presets) {
            EXPECT_NE(window.Find<TButton>(preset.Button), nullptr) << testing::PrintToString(preset.Button);
            for (const TPresetState& state : preset.States) {
                const TControl* control = window.Find(state.Control);
                EXPECT_TRUE(control != nullptr && Records(control->Kind()))
                    << testing::PrintToString(state.Control);
            }
        }
    }
    for (const auto& component : window.Components()) {
        if (!Records(component->Kind())) continue;
        for (const int level : kLevels) {
            const std::pair key(component->Name(), level);
            EXPECT_TRUE(rows[key] == 1 || (rows[key] == 0 && hidden.contains(key)))
                << testing::PrintToString(key) << " has " << rows[key] << " rows";
        }
    }
}

TEST(TCatalogue, NumbersHaveTheirBounds) {
    constexpr struct {
        const wchar_t* Edit;
        int Min, Max;
        bool FiltersKeys = false, IsPositive = false, IsSender = false;
    } kNumbers[] = {
        {L"Edit_Use_MouseSensitivity_DoubleClickError", 1, 100, true},
        {L"Edit_Use_MouseSensitivity_DoubleClickTime", 200, 900},
        {L"Edit_Use_MouseSensitivity_Drag", 1, 100},
        {L"Edit_Use_MouseSensitivity_Hover_MoveError", 0, 100},
        {L"Edit_Use_MouseSensitivity_Hover_Time", 0, 1000},
        {L"Edit_Use_MouseSensitivity_Tilt_Count", 1, 100},
        {L"Edit_Use_MouseFunction_Wheel_Count", 1, 100, true},
        {L"Edit_Use_Keyboard_CursorWidth_Width", 1, 10, false, true},
        {L"Edit_Use_StartMenu_RecentlyUse_Document_FileCount", 1, 99},
        {L"Edit_Use_StartMenu_RecentlyUse_Program_Count", 0, 30},
        {L"Edit_Use_StartMenu_RecentlyUse_JumpList_Count", 0, 60},
        {L"Edit_Use_StartMenu_Common_Menu_Delay", 0, 4000},
        {L"Edit_Taskbar_ButtonFlashes_Common_Time", 1, 32000},
        {L"Edit_Taskbar_ButtonFlashes_Speed_Flash", 1, 999},
        {L"Edit_Taskbar_ButtonAppearance_Group_AtLeastCount", 2, 99},
        {L"Edit_Startup_Exit_WaitTime_Time", 1, 32000},
        {L"Edit_Startup_System_DelayTime_Time", 0, 600},
        {L"Edit_Folder_Thumbnail_Size", 32, 256, true, false, true},
        {L"Edit_Security_Advanced_Screensaver_WaitTime", 1, 9999},
        {L"Edit_Net_Advanced_Qos_Count", 0, 100},
        {L"Edit_IE_Common_History_KeepDays", 1, 100},
        {L"Edit_Firefox_Tab_MinWidth_Min", 36, 500, false, false, true},
        {L"MaskEdit_CommonSettings_Function_CursorWidth_Width", 1, 10},
    };
    TFakeSystem fake;
    const TQuilltune_FormMain window(fake.System);
    std::size_t found = 0;
    for (const auto& component : window.Components()) {
        if (component->Kind() != TComponentKind::UpDown) continue;
        const auto& arrows = static_cast<const TUpDown&>(*component);
        const TEdit& edit = *arrows.Associate();
        for (const auto& number : kNumbers) {
            if (edit.Name() != number.Edit) continue;
            ++found;
            EXPECT_EQ(
                (std::tuple(arrows.Min(), arrows.Max(), edit.FiltersKeys, edit.IsPositive, edit.IsSender)),
                (std::tuple(number.Min, number.Max, number.FiltersKeys, number.IsPositive, number.IsSender)))
                << testing::PrintToString(edit.Name());
            EXPECT_TRUE(edit.OnExit) << testing::PrintToString(edit.Name());
        }
    }
    EXPECT_EQ(found, std::size(kNumbers));
}

TEST(TCatalogue, RowsAndControlsBelongTogether) {
    TFakeSystem fake;
    const TQuilltune_FormMain window(fake.System);
    const TLanguage language(fake.System, L"Scanner");
    const TQuilltune_FormFolder dialog(window.Context(), language);
    const TPageDefinition* const desktopIcons[] = {&DesktopIcons()};
    std::set<std::wstring> handlers;
    ExpectBelongTogether(window, PageDefinitions(), handlers);
    ExpectBelongTogether(dialog, desktopIcons, handlers);
}

}  // namespace
