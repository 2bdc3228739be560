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

const std::wstring kControl = L"HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\";

/// Wine registers displays whenever the desktop's own program starts, and other devices when it comes to them.
bool IsForeign(const std::wstring& path) {
    return path == L"HKEY_CURRENT_USER\\Software\\Wine\\Temporary System Parameters" ||
           path == L"HKEY_LOCAL_MACHINE\\Software\\Classes\\Interface" ||
           path == kControl + L"ServiceCurrent" || path == kControl + L"Video" ||
           path == kControl + L"DeviceClasses" ||
           path == kControl + L"Class\\{4D36E968-E325-11CE-BFC1-08002BE10318}" ||
           path.ends_with(L"\\Wow6432Node");
}

/// A key as it was when it was read last.
struct TKey {
    std::uint64_t Written = 0;  ///< when its values or the set of its keys were changed
    std::map<std::wstring, TStoredValue> Values;
    std::map<std::wstring, TKey> Keys;
};

std::uint64_t Number(const FILETIME& time) {
    return std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

void ReadValues(HKEY handle, TKey& key) {
    key.Values.clear();
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
            return;
        value.second.resize(size);
        key.Values[length == 0 ? kUnnamed : name] = std::move(value);
    }
}

/// Reads what was written since `key` was read: each call costs a way to another process and back.
void ReadKey(HKEY parent, const std::wstring& name, const std::wstring& path, std::uint64_t written,
             TKey& key) {
    HKEY handle = nullptr;
    if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ, &handle) != ERROR_SUCCESS) return;
    if (written != key.Written) ReadValues(handle, key);
    std::map<std::wstring, TKey> keys;
    wchar_t inner[256];
    DWORD length = 256;
    FILETIME time;
    for (DWORD i = 0;
         RegEnumKeyExW(handle, i, inner, &length, nullptr, nullptr, nullptr, &time) == ERROR_SUCCESS;
         ++i, length = 256) {
        const std::wstring innerPath = path + L'\\' + inner;
        if (IsForeign(innerPath)) continue;
        // A key that comes up before this one meanwhile lets it be met twice.
        TKey& known = keys.try_emplace(inner, std::move(key.Keys[inner])).first->second;
        if (known.Written != Number(time) || !known.Keys.empty())
            ReadKey(handle, inner, innerPath, Number(time), known);
    }
    key.Keys = std::move(keys);
    key.Written = written;
    RegCloseKey(handle);
}

void AddKey(const TKey& key, const std::wstring& path, TSnapshot& snapshot) {
    snapshot[path];
    for (const auto& [name, value] : key.Values) snapshot[path + name] = value;
    for (const auto& [name, inner] : key.Keys) AddKey(inner, path + name + L'\\', snapshot);
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
    static TKey parts[std::size(kParts)];
    TSnapshot snapshot;
    for (std::size_t i = 0; i < std::size(kParts); ++i) {
        const auto [root, key] = SplitPath(kParts[i]);
        // Its own time is not asked for: it is read anew.
        ReadKey(root, key, kParts[i], parts[i].Written + 1, parts[i]);
        AddKey(parts[i], std::wstring(kParts[i]) + L'\\', snapshot);
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
