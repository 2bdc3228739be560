#include "tests/program/registry_snapshot.h"

#include <shlwapi.h>

namespace {

const std::pair<const wchar_t*, HKEY> kRoots[] = {{L"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
                                                  {L"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},
                                                  {L"HKEY_USERS", HKEY_USERS},
                                                  {L"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT}};
constexpr const wchar_t* kParts[] = {L"HKEY_CURRENT_USER", L"HKEY_LOCAL_MACHINE\\Software",
                                     L"HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control",
                                     L"HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services",
                                     L"HKEY_USERS\\.DEFAULT"};
constexpr const wchar_t* kUnnamed = L"(Default)";

bool IsForeign(const std::wstring& path) {
    return path == L"HKEY_CURRENT_USER\\Software\\Wine\\Temporary System Parameters" ||
           path == L"HKEY_LOCAL_MACHINE\\Software\\Classes\\Interface" ||
           path == L"HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\ServiceCurrent" ||
           path.ends_with(L"\\Wow6432Node");
}

void AddKey(HKEY parent, const std::wstring& key, const std::wstring& path, TSnapshot& snapshot) {
    HKEY handle = nullptr;
    if (IsForeign(path) || RegOpenKeyExW(parent, key.c_str(), 0, KEY_READ, &handle) != ERROR_SUCCESS) return;
    snapshot[path + L'\\'];
    DWORD longest = 0;
    RegQueryInfoKeyW(handle, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &longest,
                     nullptr, nullptr);
    wchar_t name[16384];
    for (DWORD i = 0;; ++i) {
        TStoredValue value{0, std::vector<BYTE>(longest)};
        DWORD length = 16384;
        DWORD size = longest;
        if (RegEnumValueW(handle, i, name, &length, nullptr, &value.first, value.second.data(), &size) !=
            ERROR_SUCCESS)
            break;
        value.second.resize(size);
        snapshot[path + L'\\' + (length == 0 ? kUnnamed : name)] = value;
    }
    for (DWORD i = 0; RegEnumKeyW(handle, i, name, 256) == ERROR_SUCCESS; ++i)
        AddKey(handle, name, path + L'\\' + name, snapshot);
    RegCloseKey(handle);
}

std::pair<HKEY, std::wstring> SplitPath(const std::wstring& path) {
    for (const auto& [name, root] : kRoots) {
        const std::wstring begin = std::wstring(name) + L'\\';
        if (path.starts_with(begin)) return {root, path.substr(begin.size())};
        if (path == name) return {root, {}};
    }
    throw TAutomationError(L"no root: " + path);
}

}  // namespace

TSnapshot RegistrySnapshot() {
    TSnapshot snapshot;
    for (const wchar_t* part : kParts) {
        const auto [root, key] = SplitPath(part);
        AddKey(root, key, part, snapshot);
    }
    return snapshot;
}

std::vector<std::wstring> Differences(const TSnapshot& one, const TSnapshot& other) {
    std::vector<std::wstring> places;
    for (const auto& [place, value] : one) {
        const auto found = other.find(place);
        if (found == other.end() || found->second != value) places.push_back(place);
    }
    for (const auto& [place, value] : other)
        if (!one.contains(place)) places.push_back(place);
    return places;
}

void Store(const std::wstring& path, const std::optional<TStoredValue>& value) {
    const auto [root, place] = SplitPath(path);
    const std::size_t end = place.rfind(L'\\');
    const std::wstring key = place.substr(0, end);
    std::wstring name = place.substr(end + 1);
    if (name == kUnnamed) name.clear();
    if (value)
        SHSetValueW(root, key.c_str(), name.c_str(), value->first, value->second.data(),
                    static_cast<DWORD>(value->second.size()));
    else if (path.ends_with(L'\\'))
        SHDeleteKeyW(root, key.c_str());
    else
        SHDeleteValueW(root, key.c_str(), name.c_str());
}

void Restore(const TSnapshot& snapshot) {
    for (const std::wstring& place : Differences(snapshot, RegistrySnapshot())) {
        if (place.find(L"\\CurrentControlSet\\Services\\") != std::wstring::npos) continue;
        const auto found = snapshot.find(place);
        if (found == snapshot.end())
            Store(place, std::nullopt);
        else if (!place.ends_with(L'\\'))
            Store(place, found->second);
    }
}
