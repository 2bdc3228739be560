// The numeric fields of all pages: their bounds, and what is special about some of them.
#include <algorithm>

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "tests/fakes/fake_system.h"

namespace {

TEST(TNumberBounds, AreThoseOfTheFields) {
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
        {L"Edit_Display_Wallpaper_Quality", 60, 100},
        {L"Edit_Startup_Restart_From", 0, 23},
        {L"Edit_Startup_Restart_To", 0, 23},
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
        const auto* number =
            std::ranges::find_if(kNumbers, [&](const auto& row) { return edit.Name() == row.Edit; });
        ASSERT_NE(number, std::end(kNumbers)) << "add the bounds of " << testing::PrintToString(edit.Name());
        ++found;
        EXPECT_EQ(
            (std::tuple(arrows.Min(), arrows.Max(), edit.FiltersKeys, edit.IsPositive, edit.IsSender)),
            (std::tuple(number->Min, number->Max, number->FiltersKeys, number->IsPositive, number->IsSender)))
            << testing::PrintToString(edit.Name());
        EXPECT_TRUE(edit.OnExit) << testing::PrintToString(edit.Name());
    }
    EXPECT_EQ(found, std::size(kNumbers));
}

}  // namespace
