#include "engine/reg_file_keys.h"

#include <algorithm>

#include "platform/text.h"

namespace {

struct TRootName {
    TRootKey Root;
    std::wstring_view Name;
    std::wstring_view ShortName;
};

constexpr TRootName kRootNames[] = {
    {TRootKey::ClassesRoot, L"HKEY_CLASSES_ROOT", L"HKCR"},
    {TRootKey::CurrentUser, L"HKEY_CURRENT_USER", L"HKCU"},
    {TRootKey::LocalMachine, L"HKEY_LOCAL_MACHINE", L"HKLM"},
    {TRootKey::Users, L"HKEY_USERS", L"HKU"},
    {TRootKey::CurrentConfig, L"HKEY_CURRENT_CONFIG", L"HKCC"},
    {TRootKey::DynData, L"HKEY_DYN_DATA", L"HKDD"},
};

/// Windows takes several backslashes for one.
std::wstring WithSingleBackslashes(std::wstring_view path) {
    std::wstring single(TrimmedKey(path));
    const auto isRepeated = [](wchar_t a, wchar_t b) { return a == L'\\' && b == L'\\'; };
    single.erase(std::unique(single.begin(), single.end(), isRepeated), single.end());
    return single;
}

}  // namespace

std::optional<TRegKey> ParseRegKey(std::wstring_view text) {
    TRegKey key;
    if (text.starts_with(L'-')) {
        key.IsDeleted = true;
        text.remove_prefix(1);
    }
    const std::size_t end = std::min(text.find(L'\\'), text.size());
    const auto* const root = std::ranges::find_if(kRootNames, [&](const TRootName& each) {
        return SameText(each.Name, text.substr(0, end)) || SameText(each.ShortName, text.substr(0, end));
    });
    if (root == std::end(kRootNames) || text.substr(end).starts_with(L"\\\\")) return std::nullopt;
    key.Root = root->Root;
    key.Path = WithSingleBackslashes(text.substr(end));
    if (key.IsDeleted && key.Path.empty()) return std::nullopt;
    return key;
}

std::wstring RegKeyText(const TRegKey& key) {
    std::wstring text = key.IsDeleted ? L"-" : L"";
    for (const TRootName& each : kRootNames)
        if (each.Root == key.Root) text += each.Name;
    const std::wstring path = WithSingleBackslashes(key.Path);
    if (!path.empty()) text += L'\\';
    return text + path;
}
