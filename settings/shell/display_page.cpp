#include "settings/shell/display_page.h"

#include <algorithm>

#include "settings/explorer_keys.h"
#include "settings/shell/font_smoothing.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kDesktop = L"\\Control Panel\\Desktop\\";

TControlDesign EffectSheet() {
    return Sheet(
        L"TabSheet_Display_Effect", L"Effects",
        Group(L"GroupBox_Display_Effect_DisplayAndEffectSettings", L"Appearance",
              CheckBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Background",
                       L"Use a &background image for each folder type"),
              CheckBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag",
                       L"Show &window contents while dragging"),
              CheckBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Title",
                       L"Use &gradients in title bars"),
              CheckBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_CurSh",
                       L"Show a shadow under the &mouse pointer"),
              CheckBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Rect",
                       L"Show a &translucent selection rectangle"),
              CheckBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_DesktopShadow",
                       L"Use drop shadows for icon &labels on the desktop")),
        Group(L"GroupBox_Display_Effect_BehaviorSettings", L"Behavior",
              CheckBox(L"Checkbox_Display_Effect_BehaviorSettings_Folder", L"Show common tasks in &folders"),
              CheckBox(L"Checkbox_Display_Effect_BehaviorSettings_Keyboard",
                       L"Always underline access &keys in menus"),
              CheckBox(L"Checkbox_Display_Effect_BehaviorSettings_ToolTip",
                       L"&Highlight what the mouse pointer is on"),
              CheckBox(L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion",
                       L"Show the Windows &version on the desktop")),
        Buttons(Button(L"Button_Display_Effect_BestAppearance", L"B&est Appearance"),
                Button(L"Button_Display_Effect_HighestPerformance", L"Best &Performance"),
                Button(L"Button_Display_Effect_Default", L"&Default")));
}

TControlDesign AnimationSheet() {
    return Sheet(
        L"TabSheet_Display_Animation", L"Animation",
        Group(L"GroupBox_Display_Animation_MessageAndAnimation", L"Windows and messages",
              CheckBox(L"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin",
                       L"A&nimate windows when minimizing and maximizing"),
              CheckBox(L"Checkbox_Display_Animation_MessageAndAnimation_ToolTip", L"Animate &ToolTips"),
              Indent(Row(Label(L"Label_Display_Animation_MessageAndAnimation_ToolTipType", L"&Effect:"),
                         ComboBox(L"CB_Display_Animation_MessageAndAnimation_ToolTipType",
                                  {L"Roll-up Effect", L"Fade Effect"})))),
        Group(L"GroupBox_Display_Animation_DynamicElements", L"Lists",
              CheckBox(L"Checkbox_Display_Animation_DynamicElements_ListAndTree",
                       L"S&mooth-scroll lists and trees"),
              CheckBox(L"Checkbox_Display_Animation_DynamicElements_ComboBox", L"&Slide open combo boxes"),
              CheckBox(L"Checkbox_Display_Animation_DynamicElements_SmoothListBox",
                       L"Smooth-scroll &list boxes")),
        Buttons(Button(L"Button_Display_Animation_HighestPerformance", L"Best &Performance"),
                Button(L"Button_Display_Animation_Default", L"&Default")));
}

TControlDesign MenuSheet() {
    return Sheet(
        L"TabSheet_Display_MenuAppearance", L"Menus",
        Group(L"GroupBox_Display_MenuAppearance_WindowsAndMessage", L"Animation",
              CheckBox(L"Checkbox_Display_MenuAppearance_WindowsAndMessage_Click",
                       L"&Fade out menu items after clicking"),
              CheckBox(L"Checkbox_Display_MenuAppearance_WindowsAndMessage_UseType",
                       L"A&nimate menus when they open"),
              Indent(Row(Label(L"Label_Display_MenuAppearance_WindowsAndMessage_UseType", L"&Effect:"),
                         ComboBox(L"CB_Display_MenuAppearance_WindowsAndMessage_UseType",
                                  {L"Scroll Effect", L"Fade Effect"})))),
        Group(L"GroupBox_Display_MenuAppearance_DynamicElements", L"Appearance",
              CheckBox(L"Checkbox_Display_MenuAppearance_DynamicElements_GraphicMenu", L"Show flat &menus"),
              CheckBox(L"Checkbox_Display_MenuAppearance_DynamicElements_MenuShadow",
                       L"Show &shadows under menus")),
        Buttons(Button(L"Button_Display_MenuAppearance_HighestPerformance", L"Best &Performance"),
                Button(L"Button_Display_MenuAppearance_Default", L"&Default")));
}

TControlDesign FontSheet() {
    return Sheet(L"TabSheet_Display_FontSmooth", L"Font Smoothing",
                 Group(L"GroupBox_Display_FontSmooth", L"Edges of screen fonts",
                       Row(Label(L"Label_Display_FontSmooth_SmoothType", L"&Method:"),
                           ComboBox(L"CB_Display_FontSmooth_SmoothType", kFontSmoothingTypes))),
                 Buttons(Button(L"Button_Display_FontSmooth_Clear", L"Clear Type Settings").Hidden()));
}

TControlDesign Design() {
    return NotebookPage(
        1, PageControl(L"PageControl_Display", EffectSheet(), AnimationSheet(), MenuSheet(), FontSheet()));
}

/// An option that is written in whatever type Windows keeps it.
constexpr TCheckBoxRow Option(const wchar_t* control, const wchar_t* key, const wchar_t* valueName,
                              bool restart = false) {
    return {.Control = control,
            .Value = {kCurrentUser, key, valueName},
            .Shows = {.When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = AsStored(1), .Clear = AsStored(0)},
            .Restart = restart};
}

// Special because the switch is a field of a structure (ANIMATIONINFO), which every change has of its own.
constexpr std::uint32_t kGetAnimation = 0x48;  // SPI_GETANIMATION
constexpr std::uint32_t kSetAnimation = 0x49;  // SPI_SETANIMATION
constexpr std::uint8_t kAnimationSize = 8;     // cbSize, iMinAnimate

std::vector<std::uint8_t> AnimationInfo(bool animates) {
    return {kAnimationSize, 0, 0, 0, static_cast<std::uint8_t>(animates ? 1 : 0), 0, 0, 0};
}

void LoadMinimizeAnimation(TPageContext& context, const TSpecialRow& row) {
    auto info = AnimationInfo(false);
    const bool known = context.System.Parameters.Get(kGetAnimation, kAnimationSize, info);
    const bool animates =
        known && std::any_of(info.begin() + 4, info.end(), [](auto byte) { return byte != 0; });
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(animates);
}

void RecordMinimizeAnimation(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    RecordParameter(context, sender.Name(), kSetAnimation, kAnimationSize,
                    AnimationInfo(static_cast<TCheckBox&>(sender).Checked()));
}

void RecordSmoothing(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    RecordFontSmoothing(context, L"CBfontset", static_cast<TComboBox&>(sender));
}

constexpr const wchar_t* kMaxAndMin[] = {L"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin"};
constexpr const wchar_t* kSmoothType[] = {L"CB_Display_FontSmooth_SmoothType"};

// The numbers are the codes of SystemParametersInfo, SPI_GET… and SPI_SET….
constexpr TRow kRows[] = {
    TParameterSwitchRow{.Control = L"CheckBox_Display_Effect_DisplayAndEffectSettings_Title",
                        .Get = 0x1008,  // …GRADIENTCAPTIONS
                        .Set = 0x1009},
    TParameterSwitchRow{.Control = L"Checkbox_Display_Effect_BehaviorSettings_Keyboard",
                        .Get = 0x100A,  // …KEYBOARDCUES
                        .Set = 0x100B},
    TParameterSwitchRow{.Control = L"Checkbox_Display_Effect_BehaviorSettings_ToolTip",
                        .Get = 0x100E,  // …HOTTRACKING
                        .Set = 0x100F,
                        .Restart = true},
    TParameterSwitchRow{.Control = L"Checkbox_Display_Animation_DynamicElements_ComboBox",
                        .Get = 0x1004,  // …COMBOBOXANIMATION
                        .Set = 0x1005},
    TParameterSwitchRow{.Control = L"Checkbox_Display_Animation_DynamicElements_SmoothListBox",
                        .Get = 0x1006,  // …LISTBOXSMOOTHSCROLLING
                        .Set = 0x1007,
                        .Restart = true},
    TParameterSwitchRow{.Control = L"Checkbox_Display_MenuAppearance_WindowsAndMessage_UseType",
                        .Get = 0x1002,  // …MENUANIMATION
                        .Set = 0x1003,
                        .Toggles = L"CB_Display_MenuAppearance_WindowsAndMessage_UseType"},
    TParameterSwitchRow{.Control = L"CheckBox_Display_Effect_DisplayAndEffectSettings_CurSh",
                        .Get = 0x101A,  // …CURSORSHADOW
                        .Set = 0x101B},
    TParameterSwitchRow{.Control = L"Checkbox_Display_Animation_MessageAndAnimation_ToolTip",
                        .Get = 0x1016,  // …TOOLTIPANIMATION
                        .Set = 0x1017,
                        .Toggles = L"CB_Display_Animation_MessageAndAnimation_ToolTipType"},
    TParameterSwitchRow{.Control = L"CB_Display_Animation_MessageAndAnimation_ToolTipType",
                        .Get = 0x1018,  // …TOOLTIPFADE
                        .Set = 0x1019},
    TParameterSwitchRow{.Control = L"Checkbox_Display_MenuAppearance_WindowsAndMessage_Click",
                        .Get = 0x1014,  // …SELECTIONFADE
                        .Set = 0x1015},
    TParameterSwitchRow{.Control = L"CB_Display_MenuAppearance_WindowsAndMessage_UseType",
                        .Get = 0x1012,  // …MENUFADE
                        .Set = 0x1013},
    TParameterSwitchRow{.Control = L"Checkbox_Display_MenuAppearance_DynamicElements_GraphicMenu",
                        .Get = 0x1022,  // …FLATMENU
                        .Set = 0x1023,
                        .LoadedOn = kSinceXp},
    TParameterSwitchRow{.Control = L"Checkbox_Display_MenuAppearance_DynamicElements_MenuShadow",
                        .Get = 0x1024,  // …DROPSHADOW
                        .Set = 0x1025,
                        .LoadedOn = kSinceXp},
    Option(L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion", kDesktop, L"PaintDesktopVersion",
           true),
    TParameterSwitchRow{.Control = L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag",
                        .Get = 0x26,  // …DRAGFULLWINDOWS
                        .Set = 0x25,
                        .Slot = TParameterSlot::Param},
    TCheckBoxRow{.Control = L"Checkbox_Display_Animation_DynamicElements_ListAndTree",
                 .Value = {kCurrentUser, kDesktop, L"SmoothScroll"},
                 .Shows = {.When = {{kEmptyOrZero, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = AsStored(1), .Clear = AsStored(0)}},
    TSpecialRow{.Controls = kSmoothType,
                .Value = kFontSmoothing,
                .Rule = kFontSmoothingRule,
                .Load = LoadFontSmoothing,
                .Record = RecordSmoothing},
    Option(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Background", kExplorerAdvanced,
           L"ListviewWatermark"),
    Option(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Rect", kExplorerAdvanced,
           L"ListviewAlphaSelect"),
    Option(L"CheckBox_Display_Effect_DisplayAndEffectSettings_DesktopShadow", kExplorerAdvanced,
           L"ListviewShadow"),
    Option(L"Checkbox_Display_Effect_BehaviorSettings_Folder", kExplorerAdvanced, L"WebView", true),
    TSpecialRow{.Controls = kMaxAndMin,
                .Value = {kCurrentUser, L"\\Control Panel\\Desktop\\WindowMetrics\\", L"MinAnimate"},
                .Rule = L"the system parameter 0x48 (ANIMATIONINFO); set by 0x49",
                .Load = LoadMinimizeAnimation,
                .Record = RecordMinimizeAnimation},
};

constexpr TLoader kLoaders[] = {kRows};

// Best performance leaves highlighting on, and best appearance switches it off.
constexpr TPresetState kEffectDefault[] = {
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Background", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Title", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_CurSh", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Rect", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_DesktopShadow", 1},
    {L"Checkbox_Display_Effect_BehaviorSettings_Folder", 1},
    {L"Checkbox_Display_Effect_BehaviorSettings_Keyboard", 0},
    {L"Checkbox_Display_Effect_BehaviorSettings_ToolTip", 1},
    {L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion", 0},
};
constexpr TPresetState kEffectHighestPerformance[] = {
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Background", 0},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag", 0},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Title", 0},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_CurSh", 0},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Rect", 0},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_DesktopShadow", 0},
    {L"Checkbox_Display_Effect_BehaviorSettings_Folder", 1},
    {L"Checkbox_Display_Effect_BehaviorSettings_Keyboard", 0},
    {L"Checkbox_Display_Effect_BehaviorSettings_ToolTip", 1},
    {L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion", 0},
};
constexpr TPresetState kEffectBestAppearance[] = {
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Background", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Title", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_CurSh", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_Rect", 1},
    {L"CheckBox_Display_Effect_DisplayAndEffectSettings_DesktopShadow", 1},
    {L"Checkbox_Display_Effect_BehaviorSettings_Folder", 1},
    {L"Checkbox_Display_Effect_BehaviorSettings_Keyboard", 0},
    {L"Checkbox_Display_Effect_BehaviorSettings_ToolTip", 0},
    {L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion", 0},
};
constexpr TPresetState kAnimationDefault[] = {
    {L"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin", 1},
    {L"Checkbox_Display_Animation_MessageAndAnimation_ToolTip", 1},
    {L"Checkbox_Display_Animation_DynamicElements_ListAndTree", 1},
    {L"Checkbox_Display_Animation_DynamicElements_ComboBox", 1},
    {L"Checkbox_Display_Animation_DynamicElements_SmoothListBox", 0},
    {L"CB_Display_Animation_MessageAndAnimation_ToolTipType", 1},
};
constexpr TPresetState kAnimationHighestPerformance[] = {
    {L"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin", 0},
    {L"Checkbox_Display_Animation_MessageAndAnimation_ToolTip", 0},
    {L"Checkbox_Display_Animation_DynamicElements_ListAndTree", 0},
    {L"Checkbox_Display_Animation_DynamicElements_ComboBox", 0},
    {L"Checkbox_Display_Animation_DynamicElements_SmoothListBox", 0},
};
constexpr TPresetState kMenuDefault[] = {
    {L"Checkbox_Display_MenuAppearance_WindowsAndMessage_Click", 1},
    {L"Checkbox_Display_MenuAppearance_WindowsAndMessage_UseType", 1},
    {L"Checkbox_Display_MenuAppearance_DynamicElements_GraphicMenu", 1},
    {L"Checkbox_Display_MenuAppearance_DynamicElements_MenuShadow", 1},
    {L"CB_Display_MenuAppearance_WindowsAndMessage_UseType", 1},
};
constexpr TPresetState kMenuHighestPerformance[] = {
    {L"Checkbox_Display_MenuAppearance_WindowsAndMessage_Click", 0},
    {L"Checkbox_Display_MenuAppearance_WindowsAndMessage_UseType", 0},
    {L"Checkbox_Display_MenuAppearance_DynamicElements_GraphicMenu", 1},
    {L"Checkbox_Display_MenuAppearance_DynamicElements_MenuShadow", 0},
};
constexpr TPreset kPresets[] = {
    {L"Button_Display_Effect_Default", kEffectDefault},
    {L"Button_Display_Effect_HighestPerformance", kEffectHighestPerformance},
    {L"Button_Display_Effect_BestAppearance", kEffectBestAppearance},
    {L"Button_Display_Animation_Default", kAnimationDefault},
    {L"Button_Display_Animation_HighestPerformance", kAnimationHighestPerformance},
    {L"Button_Display_MenuAppearance_Default", kMenuDefault},
    {L"Button_Display_MenuAppearance_HighestPerformance", kMenuHighestPerformance},
};

constexpr TPageDefinition kPage{
    .Tag = 1,
    .SharedHandler = L"CheckBox_Display_Effect_DisplayAndEffectSettings_BackgroundClick",
    .Design = Design,
    .Loaders = kLoaders,
    .Presets = kPresets};

}  // namespace

const TPageDefinition& DisplayPage() { return kPage; }
