// A registry in memory, with faults on request.
#pragma once

#include <algorithm>
#include <optional>
#include <string_view>

#include "engine/reg_value.h"
#include "platform/registry.h"
#include "platform/text.h"

class TFakeRegistry : public TRegistry {
    struct TValue {
        std::wstring Name;
        TRegistryData Data;
        TRawValue Raw;
    };
    /// A key; those below it stand beside it, with longer paths.
    struct TKey {
        std::wstring Path;
        std::vector<TValue> Values;
    };

    static auto FindValue(auto& key, std::wstring_view name) {
        return std::ranges::find_if(key.Values, [&](const auto& each) { return SameText(each.Name, name); });
    }

  public:
    mutable std::size_t Enumerations = 0;  ///< calls of ValueNames

    TFakeRegistry() {
        using enum TRootKey;
        for (const TRootKey root : {ClassesRoot, CurrentUser, LocalMachine, Users, CurrentConfig})
            FKeys.push_back({Path(root, {}), {}});
    }

    /// Puts a value there, whatever the faults; keys are created on the way.
    void Put(const TRegistryPlace& place, const TRegistryData& data) {
        Put(place, data, RawValueOf(data).value_or(TRawValue{}));
    }
    void PutRaw(const TRegistryPlace& place, const TRawValue& raw) { Put(place, DataOf(raw), raw); }
    void PutKey(TRootKey root, std::wstring_view key) { Create(Path(root, key)); }
    /// The stored value, whatever the faults; null when there is none.
    [[nodiscard]] const TRegistryData* Find(const TRegistryPlace& place) const {
        const TKey* key = FindKey(Path(place.Root, place.Key));
        if (key == nullptr) return nullptr;
        const auto value = FindValue(*key, place.ValueName);
        return value == key->Values.end() ? nullptr : &value->Data;
    }
    /// Every key and value, a line each, in alphabetical order.
    [[nodiscard]] std::vector<std::wstring> Lines() const {
        std::vector<std::wstring> lines;
        for (const TKey& key : FKeys) {
            lines.push_back(key.Path);
            for (const auto& [name, data, raw] : key.Values)
                lines.push_back(key.Path + L'[' + name + L"] = " + AsText(data.Value) + L' ' +
                                std::to_wstring(raw.Type) + L' ' + AsText(raw.Bytes));
        }
        std::ranges::sort(lines);
        return lines;
    }
    [[nodiscard]] bool HasKey(TRootKey root, std::wstring_view key) const { return FindKey(Path(root, key)); }

    /// The key and everything below it can be opened for reading only. An empty key is the whole root.
    void DenyAccess(TRootKey root, std::wstring_view key) { FDenied.push_back(Path(root, key)); }
    /// The n-th change from now that reaches its key is refused; 1 is the next one.
    void FailChange(int n) { FChangesToFailure = n; }

    void ClearFaults() { FDenied.clear(); }

    [[nodiscard]] TReadStatus Check(const TRegistryPlace& place, TRegistryView /*view*/) const override {
        if (!Opens(Path(place.Root, place.Key))) return TReadStatus::KeyUnavailable;
        return place.ValueName.empty() || Find(place) ? TReadStatus::Found : TReadStatus::ValueMissing;
    }
    [[nodiscard]] TReadStatus Read(const TRegistryPlace& place, TRegistryData& data) const override {
        if (!Opens(Path(place.Root, place.Key))) return TReadStatus::KeyUnavailable;
        const TRegistryData* stored = Find(place);
        if (stored == nullptr) return TReadStatus::ValueMissing;
        data = *stored;
        return TReadStatus::Found;
    }
    [[nodiscard]] TReadStatus ReadRaw(const TRegistryPlace& place, TRawValue& value) const override {
        const TKey* key = FindKey(Path(place.Root, place.Key));
        if (key == nullptr) return TReadStatus::KeyUnavailable;
        const auto stored = FindValue(*key, place.ValueName);
        if (stored == key->Values.end()) return TReadStatus::ValueMissing;
        value = stored->Raw;
        return TReadStatus::Found;
    }
    [[nodiscard]] TWriteStatus Write(const TRegistryPlace& place, const TRegistryData& data) override {
        const auto raw = RawValueOf(data);
        return Write(place, raw, raw || data.Type == TRegDataType::Unknown);
    }
    [[nodiscard]] TWriteStatus WriteRaw(const TRegistryPlace& place, const TRawValue& value) override {
        return Write(place, value, true);
    }
    [[nodiscard]] TWriteStatus DeleteValue(const TRegistryPlace& place) override {
        const std::wstring path = Path(place.Root, place.Key);
        if (!Opens(path)) return TWriteStatus::KeyUnavailable;
        if (TakeFault()) return TWriteStatus::Refused;
        std::erase_if(Create(path).Values,
                      [&](const auto& each) { return SameText(each.Name, place.ValueName); });
        return TWriteStatus::Done;
    }
    [[nodiscard]] TWriteStatus DeleteKey(TRootKey root, const std::wstring& key) override {
        const std::wstring path = Path(root, key);
        if (path == Path(root, {})) return TWriteStatus::Refused;
        if (!Opens(path)) return TWriteStatus::KeyUnavailable;
        if (TakeFault()) return TWriteStatus::Refused;
        std::erase_if(FKeys, [&](const TKey& each) { return IsBelow(each.Path, path); });
        return TWriteStatus::Done;
    }
    [[nodiscard]] std::vector<std::wstring> SubKeys(TRootKey root, const std::wstring& key) const override {
        std::vector<std::wstring> names;
        const std::wstring path = Path(root, key) + L'\\';
        if (!IsDenied(path))
            for (const TKey& each : FKeys)
                if (SameText(each.Path.substr(0, each.Path.rfind(L'\\') + 1), path))
                    names.push_back(each.Path.substr(path.size()));
        return names;
    }
    [[nodiscard]] std::vector<std::wstring> ValueNames(TRootKey root,
                                                       const std::wstring& key) const override {
        ++Enumerations;
        std::vector<std::wstring> names;
        if (const TKey* found = FindKey(Path(root, key)))
            for (const TValue& value : found->Values) names.push_back(value.Name);
        return names;
    }

  private:
    TWriteStatus Write(const TRegistryPlace& place, const std::optional<TRawValue>& raw, bool fits) {
        if (place.Root == TRootKey::DynData || IsDenied(Path(place.Root, place.Key)))
            return TWriteStatus::KeyUnavailable;
        PutKey(place.Root, place.Key);
        if (TakeFault() || !fits) return TWriteStatus::Refused;
        if (raw) PutRaw(place, *raw);
        return TWriteStatus::Done;
    }
    void Put(const TRegistryPlace& place, const TRegistryData& data, const TRawValue& raw) {
        TKey& key = Create(Path(place.Root, place.Key));
        auto value = FindValue(key, place.ValueName);
        if (value == key.Values.end()) value = key.Values.insert(value, {place.ValueName, {}, {}});
        value->Data = data;
        value->Raw = raw;
    }
    /// The root and the names from there on, with one backslash before each; surplus ones do not count.
    static std::wstring Path(TRootKey root, std::wstring_view key) {
        // HKEY_CLASSES_ROOT shows a key of the machine.
        if (root == TRootKey::ClassesRoot)
            return Path(TRootKey::LocalMachine, L"Software\\Classes\\" + std::wstring(key));
        std::wstring path = std::to_wstring(static_cast<std::uint32_t>(root)) + L'\\';
        for (const wchar_t c : key)
            if (c != L'\\' || path.back() != L'\\') path += c;
        if (path.back() == L'\\') path.pop_back();
        return path;
    }
    static bool IsBelow(std::wstring_view path, std::wstring_view above) {
        return SameText(path.substr(0, above.size()), above) &&
               (path.size() == above.size() || path[above.size()] == L'\\');
    }
    [[nodiscard]] const TKey* FindKey(const std::wstring& path) const {
        const auto key =
            std::ranges::find_if(FKeys, [&](const TKey& each) { return SameText(each.Path, path); });
        return key == FKeys.end() ? nullptr : &*key;
    }
    [[nodiscard]] bool IsDenied(const std::wstring& path) const {
        return std::ranges::any_of(FDenied, [&](const std::wstring& above) { return IsBelow(path, above); });
    }
    /// Whether a caller may open the key.
    [[nodiscard]] bool Opens(const std::wstring& path) const { return FindKey(path) && !IsDenied(path); }
    TKey& Create(const std::wstring& path) {
        if (const TKey* found = FindKey(path)) return const_cast<TKey&>(*found);
        Create(path.substr(0, path.rfind(L'\\')));
        FKeys.push_back({path, {}});
        return FKeys.back();
    }
    /// Counts a change that has reached its key, and answers whether it has to fail.
    bool TakeFault() { return FChangesToFailure > 0 && --FChangesToFailure == 0; }

    std::vector<TKey> FKeys;
    std::vector<std::wstring> FDenied;  ///< paths
    int FChangesToFailure = 0;          ///< 0 = none will fail
};
