// A registry in memory, with a log of every change and faults on request.
#pragma once

#include <memory>
#include <string_view>

#include "platform/registry.h"

/// What a logged call asked for.
enum class TRegistryCall { Write, DeleteValue, DeleteKey };

/// A call that was meant to change something, as it was passed, with its answer. DeleteKey has no value name and
/// only Write has data.
struct TRegistryLogEntry {
    TRegistryCall Call = TRegistryCall::Write;
    TRegistryPlace Place;
    TRegistryData Data;
    TWriteStatus Result = TWriteStatus::Done;
};

class TFakeRegistry : public TRegistry {
  public:
    TFakeRegistry();
    ~TFakeRegistry() override;

    /// Puts a value there; keys are created on the way. Not logged, and not subject to faults.
    void Put(const TRegistryPlace& place, const TRegistryData& data);
    void PutKey(TRootKey root, std::wstring_view key);
    /// The stored value, whatever the faults; null when there is none.
    [[nodiscard]] const TRegistryData* Find(const TRegistryPlace& place) const;
    [[nodiscard]] bool HasKey(TRootKey root, std::wstring_view key) const;

    [[nodiscard]] const std::vector<TRegistryLogEntry>& Log() const { return FLog; }
    void ClearLog() { FLog.clear(); }

    /// The key and everything below it cannot be opened. An empty key is the whole root.
    void DenyAccess(TRootKey root, std::wstring_view key) { FDenied.push_back({root, std::wstring(key)}); }
    /// The key and everything below it open, but refuse every change.
    void RefuseChanges(TRootKey root, std::wstring_view key) {
        FRefused.push_back({root, std::wstring(key)});
    }
    /// The key and everything below it are in the native view alone, as on a 64-bit Windows.
    void HideFromProcessView(TRootKey root, std::wstring_view key) {
        FHidden.push_back({root, std::wstring(key)});
    }
    /// The n-th change from now that reaches its key is refused; 1 is the next one.
    void FailChange(int n) { FChangesToFailure = n; }
    /// Lifts every fault.
    void ClearFaults();

    [[nodiscard]] TReadStatus Check(const TRegistryPlace& place, TRegistryView view) const override;
    [[nodiscard]] TReadStatus Read(const TRegistryPlace& place, TRegistryData& data) const override;
    [[nodiscard]] TWriteStatus Write(const TRegistryPlace& place, const TRegistryData& data) override;
    [[nodiscard]] TWriteStatus DeleteValue(const TRegistryPlace& place) override;
    [[nodiscard]] TWriteStatus DeleteKey(TRootKey root, const std::wstring& key) override;
    [[nodiscard]] std::vector<std::wstring> SubKeys(TRootKey root, const std::wstring& key) const override;

  private:
    struct TKey;
    struct TKeyPlace {
        TRootKey Root;
        std::wstring Key;
    };

    [[nodiscard]] TKey* FindKey(TRootKey root, std::wstring_view key) const;
    /// The key as a caller may open it.
    [[nodiscard]] TKey* Open(TRootKey root, std::wstring_view key) const;
    TKey& Create(TRootKey root, std::wstring_view key);
    /// Counts a change that has reached its key, and answers whether it has to fail.
    bool TakeFault(TRootKey root, std::wstring_view key);
    static bool IsBelow(const std::vector<TKeyPlace>& places, TRootKey root, std::wstring_view key);

    TWriteStatus DoWrite(const TRegistryPlace& place, const TRegistryData& data);
    TWriteStatus DoDeleteValue(const TRegistryPlace& place);
    TWriteStatus DoDeleteKey(TRootKey root, std::wstring_view key);

    std::unique_ptr<TKey> FRoots;  ///< its children are the roots
    std::vector<TRegistryLogEntry> FLog;
    std::vector<TKeyPlace> FDenied;
    std::vector<TKeyPlace> FRefused;
    std::vector<TKeyPlace> FHidden;
    int FChangesToFailure = 0;  ///< 0 = none will fail
};
