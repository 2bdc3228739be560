#include "settings/shell/display_page.h"

#include "settings/shared_rows.h"
#include "settings/shell/display_modern.h"

namespace {

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
        Buttons(Button(L"Button_Display_Effect_Default", L"&Default"),
                Button(L"Button_Display_Effect_BestAppearance", L"B&est Appearance"),
                Button(L"Button_Display_Effect_HighestPerformance", L"Best &Performance")));
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
        Group(L"GroupBox_Display_Animation_Windows", L"Programs and taskbar",
              CheckBox(L"Checkbox_Display_Animation_Windows_Controls", L"Animate pa&rts of windows"),
              CheckBox(L"Checkbox_Display_Animation_Windows_Taskbar", L"Animate the tas&kbar"),
              CheckBox(L"Checkbox_Display_Animation_Windows_Peek",
                       L"Pre&view the desktop at the end of the taskbar")),
        Buttons(Button(L"Button_Display_Animation_Default", L"&Default"),
                Button(L"Button_Display_Animation_HighestPerformance", L"Best &Performance")));
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
        Buttons(Button(L"Button_Display_MenuAppearance_Default", L"&Default"),
                Button(L"Button_Display_MenuAppearance_HighestPerformance", L"Best &Performance")));
}

TControlDesign FontSheet() {
    return Sheet(L"TabSheet_Display_FontSmooth", L"Font Smoothing",
                 Group(L"GroupBox_Display_FontSmooth", L"Font smoothing",
                       Row(Label(L"Label_Display_FontSmooth_SmoothType", L"&Method:"),
                           ComboBox(L"CB_Display_FontSmooth_SmoothType", kFontSmoothingTypes))),
                 Buttons(Button(L"Button_Display_FontSmooth_Clear", L"Clear Type Settings").Hidden()));
}

TControlDesign Design() {
    return NotebookPage(1, PageControl(L"PageControl_Display", EffectSheet(), AnimationSheet(), MenuSheet(),
                                       FontSheet(), DisplayColorsSheet(), DisplayWindowsSheet()));
}

// The numbers are the codes of SystemParametersInfo, SPI_GET… and SPI_SET….
constexpr TRow kRows[] = {
    On(kUntilWindows7, ParameterBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Title",
                                    Effect(0x1008))),  // …GRADIENTCAPTIONS
    ParameterBox(L"Checkbox_Display_Effect_BehaviorSettings_Keyboard", Effect(0x100A)),  // …KEYBOARDCUES
    WithRestart(
        ParameterBox(L"Checkbox_Display_Effect_BehaviorSettings_ToolTip", Effect(0x100E))),  // …HOTTRACKING
    ParameterBox(L"Checkbox_Display_Animation_DynamicElements_ComboBox",
                 Effect(0x1004)),  // …COMBOBOXANIMATION
    WithRestart(ParameterBox(L"Checkbox_Display_Animation_DynamicElements_SmoothListBox",
                             Effect(0x1006))),  // …LISTBOXSMOOTHSCROLLING
    ParameterBox(L"Checkbox_Display_MenuAppearance_WindowsAndMessage_UseType", Effect(0x1002),
                 L"CB_Display_MenuAppearance_WindowsAndMessage_UseType"),  // …MENUANIMATION
    ParameterBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_CurSh", Effect(0x101A)),  // …CURSORSHADOW
    ParameterBox(L"Checkbox_Display_Animation_MessageAndAnimation_ToolTip", Effect(0x1016),
                 L"CB_Display_Animation_MessageAndAnimation_ToolTipType"),  // …TOOLTIPANIMATION
    ParameterList(L"CB_Display_Animation_MessageAndAnimation_ToolTipType", Effect(0x1018)),  // …TOOLTIPFADE
    ParameterBox(L"Checkbox_Display_MenuAppearance_WindowsAndMessage_Click",
                 Effect(0x1014)),  // …SELECTIONFADE
    ParameterList(L"CB_Display_MenuAppearance_WindowsAndMessage_UseType", Effect(0x1012)),  // …MENUFADE
    On(kUntilWindows7,
       ReadOn(kSinceXp, ParameterBox(L"Checkbox_Display_MenuAppearance_DynamicElements_GraphicMenu",
                                     Effect(0x1022)))),  // …FLATMENU
    ReadOn(kSinceXp, ParameterBox(L"Checkbox_Display_MenuAppearance_DynamicElements_MenuShadow",
                                  Effect(0x1024))),  // …DROPSHADOW
    WindowsVersionRow(L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion"),
    DragFullWindowsRow(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag"),
    TCheckBoxRow{.Control = L"Checkbox_Display_Animation_DynamicElements_ListAndTree",
                 .Value = {kCurrentUser, kDesktop, L"SmoothScroll"},
                 .Shows = {.When = {{kEmptyOrZero, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = AsStored(1), .Clear = AsStored(0)}},
    FontSmoothingRow(L"CB_Display_FontSmooth_SmoothType", L"CBfontset"),
    On(kUntilWindows7, TypeKeepingBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Background",
                                      kExplorerAdvanced, L"ListviewWatermark")),
    TypeKeepingBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_Rect", kExplorerAdvanced,
                   L"ListviewAlphaSelect"),
    TypeKeepingBox(L"CheckBox_Display_Effect_DisplayAndEffectSettings_DesktopShadow", kExplorerAdvanced,
                   L"ListviewShadow"),
    On(kUntilWindows7, WithRestart(TypeKeepingBox(L"Checkbox_Display_Effect_BehaviorSettings_Folder",
                                                  kExplorerAdvanced, L"WebView"))),
    // iMinAnimate, with cbSize before it.
    ParameterBox(L"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin",
                 BlockParameter(0x48, 0x49, 8, 4)),  // …ANIMATION
};

constexpr TLoader kLoaders[] = {kRows, kDisplayAnimationRows, kDisplayColorsRows, kDisplayWindowsRows};

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
    {L"Checkbox_Display_Animation_Windows_Controls", 1},
    {L"Checkbox_Display_Animation_Windows_Taskbar", 1},
    {L"Checkbox_Display_Animation_Windows_Peek", 1},
};
constexpr TPresetState kAnimationHighestPerformance[] = {
    {L"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin", 0},
    {L"Checkbox_Display_Animation_MessageAndAnimation_ToolTip", 0},
    {L"Checkbox_Display_Animation_DynamicElements_ListAndTree", 0},
    {L"Checkbox_Display_Animation_DynamicElements_ComboBox", 0},
    {L"Checkbox_Display_Animation_DynamicElements_SmoothListBox", 0},
    {L"Checkbox_Display_Animation_Windows_Controls", 0},
    {L"Checkbox_Display_Animation_Windows_Taskbar", 0},
    {L"Checkbox_Display_Animation_Windows_Peek", 0},
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
    {L"Button_Display_Colors_Default", kDisplayColorsDefault},
    {L"Button_Display_Windows_Default", kDisplayWindowsDefault},
};

constexpr TNeed kNeeds[] = {kArrangingNeed};

constexpr TPageDefinition kPage{
    .Tag = 1, .Design = Design, .Loaders = kLoaders, .Presets = kPresets, .Needs = kNeeds};

}  // namespace

const TPageDefinition& DisplayPage() { return kPage; }
