#include "settings/page_table.h"

#include <array>

#include "settings/net/firefox_page.h"
#include "settings/net/internet_explorer_page.h"
#include "settings/net/mail_page.h"
#include "settings/net/network_page.h"
#include "settings/net/privacy_page.h"
#include "settings/net/security_page.h"
#include "settings/net/user_logon_page.h"
#include "settings/shell/display_page.h"
#include "settings/shell/drives_page.h"
#include "settings/shell/file_types_page.h"
#include "settings/shell/folder_page.h"
#include "settings/shell/general_page.h"
#include "settings/shell/input_page.h"
#include "settings/shell/memory_page.h"
#include "settings/shell/start_menu_page.h"
#include "settings/shell/startup_page.h"
#include "settings/shell/system_page.h"
#include "settings/shell/taskbar_page.h"
#include "ui/controls.h"

std::span<const TPageDefinition* const> PageDefinitions() {
    static const std::array kPages{
        &GeneralPage(),   &DisplayPage(), &FileTypesPage(), &FolderPage(),           &InputPage(),
        &StartMenuPage(), &TaskbarPage(), &NetworkPage(),   &InternetExplorerPage(), &FirefoxPage(),
        &MailPage(),      &PrivacyPage(), &UserLogonPage(), &DrivesPage(),           &MemoryPage(),
        &StartupPage(),   &SystemPage(),  &SecurityPage()};
    return kPages;
}

std::span<const TPageLists> PagesOfChosenLists() {
    static constexpr TPageLists kPages[] = {{L"CB_Com:", 19}, {L"CB_Dis:", 1},  {L"CB_FF:", 9},
                                            {L"CB_Pri:", 12}, {L"CB_Sta:", 16}, {L"CB_Tas:", 6}};
    return kPages;
}

void ChooseFirstItems(TControl& container) {
    for (TControl* control : container.Children()) {
        if (control->Kind() == TComponentKind::ComboBox)
            static_cast<TComboBox*>(control)->Reinitialise();
        else
            ChooseFirstItems(*control);
    }
}
