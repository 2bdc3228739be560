#include "settings/category_table.h"

#include "base/decimal.h"

namespace {

constexpr TCategoryItemRow kCommonSettings[] = {
    {L"General Setting", L"general", 19, TCaption::GeneralSettings},
};
constexpr TCategoryItemRow kDisplay[] = {
    {L"File Types", L"file_types", 2, TCaption::MenuFile},
    {L"Folder Types", L"folder_types", 3, TCaption::MenuFolder},
    {L"Startup Menu", L"start_menu", 5, TCaption::MenuStartMenu},
    {L"Task Bar", L"task_bar", 6, TCaption::MenuTaskbar},
};
constexpr TCategoryItemRow kUse[] = {
    {L"Internet Explorer", L"internet", 8, TCaption::BrowserIE},
    {L"Mozilla Firefox", L"browser", 9, TCaption::BrowserFF, kSinceXp},
};
constexpr TCategoryItemRow kCommunication[] = {
    {L"Infomation", L"information", 17, TCaption::SystemInfomation},
    {L"Input Options", L"input", 4, TCaption::SystemInput},
    {L"Network", L"network", 7, TCaption::SystemNetwork},
    {L"Driver", L"driver", 14, TCaption::SystemDriver},
    {L"Memory and Cache", L"memory", 15, TCaption::SystemMandC},
    {L"Opera", L"web_other", 10, std::nullopt},
    {L"E-mail and contacts", L"mail", 11, std::nullopt},
};
constexpr TCategoryItemRow kManage[] = {
    {L"User Logon", L"user_logon", 13, TCaption::SecurityUserLogon},
    {L"Security Center", L"security_center", 18, TCaption::SecurityCenter},
    {L"Privacy", L"privacy", 12, TCaption::SecurityPrivacy},
};
constexpr TCategoryItemRow kOthers[] = {
    {L"Animations and Effects", L"effects", 1, TCaption::OthersAnimations},
    {L"Start and Maintenance", L"maintenance", 16, TCaption::OthersStartAndM},
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
