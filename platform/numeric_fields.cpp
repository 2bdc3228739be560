#include "platform/numeric_fields.h"

#include <stdexcept>

#include "platform/faults.h"
#include "platform/text.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kInput = L"Checkbox_Use_MouseFunction_ChangeKey_ChangeClick";
constexpr const wchar_t* kStartMenu = L"Checkbox_Use_StartMenu_Common_User_ShowUserNameClick";
constexpr const wchar_t* kTaskbar = L"Checkbox_Taskbar_ButtonFlashes_ActiveClick";
constexpr const wchar_t* kStartup = L"Checkbox_Startup_System_Defrag_EnableClick";
constexpr const wchar_t* kFolder = L"Checkbox_Folder_View_Windows_TreeClick";
constexpr const wchar_t* kSecurity = L"Checkbox_Security_Center_ActiveClick";
constexpr const wchar_t* kNetwork = L"Checkbox_Net_Neighbor_Common_TaskClick";
constexpr const wchar_t* kInternetExplorer = L"Checkbox_IE_Common_Media_OpenClick";
constexpr const wchar_t* kFirefox = L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashingClick";
constexpr const wchar_t* kSmoothTypeChange = L"CB_CommonSettings_Others_Font_SmoothTypeChange";

// The spellings of the names differ from field to field (Updown, UpDown, UpDownCur).
constexpr TNumericField kFields[] = {
    {.Edit = L"Edit_Use_MouseSensitivity_DoubleClickError",
     .Paired = L"Updown_Use_MouseSensitivity_DoubleClickError",
     .Min = 1,
     .Max = 100,
     .PageHandler = kInput,
     .FiltersKeys = true},
    {.Edit = L"Edit_Use_MouseSensitivity_DoubleClickTime",
     .Paired = L"UpDown_Use_MouseSensitivity_DoubleClickTime",
     .Min = 200,
     .Max = 900,
     .PageHandler = kInput},
    {.Edit = L"Edit_Use_MouseSensitivity_Drag",
     .Paired = L"UpDown_Use_MouseSensitivity_Drag",
     .Min = 1,
     .Max = 100,
     .PageHandler = kInput},
    {.Edit = L"Edit_Use_MouseSensitivity_Hover_MoveError",
     .Paired = L"UpDown_Use_MouseSensitivity_Hover_MoveError",
     .Min = 0,
     .Max = 100,
     .PageHandler = kInput},
    {.Edit = L"Edit_Use_MouseSensitivity_Hover_Time",
     .Paired = L"UpDown_Use_MouseSensitivity_Hover_Time",
     .Min = 0,
     .Max = 1000,
     .PageHandler = kInput},
    {.Edit = L"Edit_Use_MouseSensitivity_Tilt_Count",
     .Paired = L"UpDown_Use_MouseSensitivity_Tilt_Count",
     .Min = 1,
     .Max = 100,
     .PageHandler = kInput},
    {.Edit = L"Edit_Use_MouseFunction_Wheel_Count",
     .Paired = L"UpDown_Use_MouseFunction_Wheel_Count",
     .Min = 1,
     .Max = 100,
     .PageHandler = kInput,
     .FiltersKeys = true},
    {.Edit = L"Edit_Use_Keyboard_CursorWidth_Width",
     .Paired = L"UpDown_Use_Keyboard_CursorWidth_Width",
     .Min = 1,
     .Max = 10,
     .PageHandler = kInput,
     .IsPositive = true},
    {.Edit = L"Edit_Use_StartMenu_RecentlyUse_Document_FileCount",
     .Paired = L"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount",
     .Min = 1,
     .Max = 99,
     .PageHandler = kStartMenu},
    {.Edit = L"Edit_Use_StartMenu_RecentlyUse_Program_Count",
     .Paired = L"UpDown_Use_StartMenu_RecentlyUse_Program_Count",
     .Min = 0,
     .Max = 30,
     .PageHandler = kStartMenu},
    {.Edit = L"Edit_Use_StartMenu_RecentlyUse_JumpList_Count",
     .Paired = L"UpDown_Use_StartMenu_RecentlyUse_JumpList_Count",
     .Min = 0,
     .Max = 60,
     .PageHandler = kStartMenu},
    {.Edit = L"Edit_Use_StartMenu_Common_Menu_Delay",
     .Paired = L"UpDown_Use_StartMenu_Common_Menu_Delay",
     .Min = 0,
     .Max = 4000,
     .PageHandler = kStartMenu},
    {.Edit = L"Edit_Taskbar_ButtonFlashes_Common_Time",
     .Paired = L"UpDown_Taskbar_ButtonFlashes_Common_Time",
     .Min = 1,
     .Max = 32000,
     .PageHandler = kTaskbar},
    {.Edit = L"Edit_Taskbar_ButtonFlashes_Speed_Flash",
     .Paired = L"UpDown_Taskbar_ButtonFlashes_Speed_Flash",
     .Min = 1,
     .Max = 999,
     .PageHandler = kTaskbar},
    {.Edit = L"Edit_Taskbar_ButtonAppearance_Group_AtLeastCount",
     .Paired = L"UpDown_Taskbar_ButtonAppearance_Group_AtLeastCount",
     .Min = 2,
     .Max = 99,
     .PageHandler = kTaskbar},
    {.Edit = L"Edit_Startup_Exit_WaitTime_Time",
     .Paired = L"UpDown_Startup_Exit_WaitTime_Time",
     .Min = 1,
     .Max = 32000,
     .PageHandler = kStartup},
    {.Edit = L"Edit_Startup_System_DelayTime_Time",
     .Paired = L"Updown_Startup_System_DelayTime_Time",
     .Min = 0,
     .Max = 600,
     .PageHandler = kStartup},
    {.Edit = L"Edit_Folder_Thumbnail_Size",
     .Paired = L"Edit_Folder_Thumbnail_Size",
     .Min = 32,
     .Max = 256,
     .PageHandler = kFolder,
     .FiltersKeys = true},
    {.Edit = L"Edit_Security_Advanced_Screensaver_WaitTime",
     .Paired = L"Updown_Security_Advanced_Screensaver_WaitTime",
     .Min = 1,
     .Max = 9999,
     .PageHandler = kSecurity},
    {.Edit = L"Edit_Net_Advanced_Qos_Count",
     .Paired = L"Updown_Net_Advanced_Qos_Count",
     .Min = 0,
     .Max = 100,
     .PageHandler = kNetwork},
    {.Edit = L"Edit_IE_Common_History_KeepDays",
     .Paired = L"Updown_IE_Common_History_KeepDays",
     .Min = 1,
     .Max = 100,
     .PageHandler = kInternetExplorer},
    {.Edit = L"Edit_Firefox_Tab_MinWidth_Min",
     .Paired = L"Edit_Firefox_Tab_MinWidth_Min",
     .Min = 36,
     .Max = 500,
     .PageHandler = kFirefox},
    {.Edit = L"MaskEdit_CommonSettings_Function_CursorWidth_Width",
     .Paired = L"UpDownCur_CommonSettings_Function_CursorWidth_Width",
     .Min = 1,
     .Max = 10,
     .PageHandler = kSmoothTypeChange},
};

/// One field of a form at work.
class TBoundField {
  public:
    TBoundField(const TNumericField& field, TEdit& edit, TControl& paired, TNotifyEvent changed)
        : FField(field), FEdit(edit), FPaired(paired), FChanged(std::move(changed)) {}

    void Change() const {
        if (!FEdit.Focused()) return;
        if (!FEdit.Text().empty()) {
            const int number = Number();
            if (number > FField.Max) return Correct(FField.Max);
            if (FField.IsPositive && number <= 0) return Correct(1);
        }
        FChanged(FPaired);
    }

    void Exit() const {
        if (!FEdit.Text().empty() && Number() >= FField.Min) return;
        FEdit.SetText(std::to_wstring(FField.Min));
        FChanged(FPaired);
    }

    static bool KeyPress(wchar_t key) { return key == kBackspace || (key >= L'0' && key <= L'9'); }

  private:
    static constexpr wchar_t kBackspace = 8;

    [[nodiscard]] int Number() const {
        const auto number = ParseInteger(FEdit.Text());
        if (!number) throw EConvertError(FEdit.Text());
        return *number;
    }

    /// The edit has the focus, so that the corrected text comes back to Change.
    void Correct(int number) const { FEdit.SetText(std::to_wstring(number)); }

    const TNumericField& FField;
    TEdit& FEdit;
    TControl& FPaired;
    TNotifyEvent FChanged;
};

}  // namespace

std::span<const TNumericField> NumericFields() { return kFields; }

void BindNumericFields(const TForm& form, std::wstring_view pageHandler, const TNotifyEvent& changed) {
    for (const TNumericField& field : kFields) {
        auto* edit = form.Find<TEdit>(field.Edit);
        if (field.PageHandler != pageHandler || edit == nullptr) continue;
        TControl* paired = form.Find(field.Paired);
        if (paired == nullptr) throw std::logic_error("a numeric field without its up-down");
        const TBoundField bound(field, *edit, *paired, changed);
        edit->OnChange = [bound](TComponent&) { bound.Change(); };
        edit->OnExit = [bound](TComponent&) { bound.Exit(); };
        if (field.FiltersKeys) edit->OnKeyPress = TBoundField::KeyPress;
        edit->DigitsOnly = true;
    }
}
