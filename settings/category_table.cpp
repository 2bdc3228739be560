#include "settings/category_table.h"

#include "base/decimal.h"

namespace {

constexpr TCategoryItemRow kCommonSettings[] = {
    {L"General Setting", 19, L"general", TCaption::GeneralSettings},
};
constexpr TCategoryItemRow kDisplay[] = {
    {L"File Types", 2, L"file_types", TCaption::MenuFile},
    {L"Folder Types", 3, L"folder_types", TCaption::MenuFolder},
    {L"Startup Menu", 5, L"start_menu", TCaption::MenuStartMenu},
    {L"Task Bar", 6, L"task_bar", TCaption::MenuTaskbar},
};
constexpr TCategoryItemRow kUse[] = {
    {L"Internet Explorer", 8, L"internet", TCaption::BrowserIE},
    {L"Mozilla Firefox", 9, L"browser", TCaption::BrowserFF, kSinceXp},
};
constexpr TCategoryItemRow kCommunication[] = {
    {L"Infomation", 17, L"information", TCaption::SystemInfomation},
    {L"Input Options", 4, L"input", TCaption::SystemInput},
    {L"Network", 7, L"network", TCaption::SystemNetwork},
    {L"Driver", 14, L"driver", TCaption::SystemDriver},
    {L"Memory and Cache", 15, L"memory", TCaption::SystemMandC},
    {L"Opera", 10, L"web_other", std::nullopt},
    {L"E-mail and contacts", 11, L"mail", std::nullopt},
};
constexpr TCategoryItemRow kManage[] = {
    {L"User Logon", 13, L"user_logon", TCaption::SecurityUserLogon},
    {L"Security Center", 18, L"security_center", TCaption::SecurityCenter},
    {L"Privacy", 12, L"privacy", TCaption::SecurityPrivacy},
};
constexpr TCategoryItemRow kOthers[] = {
    {L"Animations and Effects", 1, L"effects", TCaption::OthersAnimations},
    {L"Start and Maintenance", 16, L"maintenance", TCaption::OthersStartAndM},
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
