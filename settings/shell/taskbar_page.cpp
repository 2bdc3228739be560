#include "settings/shell/taskbar_page.h"

#include "settings/shared_rows.h"
#include "settings/shell/taskbar_modern.h"

namespace {

TControlDesign Design() {
    return NotebookPage(
        6,
        PageControl(
            L"PageControl_Taskbar",
            Sheet(L"TabSheet_Taskbar_ButtonFlashes", L"Button Flashing",
                  Group(L"GroupBox_Taskbar_ButtonFlashes", L"Programs that want your attention",
                        CheckBox(L"Checkbox_Taskbar_ButtonFlashes_Active",
                                 L"&Flash the taskbar button instead of opening the window"),
                        Fields(Row(Label(L"Label_Taskbar_ButtonFlashes_Common_Time",
                                         L"&Seconds without input until windows may open:"),
                                   Edit(L"Edit_Taskbar_ButtonFlashes_Common_Time").Width(6),
                                   UpDown(L"UpDown_Taskbar_ButtonFlashes_Common_Time",
                                          L"Edit_Taskbar_ButtonFlashes_Common_Time", 1, 32000, 200)),
                               Row(Label(L"Label_Taskbar_ButtonFlashes_Speed_Flash", L"&Number of flashes:"),
                                   Edit(L"Edit_Taskbar_ButtonFlashes_Speed_Flash").Width(6),
                                   UpDown(L"UpDown_Taskbar_ButtonFlashes_Speed_Flash",
                                          L"Edit_Taskbar_ButtonFlashes_Speed_Flash", 1, 999, 3)))),
                  Buttons(Button(L"Button_Taskbar_ButtonFlashes_Default", L"&Default"))),
            Sheet(L"TabSheet_Taskbar_ButtonAppearance", L"Appearance",
                  Group(L"GroupBox_Taskbar_ButtonAppearance_Bar", L"Taskbar",
                        CheckBox(L"Checkbox_Taskbar_ButtonAppearance_Bar_Lock", L"&Lock the taskbar"),
                        CheckBox(L"Checkbox_Taskbar_ButtonAppearance_Bar_Peek",
                                 L"Use Aero &Peek to preview the desktop"),
                        CheckBox(L"Checkbox_Taskbar_ButtonAppearance_Group_Active",
                                 L"&Group similar taskbar buttons"),
                        Row(Label(L"Label_Taskbar_ButtonAppearance_Group_AtLeastCount",
                                  L"Group from this many &windows:"),
                            Edit(L"Edit_Taskbar_ButtonAppearance_Group_AtLeastCount").Width(4),
                            UpDown(L"UpDown_Taskbar_ButtonAppearance_Group_AtLeastCount",
                                   L"Edit_Taskbar_ButtonAppearance_Group_AtLeastCount", 2, 99, 3)),
                        Row(Label(L"Label_Taskbar_ButtonAppearance_Look_Combine", L"&Taskbar buttons:"),
                            ComboBox(L"CB_Taskbar_ButtonAppearance_Look_Combine",
                                     {L"Always combine, hide labels", L"Combine when taskbar is full",
                                      L"Never combine"})),
                        CheckBox(L"Checkbox_Taskbar_ButtonAppearance_Look_SmallIcons", L"Use s&mall icons")),
                  Buttons(Button(L"Button_Taskbar_ButtonAppearance_Default", L"&Default"))),
            Sheet(
                L"TabSheet_Taskbar_Notification", L"Notification Area",
                Group(L"GroupBox_Taskbar_Notification_Icons", L"Icons and messages",
                      CheckBox(L"Checkbox_Taskbar_Notification_Icons_Show", L"Show the &notification area"),
                      CheckBox(L"Checkbox_Taskbar_Notification_Icons_HideInactive", L"&Hide inactive icons"),
                      CheckBox(L"Checkbox_Taskbar_Notification_Icons_Clock", L"Show the &clock"),
                      CheckBox(L"Checkbox_Taskbar_Notification_Icons_Volume", L"Show the &volume icon"),
                      CheckBox(L"Checkbox_Taskbar_Notification_Icons_Network", L"Show the net&work icon"),
                      CheckBox(L"Checkbox_Taskbar_Notification_Icons_Power", L"Show the &power icon"),
                      CheckBox(L"Checkbox_Taskbar_Notification_Icons_ActionCenter",
                               L"Show the Ac&tion Center icon"),
                      CheckBox(L"Checkbox_Taskbar_Notification_Balloons_Show", L"Show &balloon tips")),
                Buttons(Button(L"Button_Taskbar_Notification_Default", L"&Default"))),
            Sheet(L"TabSheet_Taskbar_MinWindow", L"Minimized Windows",
                  Group(L"GroupBox_Taskbar_MinWindow", L"Place on the desktop",
                        Fields(Row(Label(L"Label_Taskbar_MinWindow_Arrange", L"A&rrangement:"),
                                   ComboBox(L"CB_Taskbar_MinWindow_Arrange", kMinimizedArrangements)),
                               Row(Label(L"Label_Taskbar_MinWindow_Left", L"&Side:"),
                                   ComboBox(L"CB_Taskbar_MinWindow_Left", kMinimizedSides)),
                               Row(Label(L"Label_Taskbar_MinWindow_Top", L"&Edge:"),
                                   ComboBox(L"CB_Taskbar_MinWindow_Top", kMinimizedEdges))),
                        Label(L"Label_Taskbar_MinWindow_Note", kMinimizedNote)),
                  Buttons(Button(L"Button_Taskbar_MinWindow_Default", L"&Default"))),
            TaskbarModernSheet(), TaskbarScreensSheet()));
}

constexpr const wchar_t* kTime[] = {L"UpDown_Taskbar_ButtonFlashes_Common_Time"};
constexpr const wchar_t* kTimeControls[] = {L"Label_Taskbar_ButtonFlashes_Common_Time",
                                            L"Edit_Taskbar_ButtonFlashes_Common_Time",
                                            L"UpDown_Taskbar_ButtonFlashes_Common_Time"};

constexpr TRow kFlashRows[] = {
    // 0 when any program may open its window at any time.
    TSwitchRow{.On = L"Checkbox_Taskbar_ButtonFlashes_Active",
               .Amount = kTime,
               .Value = As(TCoding::Seconds, NumberParameter(0x2000, 0x2001,  // …FOREGROUNDLOCKTIMEOUT
                                                             TParameterSlot::Data)),
               .OffWhen = 0,
               .OffRecords = Dword(0),
               .Enables = kTimeControls},
    TNumberRow{.Control = L"UpDown_Taskbar_ButtonFlashes_Speed_Flash",
               .Value = NumberParameter(0x2004, 0x2005, TParameterSlot::Data)},  // …FOREGROUNDFLASHCOUNT
};

constexpr TDatum kCombineValues[] = {Dword(0), Dword(1), Dword(2)};

constexpr TRow kButtonRows[] = {
    // Windows calls it "size and move".
    TCheckBoxRow{.Control = L"Checkbox_Taskbar_ButtonAppearance_Bar_Lock",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"TaskbarSizeMove"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Restart = true,
                 .Levels = kUntilWindows10},
    TCheckBoxRow{.Control = L"Checkbox_Taskbar_ButtonAppearance_Bar_Peek",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"DisablePreviewDesktop"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows10},
    TCheckBoxRow{.Control = L"Checkbox_Taskbar_ButtonAppearance_Group_Active",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"TaskbarGlomming"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Restart = true},
    // 0 and 1 group by age and by size; from 2 on it is the number of windows.
    TNumberRow{.Control = L"UpDown_Taskbar_ButtonAppearance_Group_AtLeastCount",
               .Value = {kCurrentUser, kExplorerAdvanced, L"TaskbarGroupSize"},
               .Restart = true},
    TChoiceRow{.Control = L"CB_Taskbar_ButtonAppearance_Look_Combine",
               .Value = {kCurrentUser, kExplorerAdvanced, L"TaskbarGlomLevel"},
               .Items = kCombineValues,
               .Missing = 0,
               .Levels = kUncombinedButtons},
    TCheckBoxRow{.Control = L"Checkbox_Taskbar_ButtonAppearance_Look_SmallIcons",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"TaskbarSmallIcons"},
                 .Shows = {.Missing = kClear, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Levels = kUntilWindows10},
};

constexpr TRow kNotificationRows[] = {
    PolicyRow(L"Checkbox_Taskbar_Notification_Icons_Show", L"NoTrayItemsDisplay"),
    TCheckBoxRow{.Control = L"Checkbox_Taskbar_Notification_Icons_HideInactive",
                 .Value = {kCurrentUser, kExplorer, L"EnableAutoTray"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Restart = true,
                 .Levels = kUntilWindows10},
    PolicyRow(L"Checkbox_Taskbar_Notification_Icons_Clock", L"HideClock"),
    On(kUntilWindows10, PolicyRow(L"Checkbox_Taskbar_Notification_Icons_Volume", L"HideSCAVolume")),
    On(kUntilWindows10, PolicyRow(L"Checkbox_Taskbar_Notification_Icons_Network", L"HideSCANetwork")),
    On(kUntilWindows10, PolicyRow(L"Checkbox_Taskbar_Notification_Icons_Power", L"HideSCAPower")),
    On(kUntilWindows10, PolicyRow(L"Checkbox_Taskbar_Notification_Icons_ActionCenter", L"HideSCAHealth")),
    BalloonTipsRow(L"Checkbox_Taskbar_Notification_Balloons_Show"),
};

constexpr auto kMinimizedLists = MinimizedLists(L"CB_Taskbar_MinWindow_Arrange", L"CB_Taskbar_MinWindow_Left",
                                                L"CB_Taskbar_MinWindow_Top");
constexpr TRow kMinimizedRows[] = {MinimizedWindowsRow(kMinimizedLists)};

constexpr TLoader kLoaders[] = {kFlashRows,     kButtonRows,        kNotificationRows,
                                kMinimizedRows, kTaskbarModernRows, kTaskbarScreensRows};

constexpr TPresetState kFlashDefault[] = {
    {L"Checkbox_Taskbar_ButtonFlashes_Active", 1},
    {L"UpDown_Taskbar_ButtonFlashes_Common_Time", 200},
    {L"UpDown_Taskbar_ButtonFlashes_Speed_Flash", 3},
};
// Not the number of windows that make a group: Windows' own default, 0, is none.
constexpr TPresetState kButtonDefault[] = {
    {L"Checkbox_Taskbar_ButtonAppearance_Bar_Lock", 1},
    {L"Checkbox_Taskbar_ButtonAppearance_Bar_Peek", 1, kSinceWindows7},
    {L"Checkbox_Taskbar_ButtonAppearance_Group_Active", 1, kXpAndVista},
    {L"CB_Taskbar_ButtonAppearance_Look_Combine", 0, kSinceWindows7},
    {L"Checkbox_Taskbar_ButtonAppearance_Look_SmallIcons", 0, kSinceWindows7},
};
constexpr TPresetState kNotificationDefault[] = {
    {L"Checkbox_Taskbar_Notification_Icons_Show", 1},
    {L"Checkbox_Taskbar_Notification_Icons_HideInactive", 1},
    {L"Checkbox_Taskbar_Notification_Icons_Clock", 1},
    {L"Checkbox_Taskbar_Notification_Icons_Volume", 1, kSinceVista},
    {L"Checkbox_Taskbar_Notification_Icons_Network", 1, kSinceVista},
    {L"Checkbox_Taskbar_Notification_Icons_Power", 1, kSinceVista},
    {L"Checkbox_Taskbar_Notification_Icons_ActionCenter", 1, kSinceWindows7},
    {L"Checkbox_Taskbar_Notification_Balloons_Show", 1},
};
constexpr TPresetState kMinimizedDefault[] = {
    {L"CB_Taskbar_MinWindow_Arrange", 0},
    {L"CB_Taskbar_MinWindow_Left", 0},
    {L"CB_Taskbar_MinWindow_Top", 1},
};
constexpr TPreset kPresets[] = {
    {L"Button_Taskbar_ButtonFlashes_Default", kFlashDefault},
    {L"Button_Taskbar_ButtonAppearance_Default", kButtonDefault},
    {L"Button_Taskbar_Notification_Default", kNotificationDefault},
    {L"Button_Taskbar_MinWindow_Default", kMinimizedDefault},
    {L"Button_Taskbar_Modern_Default", kTaskbarModernDefault},
    {L"Button_Taskbar_Screens_Default", kTaskbarScreensDefault},
};

// Windows 2000 has no options for its buttons and its notification area.
constexpr TOffer kOffers[] = {
    {L"TabSheet_Taskbar_ButtonAppearance", kSinceXp},
    {L"Checkbox_Taskbar_ButtonAppearance_Bar_Peek", kSinceWindows7},
    {L"Checkbox_Taskbar_ButtonAppearance_Group_Active", kXpAndVista},
    {L"Label_Taskbar_ButtonAppearance_Group_AtLeastCount", kXpAndVista},
    {L"Edit_Taskbar_ButtonAppearance_Group_AtLeastCount", kXpAndVista},
    {L"UpDown_Taskbar_ButtonAppearance_Group_AtLeastCount", kXpAndVista},
    {L"Label_Taskbar_ButtonAppearance_Look_Combine", kSinceWindows7},
    {L"CB_Taskbar_ButtonAppearance_Look_Combine", kSinceWindows7},
    {L"Checkbox_Taskbar_ButtonAppearance_Look_SmallIcons", kSinceWindows7},
    {L"TabSheet_Taskbar_Notification", kSinceXp},
    {L"Checkbox_Taskbar_Notification_Icons_Volume", kSinceVista},
    {L"Checkbox_Taskbar_Notification_Icons_Network", kSinceVista},
    {L"Checkbox_Taskbar_Notification_Icons_Power", kSinceVista},
    {L"Checkbox_Taskbar_Notification_Icons_ActionCenter", kSinceWindows7},
};

constexpr const wchar_t* kSideAndEdge[] = {L"Label_Taskbar_MinWindow_Left", L"CB_Taskbar_MinWindow_Left",
                                           L"Label_Taskbar_MinWindow_Top", L"CB_Taskbar_MinWindow_Top"};
constexpr const wchar_t* kFlashCount[] = {L"UpDown_Taskbar_ButtonFlashes_Speed_Flash"};
constexpr const wchar_t* kGroupCount[] = {L"UpDown_Taskbar_ButtonAppearance_Group_AtLeastCount"};
constexpr const wchar_t* kTrayIcons[] = {
    L"Checkbox_Taskbar_Notification_Icons_HideInactive", L"Checkbox_Taskbar_Notification_Icons_Volume",
    L"Checkbox_Taskbar_Notification_Icons_Network", L"Checkbox_Taskbar_Notification_Icons_Power",
    L"Checkbox_Taskbar_Notification_Icons_ActionCenter"};
constexpr TNeed kNeeds[] = {
    MinimizedNeed(kSideAndEdge, L"CB_Taskbar_MinWindow_Arrange"),
    {.Controls = kFlashCount, .Of = L"Checkbox_Taskbar_ButtonFlashes_Active", .Disables = false},
    {.Controls = kGroupCount, .Of = L"Checkbox_Taskbar_ButtonAppearance_Group_Active", .Disables = false},
    {.Controls = kTrayIcons, .Of = L"Checkbox_Taskbar_Notification_Icons_Show"},
    kOtherTaskbarsNeed,
};

constexpr TPageDefinition kPage{
    .Tag = 6, .Design = Design, .Loaders = kLoaders, .Presets = kPresets, .Offers = kOffers, .Needs = kNeeds};

}  // namespace

const TPageDefinition& TaskbarPage() { return kPage; }
