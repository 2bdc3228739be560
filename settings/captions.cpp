#include "settings/captions.h"

#include "platform/language.h"

const std::array<TCaptionKey, kCaptionCount> kCaptionKeys{{
    {L"D_General", L"General Settings"},
    {L"D_GeneralSettings", L"General Settings"},
    {L"D_Menu", L"Menu"},
    {L"D_MenuFile", L"File Types"},
    {L"D_MenuFolder", L"Folder Types"},
    {L"D_MenuStartMenu", L"Start Menu"},
    {L"D_MenuTaskbar", L"Task Bar"},
    {L"D_Browser", L"Browser"},
    {L"D_BrowserIE", L"Internet Explorer"},
    {L"D_BrowserFF", L"Mozilla Firefox"},
    {L"D_System", L"System Settings"},
    {L"D_SystemInfomation", L"Information"},
    {L"D_SystemInput", L"Input Options"},
    {L"D_SystemNetwork", L"Network"},
    {L"D_SystemDriver", L"Driver"},
    {L"D_SystemMandC", L"Memory and Cache"},
    {L"D_Security", L"Security"},
    {L"D_SecurityUserLogon", L"User Logon"},
    {L"D_SecurityCenter", L"Security Center"},
    {L"D_SecurityPrivacy", L"Privacy"},
    {L"D_Others", L"Others"},
    {L"D_OthersAnimations", L"Animations and Effects"},
    {L"D_OthersStartAndM", L"Start and Maintenance"},
    {L"D_Desktop", L"Desktop"},
    {L"D_Drivers", L"Drivers"},
    {L"D_Loading", L"Loading system settings"},
    {L"D_ClearIEHistory", L"Are you sure you want to clear IE history? It can not be recovered!"},
    {L"D_OpenExplorer", L"Open Explorer here"},
    {L"D_OpenCmd", L"Open Cmd here"},
    {L"D_ExeFile", L"Executable file"},
    {L"D_AllFile", L"All Files"},
    {L"D_Favorites", L"Favorites"},
    {L"D_RestartWindows", L"Need to restart Windows to take effect, restart now?"},
    {L"D_RestartFirefox", L"Need to restart Firefox to take effect."},
    {L"D_MyComputer", L"My Computer"},
    {L"D_DesktopMyComputer", L"My &Computer"},
    {L"D_NetworkPlaces", L"Network Places"},
    {L"D_StartMenuDragDrop", L"&Enable context menus and dragging and dropping"},
    {L"D_StartMenuMyComputer", L"My &Computer:"},
    {L"D_StartMenuMyDocuments", L"My &Documents:"},
    {L"D_StartMenuMyPictures", L"My P&ictures:"},
    {L"D_StartMenuMyMusic", L"My &Music:"},
    {L"D_StartMenuClassicMyDocuments", L"M&y Documents"},
    {L"D_StartMenuPrinters", L"Pri&nters"},
    {L"D_StartMenuDevices", L"Devices a&nd Printers"},
    {L"D_StartMenuDefaultPrograms", L"D&efault Programs"},
}};

TCaptions::TCaptions() {
    for (std::size_t i = 0; i < kCaptionCount; ++i) FTexts[i] = kCaptionKeys[i].English;
}

void TCaptions::Load(const TLanguage& language) {
    for (std::size_t i = 0; i < kCaptionCount; ++i)
        FTexts[i] = language.ReadString(kCaptionSection, kCaptionKeys[i].Key, kCaptionKeys[i].English);
}
