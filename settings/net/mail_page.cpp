#include "settings/net/mail_page.h"

#include "settings/page_context.h"
#include "settings/row_shapes.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

TControlDesign Design() {
    return NotebookPage(
        11,
        PageControl(L"PageControl_Mail",
                    Sheet(L"TabSheet_Mail_OutlookExpress", L"Outlook Express",
                          Group(L"GroupBox_Mail_OutlookExpress", L"Start",
                                CheckBox(L"Checkbox_Mail_OutlookExpress_Messenger",
                                         L"&Start Windows Messenger with Outlook Express"))),
                    Sheet(L"TabSheet_Mail_Outlook", L"Outlook",
                          Group(L"GroupBox_Mail_Outlook", L"Window",
                                CheckBox(L"Checkbox_Mail_Outlook_Tray",
                                         L"&Hide Outlook in the notification area when it is minimized"))),
                    Sheet(L"TabSheet_Mail_Messenger", L"Messenger",
                          Group(L"GroupBox_Mail_Messenger", L"Windows Messenger",
                                CheckBox(L"Checkbox_Mail_Messenger_Run", L"Allow Windows Messenger to &run"),
                                CheckBox(L"Checkbox_Mail_Messenger_AutoRun",
                                         L"Start Windows Messenger &when Windows starts")))));
}

constexpr TRow kOutlookExpressRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Mail_OutlookExpress_Messenger",
                 .Value = {kLocalMachine, kOutlookExpress, L"Hide Messenger"},
                 .Shows = {.Missing = kChecked, .When = {{2, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = kDeleteValue, .Clear = Dword(2)},
                 .Levels = kUntilWindows7},
};

// Special because each version of Outlook has a key of its own: the newest one that is there shows, and a change is
// recorded for all that are there.
constexpr TPlace Tray(const wchar_t* key) { return As(TCoding::Number, {kCurrentUser, key, L"MinToTray"}); }
constexpr TPlace kTrayPlaces[] = {
    Tray(L"\\Software\\Microsoft\\Office\\14.0\\Outlook\\Preferences\\"),
    Tray(L"\\Software\\Microsoft\\Office\\12.0\\Outlook\\Preferences\\"),
    Tray(L"\\Software\\Microsoft\\Office\\11.0\\Outlook\\Preferences\\"),
    Tray(L"\\Software\\Microsoft\\Office\\10.0\\Outlook\\Preferences\\"),
};
constexpr const wchar_t* kTray[] = {L"Checkbox_Mail_Outlook_Tray"};

void LoadTray(TPageContext& context, const TSpecialRow& row) {
    for (const TPlace& place : row.Places) {
        if (const auto value = StoredNumber(context, place))
            return context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(*value == 1);
    }
}

void RecordTray(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const std::int32_t state = static_cast<TCheckBox&>(sender).Checked() ? 1 : 0;
    std::wstring changeName = sender.Name();
    for (const TPlace& place : row.Places) {
        if (KeyExists(context, place)) RecordNumber(context, changeName, place, state);
        changeName += L'1';
    }
}

constexpr TRow kOutlookRows[] = {
    TSpecialRow{.Controls = kTray, .Places = kTrayPlaces, .Load = LoadTray, .Record = RecordTray},
};

constexpr TRow kMessengerRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Mail_Messenger_Run",
                 .Value = {kLocalMachine, kMessengerClient, L"PreventRun"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = L"Checkbox_Mail_Messenger_AutoRun",
                 .Value = {kLocalMachine, kMessengerClient, L"PreventAutoRun"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
};

constexpr TLoader kLoaders[] = {kOutlookExpressRows, kOutlookRows, kMessengerRows};

constexpr TPageDefinition kPage{.Tag = 11, .Design = Design, .Loaders = kLoaders, .Presets = {}};

}  // namespace

const TPageDefinition& MailPage() { return kPage; }
