#include "platform/win32/registry_win32.h"

#include <algorithm>
#include <limits>

#include "base/win32/handle.h"
#include "base/win32/late_bound.h"

namespace {

/// A value larger than that is none of ours and is shown as one of unknown type.
constexpr DWORD kLargestValue = 16 * 1024 * 1024;
/// Few are larger: one question is enough.
constexpr std::size_t kUsualValue = 256;
/// The longest names of a key and of a value, in characters.
constexpr DWORD kLongestKeyName = 255;
constexpr DWORD kLongestValueName = 16383;

HKEY RootOf(TRootKey root) {
    switch (root) {
        case TRootKey::ClassesRoot:
            return HKEY_CLASSES_ROOT;
        case TRootKey::CurrentUser:
            return HKEY_CURRENT_USER;
        case TRootKey::LocalMachine:
            return HKEY_LOCAL_MACHINE;
        case TRootKey::Users:
            return HKEY_USERS;
        case TRootKey::CurrentConfig:
            return HKEY_CURRENT_CONFIG;
        case TRootKey::DynData:
            return HKEY_DYN_DATA;
    }
    return nullptr;
}

/// For full access in the view, or another one; an invalid handle when the key cannot be opened.
TKeyHandle Open(HKEY parent, const std::wstring& key, REGSAM view, REGSAM access = KEY_ALL_ACCESS) {
    HKEY handle = nullptr;
    const LONG error = RegOpenKeyExW(parent, key.c_str(), 0, access | view, &handle);
    return TKeyHandle(error == ERROR_SUCCESS ? handle : nullptr);
}

TKeyHandle Open(TRootKey root, const std::wstring& key, REGSAM view, REGSAM access = KEY_ALL_ACCESS) {
    return Open(RootOf(root), std::wstring(TrimmedKey(key)), view, access);
}

/// The key's own names, taken down before anything changes them.
std::vector<std::wstring> SubKeysOf(HKEY key) {
    std::vector<std::wstring> names;
    wchar_t name[kLongestKeyName + 1];
    for (DWORD index = 0;; ++index) {
        DWORD length = kLongestKeyName + 1;
        if (RegEnumKeyExW(key, index, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            break;
        names.emplace_back(name, length);
    }
    return names;
}

std::vector<std::wstring> ValueNamesOf(HKEY key) {
    std::vector<std::wstring> names;
    std::wstring name(kLongestValueName + 1, L'\0');
    for (DWORD index = 0;; ++index) {
        DWORD length = kLongestValueName + 1;
        if (RegEnumValueW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        names.emplace_back(name, 0, length);
    }
    return names;
}

/// The bytes of a value and its REG_… type; of a value larger than `largest` no type. False when it cannot be read.
bool QueryValue(HKEY key, const std::wstring& name, DWORD largest, DWORD& type, TBytes& bytes) {
    bytes.resize(kUsualValue);
    for (;;) {
        auto size = static_cast<DWORD>(bytes.size());
        const LONG error = RegQueryValueExW(key, name.c_str(), nullptr, &type, bytes.data(), &size);
        if (error == ERROR_SUCCESS) {
            bytes.resize(size);
            return true;
        }
        if (error != ERROR_MORE_DATA) return false;
        if (size > largest) {
            type = REG_NONE;
            return true;
        }
        bytes.resize(std::max<std::size_t>(size, bytes.size() + 1));  // it may have grown meanwhile
    }
}

/// Opens or creates the key and hands it to `write`, which is false when the registry refuses.
TWriteStatus WriteInto(const TRegistryPlace& place, REGSAM view, const auto& write) {
    HKEY handle = nullptr;
    if (RegCreateKeyExW(RootOf(place.Root), std::wstring(TrimmedKey(place.Key)).c_str(), 0, nullptr,
                        REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS | view, nullptr, &handle,
                        nullptr) != ERROR_SUCCESS)
        return TWriteStatus::KeyUnavailable;
    const TKeyHandle key(handle);
    return write(key.Get()) ? TWriteStatus::Done : TWriteStatus::Refused;
}

bool SetValue(HKEY key, const std::wstring& name, TRawValue value) {
    const auto size = static_cast<DWORD>(value.Bytes.size());
    // Windows takes a NUL in that stands behind a text.
    value.Bytes.insert(value.Bytes.end(), sizeof(wchar_t), 0xFF);
    return RegSetValueExW(key, name.c_str(), 0, value.Type, value.Bytes.data(), size) == ERROR_SUCCESS;
}

/// Windows deletes a key only when it has no subkeys.
TWriteStatus DeleteTree(HKEY parent, const std::wstring& name, REGSAM view) {
    TKeyHandle key = Open(parent, name, view);
    if (!key.IsValid()) return TWriteStatus::KeyUnavailable;
    for (const std::wstring& child : SubKeysOf(key.Get()))
        if (DeleteTree(key.Get(), child, view) != TWriteStatus::Done) return TWriteStatus::Refused;
    key.Close();
    return DeleteKeyInView(parent, name.c_str(), view) == ERROR_SUCCESS ? TWriteStatus::Done
                                                                        : TWriteStatus::Refused;
}

}  // namespace

TWin32Registry::TWin32Registry() : FNativeView(ProcessIsWow64() ? KEY_WOW64_64KEY : 0) {}

TReadStatus TWin32Registry::Check(const TRegistryPlace& place, TRegistryView view) const {
    const TKeyHandle key = Open(place.Root, place.Key, view == TRegistryView::Native ? FNativeView : 0);
    if (!key.IsValid()) return TReadStatus::KeyUnavailable;
    if (place.ValueName.empty()) return TReadStatus::Found;
    const LONG error =
        RegQueryValueExW(key.Get(), place.ValueName.c_str(), nullptr, nullptr, nullptr, nullptr);
    return error == ERROR_SUCCESS ? TReadStatus::Found : TReadStatus::ValueMissing;
}

TReadStatus TWin32Registry::Read(const TRegistryPlace& place, TRegistryData& data) const {
    const TKeyHandle key = Open(place.Root, place.Key, FNativeView);
    if (!key.IsValid()) return TReadStatus::KeyUnavailable;
    DWORD type = REG_NONE;
    TBytes bytes;
    if (!QueryValue(key.Get(), place.ValueName, kLargestValue, type, bytes)) return TReadStatus::ValueMissing;
    data = DataOf({type, std::move(bytes)});
    return TReadStatus::Found;
}

TReadStatus TWin32Registry::ReadRaw(const TRegistryPlace& place, TRawValue& value) const {
    const TKeyHandle key = Open(place.Root, place.Key, FNativeView, KEY_READ);
    if (!key.IsValid()) return TReadStatus::KeyUnavailable;
    DWORD type = REG_NONE;
    TBytes bytes;
    if (!QueryValue(key.Get(), place.ValueName, std::numeric_limits<DWORD>::max(), type, bytes))
        return TReadStatus::ValueMissing;
    value = {type, std::move(bytes)};
    return TReadStatus::Found;
}

TWriteStatus TWin32Registry::Write(const TRegistryPlace& place, const TRegistryData& data) {
    return WriteInto(place, FNativeView, [&](HKEY key) {
        if (data.Type == TRegDataType::Unknown) return true;
        auto value = RawValueOf(data);
        return value && SetValue(key, place.ValueName, *std::move(value));
    });
}

TWriteStatus TWin32Registry::WriteRaw(const TRegistryPlace& place, const TRawValue& value) {
    return WriteInto(place, FNativeView, [&](HKEY key) { return SetValue(key, place.ValueName, value); });
}

TWriteStatus TWin32Registry::DeleteValue(const TRegistryPlace& place) {
    const TKeyHandle key = Open(place.Root, place.Key, FNativeView);
    if (!key.IsValid()) return TWriteStatus::KeyUnavailable;
    const LONG error = RegDeleteValueW(key.Get(), place.ValueName.c_str());
    return error == ERROR_SUCCESS || error == ERROR_FILE_NOT_FOUND ? TWriteStatus::Done
                                                                   : TWriteStatus::Refused;
}

TWriteStatus TWin32Registry::DeleteKey(TRootKey root, const std::wstring& key) {
    const std::wstring path(TrimmedKey(key));
    if (path.empty()) return TWriteStatus::Refused;  // a whole root
    return DeleteTree(RootOf(root), path, FNativeView);
}

std::vector<std::wstring> TWin32Registry::SubKeys(TRootKey root, const std::wstring& key) const {
    const TKeyHandle opened = Open(root, key, FNativeView);
    return opened.IsValid() ? SubKeysOf(opened.Get()) : std::vector<std::wstring>();
}

std::vector<std::wstring> TWin32Registry::ValueNames(TRootKey root, const std::wstring& key) const {
    const TKeyHandle opened = Open(root, key, FNativeView, KEY_READ);
    return opened.IsValid() ? ValueNamesOf(opened.Get()) : std::vector<std::wstring>();
}
