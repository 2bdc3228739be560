// What the settings of the Mozilla Firefox page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing",
     "Some old pages make text flash; if this is checked, Firefox shows it steadily. Firefox 23 and later "
     "never let text blink, so that there it makes no difference."},
    {"Radio_Firefox_Common_ErrorMessage_WebPage",
     "A page that cannot be loaded is replaced by an explanation with a button to try again. It is what "
     "Firefox 1.5 and later do by themselves."},
    {"Radio_Firefox_Common_ErrorMessage_Windows",
     "A page that cannot be loaded is reported in a window that you must close. This is also shown while "
     "nothing is stored, although Firefox 1.5 and later then use a page."},
    {"Edit_Firefox_Common_Homepage_Address",
     "Page that Firefox opens when it starts and with its Home button. Like all settings of Firefox here, it "
     "goes to the file user.js of the profile, which at every start overrides what is chosen in Firefox "
     "itself."},
    {"Button_Firefox_Common_Default",
     "Lets text blink and chooses the message box for errors; the home page stays as it is."},
    {"Checkbox_Firefox_Use_AddressBar_AutoFill",
     "Adds the rest of a known address behind the cursor while you type. Newer versions of Firefox do so "
     "even if nothing is stored, although the box is clear then; to turn it off there, check the box and "
     "clear it again."},
    {"Checkbox_Firefox_Use_AddressBar_ShowLoadAddressButton",
     "The button at the end of the address bar that loads the typed address. Firefox 2 uses this option; "
     "since Firefox 3 the button shows by itself while you type."},
    {"Radio_Firefox_Use_MenuSpeed_UseWinSet",
     "Submenus open after the delay of Windows, as Firefox does by itself. Choosing it here removes the "
     "preference of the Go button, in which this group is stored; the menus do not read that one."},
    {"Radio_Firefox_Use_MenuSpeed_Click",
     "Submenus are to open only when they are clicked. The choice is stored in the preference of the Go "
     "button, which the menus of Firefox do not read, so that they stay as they are."},
    {"Radio_Firefox_Use_MenuSpeed_Delay",
     "Submenus are to open when the pointer has rested on them for the time set below. The time is stored in "
     "the preference of the Go button, which the menus of Firefox do not read, so that they stay as they "
     "are."},
    {"TrackBar_Firefox_Use_MenuSpeed_Delay",
     "Time in milliseconds that the pointer rests on an entry before its submenu opens. It is stored in the "
     "preference of the Go button, which the menus of Firefox do not read."},
    {"Button_Firefox_Use_Default",
     "Turns off completion, shows the Go button and lets submenus open as Windows does."},
    {"Checkbox_Firefox_Popup_Open_Type",
     "Pages that ask for a window of their own get a tab, which keeps the screen tidy. By default, windows "
     "to which a script gives a size or look of their own still open as windows."},
    {"Radio_Firefox_Popup_Open_SameTab",
     "The new page replaces the one that is shown; the Back button returns to it. What you have entered in "
     "the old page may be lost."},
    {"Radio_Firefox_Popup_Open_NewTab",
     "The new page opens in a tab of its own, and the old one stays open. It is what Firefox 2 and later do "
     "by themselves."},
    {"Checkbox_Firefox_Popup_JavaScript_Size",
     "If this is cleared, you can resize every window that a script opens, even where the page does not "
     "intend it. Firefox 78 and later do not read this option."},
    {"Checkbox_Firefox_Popup_JavaScript_Min",
     "If this is cleared, windows that a script opens keep their button. Web pages are hardly affected: only "
     "dialogs of Firefox itself and of add-ons can be without it. Firefox 78 and later do not read this "
     "option."},
    {"Checkbox_Firefox_Popup_JavaScript_HideMenu",
     "If this is cleared, windows that a script opens keep the menu bar, and with it all commands of "
     "Firefox. Firefox 78 and later do not read this option."},
    {"Checkbox_Firefox_Popup_JavaScript_HideTask",
     "If this is cleared, windows that a script opens always show the address of their page, which makes it "
     "harder to fake a page. It is the default since Firefox 3. Firefox 78 and later do not read this "
     "option."},
    {"Checkbox_Firefox_Popup_JavaScript_HideSroll",
     "If this is cleared, windows that a script opens have scroll bars when their page does not fit, even "
     "where the script leaves them out. Firefox 78 and later do not read this option."},
    {"Button_Firefox_Popup_Default", "Opens links in a new tab and clears all boxes of the lower group."},
    {"CB_Firefox_Tab_CloseButton_Pos",
     "Where the button stands that closes a tab. This choice came with Firefox 2; newer versions no longer "
     "offer it and show the button on every tab that is wide enough."},
    {"Updown_Firefox_Tab_MinWidth_Min",
     "Tabs do not get narrower than this; if more are open, the tab bar scrolls. Not every version of "
     "Firefox reads it. At 125 the preference is removed, so that the default of Firefox itself applies."},
    {"Edit_Firefox_Tab_MinWidth_Min",
     "Tabs do not get narrower than this; if more are open, the tab bar scrolls. Not every version of "
     "Firefox reads it. At 125 the preference is removed, so that the default of Firefox itself applies."},
};

}  // namespace

TExplanations FirefoxExplanations() { return kTexts; }
