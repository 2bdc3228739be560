#include "tests/fakes/fake_registry.h"

#include <algorithm>

#include "platform/text.h"

struct TFakeRegistry::TKey {
    struct TValue {
        std::wstring Name;
        TRegistryData Data;
    };

    std::wstring Name;
    std::vector<std::unique_ptr<TKey>> Keys;
    std::vector<TValue> Values;

    [[nodiscard]] auto FindKey(std::wstring_view name) {
        return std::ranges::find_if(Keys, [&](const auto& key) { return SameText(key->Name, name); });
    }
    [[nodiscard]] auto FindValue(std::wstring_view name) {
        return std::ranges::find_if(Values, [&](const TValue& value) { return SameText(value.Name, name); });
    }
    void Set(std::wstring_view name, const TRegistryData& data) {
        const auto value = FindValue(name);
        if (value != Values.end())
            value->Data = data;
        else
            Values.push_back({std::wstring(name), data});
    }
};

namespace {

/// The names along a key's path; surplus backslashes do not count.
std::vector<std::wstring_view> Names(std::wstring_view path) {
    std::vector<std::wstring_view> names;
    while (!path.empty()) {
        const std::size_t length = std::min(path.find(L'\\'), path.size());
        if (length > 0) names.push_back(path.substr(0, length));
        path.remove_prefix(std::min(length + 1, path.size()));
    }
    return names;
}

std::wstring_view RootName(TRootKey root) {
    switch (root) {
        case TRootKey::ClassesRoot:
            return L"classes";
        case TRootKey::CurrentUser:
            return L"user";
        case TRootKey::LocalMachine:
            return L"machine";
    }
    return {};
}

/// The names from the common parent of the roots on.
std::vector<std::wstring_view> NamesBelow(std::wstring_view rootName, std::wstring_view path) {
    std::vector<std::wstring_view> names = Names(path);
    names.insert(names.begin(), rootName);
    return names;
}

bool Fits(const TRegistryData& data) {
    switch (data.Type) {
        case TRegDataType::Unknown:
            return true;
        case TRegDataType::String:
        case TRegDataType::ExpandString:
            return std::holds_alternative<std::wstring>(data.Value);
        case TRegDataType::Dword:
            return std::holds_alternative<std::int32_t>(data.Value);
        case TRegDataType::Binary:
            return std::holds_alternative<TBytes>(data.Value);
    }
    return false;
}

/// As it is read back: text ends at its first NUL.
TRegistryData Stored(TRegistryData data) {
    if (auto* text = std::get_if<std::wstring>(&data.Value))
        text->resize(std::min(text->find(L'\0'), text->size()));
    return data;
}

}  // namespace

TFakeRegistry::TFakeRegistry() : FRoots(std::make_unique<TKey>()) {
    for (const TRootKey root : {TRootKey::ClassesRoot, TRootKey::CurrentUser, TRootKey::LocalMachine})
        Create(root, {});
}
TFakeRegistry::~TFakeRegistry() = default;

void TFakeRegistry::Put(const TRegistryPlace& place, const TRegistryData& data) {
    Create(place.Root, place.Key).Set(place.ValueName, data);
}

void TFakeRegistry::PutKey(TRootKey root, std::wstring_view key) { Create(root, key); }

const TRegistryData* TFakeRegistry::Find(const TRegistryPlace& place) const {
    TKey* key = FindKey(place.Root, place.Key);
    if (key == nullptr) return nullptr;
    const auto value = key->FindValue(place.ValueName);
    return value == key->Values.end() ? nullptr : &value->Data;
}

bool TFakeRegistry::HasKey(TRootKey root, std::wstring_view key) const {
    return FindKey(root, key) != nullptr;
}

void TFakeRegistry::ClearFaults() {
    FDenied.clear();
    FRefused.clear();
    FHidden.clear();
    FChangesToFailure = 0;
}

TReadStatus TFakeRegistry::Check(const TRegistryPlace& place, TRegistryView view) const {
    if (view == TRegistryView::Process && IsBelow(FHidden, place.Root, place.Key))
        return TReadStatus::KeyUnavailable;
    if (Open(place.Root, place.Key) == nullptr) return TReadStatus::KeyUnavailable;
    if (!place.ValueName.empty() && Find(place) == nullptr) return TReadStatus::ValueMissing;
    return TReadStatus::Found;
}

TReadStatus TFakeRegistry::Read(const TRegistryPlace& place, TRegistryData& data) const {
    if (Open(place.Root, place.Key) == nullptr) return TReadStatus::KeyUnavailable;
    const TRegistryData* stored = Find(place);
    if (stored == nullptr) return TReadStatus::ValueMissing;
    data = *stored;
    return TReadStatus::Found;
}

TWriteStatus TFakeRegistry::Write(const TRegistryPlace& place, const TRegistryData& data) {
    const TWriteStatus result = DoWrite(place, data);
    FLog.push_back({TRegistryCall::Write, place, data, result});
    return result;
}

TWriteStatus TFakeRegistry::DeleteValue(const TRegistryPlace& place) {
    const TWriteStatus result = DoDeleteValue(place);
    FLog.push_back({TRegistryCall::DeleteValue, place, {}, result});
    return result;
}

TWriteStatus TFakeRegistry::DeleteKey(TRootKey root, const std::wstring& key) {
    const TWriteStatus result = DoDeleteKey(root, key);
    FLog.push_back({TRegistryCall::DeleteKey, {root, key, {}}, {}, result});
    return result;
}

std::vector<std::wstring> TFakeRegistry::SubKeys(TRootKey root, const std::wstring& key) const {
    std::vector<std::wstring> names;
    if (const TKey* parent = Open(root, key))
        for (const auto& child : parent->Keys) names.push_back(child->Name);
    return names;
}

TFakeRegistry::TKey* TFakeRegistry::FindKey(TRootKey root, std::wstring_view key) const {
    TKey* found = FRoots.get();
    for (const std::wstring_view name : NamesBelow(RootName(root), key)) {
        const auto child = found->FindKey(name);
        if (child == found->Keys.end()) return nullptr;
        found = child->get();
    }
    return found;
}

TFakeRegistry::TKey* TFakeRegistry::Open(TRootKey root, std::wstring_view key) const {
    return IsBelow(FDenied, root, key) ? nullptr : FindKey(root, key);
}

TFakeRegistry::TKey& TFakeRegistry::Create(TRootKey root, std::wstring_view key) {
    TKey* made = FRoots.get();
    for (const std::wstring_view name : NamesBelow(RootName(root), key)) {
        auto child = made->FindKey(name);
        if (child == made->Keys.end()) {
            made->Keys.push_back(std::make_unique<TKey>());
            made->Keys.back()->Name = name;
            child = made->Keys.end() - 1;
        }
        made = child->get();
    }
    return *made;
}

bool TFakeRegistry::TakeFault(TRootKey root, std::wstring_view key) {
    const bool fails = FChangesToFailure == 1;
    if (FChangesToFailure > 0) --FChangesToFailure;
    return fails || IsBelow(FRefused, root, key);
}

bool TFakeRegistry::IsBelow(const std::vector<TKeyPlace>& places, TRootKey root, std::wstring_view key) {
    const std::vector<std::wstring_view> names = Names(key);
    return std::ranges::any_of(places, [&](const TKeyPlace& place) {
        const std::vector<std::wstring_view> above = Names(place.Key);
        return place.Root == root && above.size() <= names.size() &&
               std::equal(above.begin(), above.end(), names.begin(), SameText);
    });
}

TWriteStatus TFakeRegistry::DoWrite(const TRegistryPlace& place, const TRegistryData& data) {
    if (IsBelow(FDenied, place.Root, place.Key)) return TWriteStatus::KeyUnavailable;
    const bool fails = TakeFault(place.Root, place.Key);
    TKey& key = Create(place.Root, place.Key);
    if (fails || !Fits(data)) return TWriteStatus::Refused;
    if (data.Type != TRegDataType::Unknown) key.Set(place.ValueName, Stored(data));
    return TWriteStatus::Done;
}

TWriteStatus TFakeRegistry::DoDeleteValue(const TRegistryPlace& place) {
    TKey* key = Open(place.Root, place.Key);
    if (key == nullptr) return TWriteStatus::KeyUnavailable;
    if (TakeFault(place.Root, place.Key)) return TWriteStatus::Refused;
    const auto value = key->FindValue(place.ValueName);
    if (value != key->Values.end()) key->Values.erase(value);
    return TWriteStatus::Done;
}

TWriteStatus TFakeRegistry::DoDeleteKey(TRootKey root, std::wstring_view key) {
    const std::vector<std::wstring_view> names = Names(key);
    if (names.empty()) return TWriteStatus::Refused;
    if (Open(root, key) == nullptr) return TWriteStatus::KeyUnavailable;
    if (TakeFault(root, key)) return TWriteStatus::Refused;
    const auto parentLength = static_cast<std::size_t>(names.back().data() - key.data());
    TKey* parent = FindKey(root, key.substr(0, parentLength));
    parent->Keys.erase(parent->FindKey(names.back()));
    return TWriteStatus::Done;
}
