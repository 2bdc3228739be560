#include "tests/program/registry_values.h"

#include <sddl.h>

#include <cstring>
#include <iomanip>
#include <ostream>
#include <stdexcept>

namespace {

constexpr REGSAM kView = 0x0100;  // KEY_WOW64_64KEY, which the headers for Windows 2000 hide

TStoredValue Number(DWORD type, const void* number, std::size_t size) {
    TStoredValue value{type, std::vector<BYTE>(size)};
    std::memcpy(value.Bytes.data(), number, size);
    return value;
}

void Require(LONG result, const char* what) {
    if (result != ERROR_SUCCESS)
        throw std::runtime_error(std::string(what) + " fails: error " + std::to_string(result));
}

}  // namespace

void PrintTo(const TStoredValue& value, std::ostream* stream) {
    *stream << "type " << value.Type << ", bytes" << std::hex << std::setfill('0');
    for (const BYTE byte : value.Bytes) *stream << ' ' << std::setw(2) << static_cast<unsigned>(byte);
    *stream << std::dec;
}

TStoredValue Dword(DWORD number) { return Number(REG_DWORD, &number, sizeof number); }
TStoredValue Qword(ULONGLONG number) { return Number(REG_QWORD, &number, sizeof number); }
TStoredValue Text(const std::wstring& text) {
    return Number(REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}
TStoredValue Binary(std::initializer_list<BYTE> bytes) { return {REG_BINARY, bytes}; }

std::optional<TStoredValue> Stored(const TValuePlace& place) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(place.Root, place.Key, 0, KEY_QUERY_VALUE | kView, &key) != ERROR_SUCCESS)
        return std::nullopt;
    TStoredValue value{0, std::vector<BYTE>(1024)};
    auto size = static_cast<DWORD>(value.Bytes.size());
    const LONG result = RegQueryValueExW(key, place.Name, nullptr, &value.Type, value.Bytes.data(), &size);
    RegCloseKey(key);
    if (result == ERROR_FILE_NOT_FOUND) return std::nullopt;
    Require(result, "reading a value");
    value.Bytes.resize(size);
    return value;
}

void Store(const TValuePlace& place, const std::optional<TStoredValue>& value) {
    HKEY key = nullptr;
    if (!value) {
        if (RegOpenKeyExW(place.Root, place.Key, 0, KEY_SET_VALUE | kView, &key) != ERROR_SUCCESS) return;
        RegDeleteValueW(key, place.Name);
        RegCloseKey(key);
        return;
    }
    Require(
        RegCreateKeyExW(place.Root, place.Key, 0, nullptr, 0, KEY_SET_VALUE | kView, nullptr, &key, nullptr),
        "creating a key");
    const LONG result = RegSetValueExW(key, place.Name, 0, value->Type, value->Bytes.data(),
                                       static_cast<DWORD>(value->Bytes.size()));
    RegCloseKey(key);
    Require(result, "storing a value");
}

TValueKeeper::TValueKeeper(std::vector<TValuePlace> places) {
    for (const TValuePlace& place : places) FKept.push_back({place, Stored(place)});
}

TValueKeeper::~TValueKeeper() {
    for (const TKept& kept : FKept) Store(kept.Place, kept.Value);
}

TReadOnlyKey::TReadOnlyKey(HKEY root, const wchar_t* key) {
    Require(RegOpenKeyExW(root, key, 0, READ_CONTROL | WRITE_DAC | kView, &FKey), "opening a key");
    DWORD size = 4096;
    FRights.resize(size);
    Require(RegGetKeySecurity(FKey, DACL_SECURITY_INFORMATION, FRights.data(), &size),
            "reading a key's rights");

    PSECURITY_DESCRIPTOR readOnly = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;KR;;;WD)", SDDL_REVISION_1, &readOnly,
                                                         nullptr);
    const LONG result = RegSetKeySecurity(FKey, DACL_SECURITY_INFORMATION, readOnly);
    LocalFree(readOnly);
    Require(result, "changing a key's rights");

    HKEY full = nullptr;
    FEffective = RegOpenKeyExW(root, key, 0, KEY_ALL_ACCESS | kView, &full) == ERROR_ACCESS_DENIED;
    if (full != nullptr) RegCloseKey(full);
}

TReadOnlyKey::~TReadOnlyKey() {
    RegSetKeySecurity(FKey, DACL_SECURITY_INFORMATION, FRights.data());
    RegCloseKey(FKey);
}
