#include "tests/program/registry_values.h"

#include <stdexcept>

namespace {

constexpr REGSAM kView = 0x0100;  // KEY_WOW64_64KEY, which the headers for Windows 2000 hide

TStoredValue Value(DWORD type, const void* data, std::size_t size) {
    const auto* bytes = static_cast<const BYTE*>(data);
    return {type, {bytes, bytes + size}};
}

}  // namespace

TStoredValue Dword(DWORD number) { return Value(REG_DWORD, &number, sizeof number); }
TStoredValue Text(const std::wstring& text) {
    return Value(REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

std::optional<TStoredValue> Stored(const TValuePlace& place) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(place.Root, place.Key, 0, KEY_QUERY_VALUE | kView, &key) != ERROR_SUCCESS)
        return std::nullopt;
    BYTE data[1024];
    DWORD size = sizeof data;
    DWORD type = 0;
    const LONG result = RegQueryValueExW(key, place.Name, nullptr, &type, data, &size);
    RegCloseKey(key);
    return result == ERROR_SUCCESS ? std::optional(Value(type, data, size)) : std::nullopt;
}

void Store(const TValuePlace& place, const std::optional<TStoredValue>& value) {
    if (!value && !Stored(place)) return;
    HKEY key = nullptr;
    LONG result =
        RegCreateKeyExW(place.Root, place.Key, 0, nullptr, 0, KEY_SET_VALUE | kView, nullptr, &key, nullptr);
    if (result == ERROR_SUCCESS) {
        result = value ? RegSetValueExW(key, place.Name, 0, value->first, value->second.data(),
                                        static_cast<DWORD>(value->second.size()))
                       : RegDeleteValueW(key, place.Name);
        RegCloseKey(key);
    }
    if (result != ERROR_SUCCESS) throw std::runtime_error("storing fails: error " + std::to_string(result));
}

TValueKeeper::TValueKeeper(const std::vector<TValuePlace>& places) {
    for (const TValuePlace& place : places) FKept.emplace_back(place, Stored(place));
}

TValueKeeper::~TValueKeeper() {
    for (const auto& [place, value] : FKept) Store(place, value);
}
