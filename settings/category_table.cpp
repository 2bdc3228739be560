#include "settings/category_table.h"

#include "base/decimal.h"

namespace {

constexpr TCategoryItemRow kCommonSettings[] = {
    {L"General Setting", L"general", 19, TCaption::GeneralSettings, TCaption::AboutGeneral},
};
constexpr TCategoryItemRow kDisplay[] = {
    {L"File Types", L"file_types", 2, TCaption::MenuFile, TCaption::AboutFileTypes},
    {L"Folder Types", L"folder_types", 3, TCaption::MenuFolder, TCaption::AboutFolderTypes},
    {L"Startup Menu", L"start_menu", 5, TCaption::MenuStartMenu, TCaption::AboutStartMenu},
    {L"Task Bar", L"task_bar", 6, TCaption::MenuTaskbar, TCaption::AboutTaskbar},
};
constexpr TCategoryItemRow kUse[] = {
    {L"Internet Explorer", L"internet", 8, TCaption::BrowserIE, TCaption::AboutInternetExplorer,
     kUntilWindows10},
    {L"Mozilla Firefox", L"browser", 9, TCaption::BrowserFF, TCaption::AboutFirefox, kSinceXp},
};
constexpr TCategoryItemRow kCommunication[] = {
    {L"Infomation", L"information", 17, TCaption::SystemInfomation, TCaption::AboutInformation},
    {L"Input Options", L"input", 4, TCaption::SystemInput, TCaption::AboutInput},
    {L"Network", L"network", 7, TCaption::SystemNetwork, TCaption::AboutNetwork},
    {L"Driver", L"driver", 14, TCaption::SystemDriver, TCaption::AboutDriver},
    {L"Memory and Cache", L"memory", 15, TCaption::SystemMandC, TCaption::AboutMemory},
    {L"Opera", L"", 10, std::nullopt, {}},
    {L"E-mail and contacts", L"", 11, std::nullopt, {}},
};
constexpr TCategoryItemRow kManage[] = {
    {L"User Logon", L"user_logon", 13, TCaption::SecurityUserLogon, TCaption::AboutUserLogon},
    {L"Security Center", L"security_center", 18, TCaption::SecurityCenter, TCaption::AboutSecurityCenter},
    {L"Privacy", L"privacy", 12, TCaption::SecurityPrivacy, TCaption::AboutPrivacy},
};
constexpr TCategoryItemRow kOthers[] = {
    {L"Animations and Effects", L"effects", 1, TCaption::OthersAnimations, TCaption::AboutAnimations},
    {L"Start and Maintenance", L"maintenance", 16, TCaption::OthersStartAndM, TCaption::AboutStartAndM},
};

constexpr TCategoryGroupRow kGroups[] = {
    {L"RzGroup_CommonSettings", TCaption::General, kCommonSettings},
    {L"RzGroup_Display", TCaption::Menu, kDisplay},
    {L"RzGroup_Use", TCaption::Browser, kUse},
    {L"RzGroup_Communication", TCaption::System, kCommunication},
    {L"RzGroup_Manage", TCaption::Security, kManage},
    {L"RzGroup_Others", TCaption::Others, kOthers},
};

}  // namespace

std::span<const TCategoryGroupRow> CategoryTable() { return kGroups; }

std::wstring CategoryItemName(const std::wstring& group, std::size_t index) {
    return group + L".Items[" + DecimalText(static_cast<std::int64_t>(index)) + L"]";
}

TControlDesign CategoryBarDesign() {
    TDesigns groups;
    for (const TCategoryGroupRow& group : kGroups) {
        TDesigns items;
        for (const TCategoryItemRow& item : group.Items) {
            TControlDesign design = CategoryItem(CategoryItemName(group.Name, items.size()).c_str(),
                                                 item.Caption, item.Tag, item.Picture);
            design.IsVisible = item.Text.has_value();
            items.push_back(std::move(design));
        }
        const auto& key = kCaptionKeys[static_cast<std::size_t>(group.Text)];
        groups.push_back(CategoryGroup(group.Name, key.English, std::move(items)));
    }
    return CategoryBar(L"CategoryBar", std::move(groups));
}
