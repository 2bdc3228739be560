#include "engine/way_back.h"

#include <algorithm>
#include <unordered_set>

#include "base/decimal.h"
#include "engine/outcome.h"
#include "engine/registry_tree.h"

namespace {

class TWayBack {
  public:
    TWayBack(TSystem& system, const TChangeSet& operations, const TPreferenceStore* preferences)
        : FSystem(system), FPreferences(preferences) {
        for (const TOperation& operation : operations) FOutcome.Add(operation);
    }

    void Add(const TOperation& operation) {
        FOperation = &operation;
        if (const auto* effect = std::get_if<TRegistryEffect>(&operation.Effect)) {
            const auto places = Places(std::get<TRegistryTarget>(operation.Target));
            FIsEither = places.size() > 1;
            for (const TRegistryTarget& target : places) Add(target, *effect);
            FIsEither = false;
        } else if (std::holds_alternative<TSpiData>(operation.Effect)) {
            if (const auto data = std::get<TParameterContent>(Content(operation.Target)))
                Restore(operation.Target, *data);
        } else if (std::holds_alternative<TServiceStatus>(operation.Effect)) {
            if (const auto status = std::get<TServiceContent>(Content(operation.Target)))
                Restore(operation.Target, *status);
        } else if (std::holds_alternative<TPreferenceContent>(operation.Effect)) {
            Restore(operation.Target, std::get<TPreferenceContent>(Content(operation.Target)));
        }
    }

    [[nodiscard]] TChangeSet Take() { return std::move(FBack); }

  private:
    using TNames = std::unordered_set<std::wstring, TTextHash, TTextEqual>;

    [[nodiscard]] TContent Content(const TTarget& target) const {
        return ContentOf(FSystem, target, FPreferences);
    }
    [[nodiscard]] bool HasKey(const TRegistryTarget& key) const {
        return std::get<TRegistryContent>(Content(key)).HasKey;
    }

    void Restore(TTarget target, TEffect effect) {
        std::optional<TContent> left;
        if (!FIsEither) left = FOutcome.Of(target, Content(target));
        FBack.push_back({FOperation->Setting, std::move(target), std::move(effect), FOperation->Restart,
                         std::move(left)});
    }

    /// Where an operation may show. HKEY_CLASSES_ROOT is two keys in one: what the user's has is changed there.
    [[nodiscard]] std::vector<TRegistryTarget> Places(const TRegistryTarget& target) const {
        const TRegistryTarget machine = Unmerged(target);
        TRegistryTarget user = machine;
        user.Root = TRootKey::CurrentUser;
        if (target.Root == TRootKey::ClassesRoot &&
            HasKey({.Root = user.Root, .Key = user.Key, .IsKey = true}))
            return {machine, user};
        return {machine};
    }

    /// The name as it is spelt there.
    static std::wstring Spelt(const std::vector<std::wstring>& names, std::wstring name) {
        const auto found =
            std::ranges::find_if(names, [&](const std::wstring& each) { return SameText(each, name); });
        return found == names.end() ? name : *found;
    }
    /// The same for a value of a key that is there.
    std::wstring SpeltValue(const TRegistryTarget& target) {
        const std::wstring root = DecimalText(static_cast<std::int64_t>(target.Root));
        const auto [known, isNew] = FValueNames.try_emplace(root + L'\\' + target.Key);
        if (isNew) {
            for (std::wstring& name : FSystem.Registry.ValueNames(target.Root, target.Key))
                known->second.insert(std::move(name));
        }
        const auto found = known->second.find(target.ValueName);
        return found == known->second.end() ? target.ValueName : *found;
    }
    [[nodiscard]] TRegistryTarget SpeltKey(TRegistryTarget key) const {
        const std::size_t end = key.Key.rfind(L'\\');
        if (end == std::wstring::npos) return key;
        const std::wstring above = key.Key.substr(0, end);
        key.Key = above + L'\\' + Spelt(FSystem.Registry.SubKeys(key.Root, above), key.Key.substr(end + 1));
        return key;
    }

    void Add(TRegistryTarget target, const TRegistryEffect& effect) {
        TRegistryTarget key{.Root = target.Root, .Key = target.Key, .IsKey = true};
        if (effect.Action == TRegAction::DeleteKey) {
            if (!HasKey(key)) return;
            key = SpeltKey(std::move(key));
            Restore(key, TRegistryEffect{TRegAction::DeleteKey});
            for (const TOperation& operation : TreeOf(FSystem, key.Root, key.Key))
                Restore(operation.Target, operation.Effect);
        } else if (HasKey(key)) {
            if (target.IsKey) return;
            target.ValueName = SpeltValue(target);
            const auto value = std::get<TRegistryContent>(Content(target)).Value;
            Restore(target, TRegistryEffect{value ? TRegAction::Write : TRegAction::DeleteValue, value});
        } else if (effect.Action == TRegAction::Write) {
            // The value goes with its key; a reader of the set looks for it by itself.
            if (effect.Value) Restore(target, TRegistryEffect{TRegAction::DeleteValue});
            Restore(FirstMissing(std::move(key)), TRegistryEffect{TRegAction::DeleteKey});
        }
    }

    /// The key, or the highest one above it that does not exist either.
    [[nodiscard]] TRegistryTarget FirstMissing(TRegistryTarget key) const {
        for (;;) {
            const std::size_t end = key.Key.rfind(L'\\');
            if (end == std::wstring::npos) return key;
            TRegistryTarget above = key;
            above.Key.resize(end);
            if (HasKey(above)) return key;
            key = std::move(above);
        }
    }

    TSystem& FSystem;
    const TPreferenceStore* FPreferences;
    TOutcome FOutcome;
    /// Of each key that was asked for: a file may change thousands of its values.
    std::unordered_map<std::wstring, TNames, TTextHash, TTextEqual> FValueNames;
    const TOperation* FOperation = nullptr;
    bool FIsEither = false;  ///< which place of several it changes is not known
    TChangeSet FBack;
};

}  // namespace

TChangeSet WayBack(TSystem& system, const TChangeSet& operations, const TPreferenceStore* preferences) {
    TWayBack back(system, operations, preferences);
    for (const TOperation& operation : operations) back.Add(operation);
    return back.Take();
}

bool ChangesNothing(TSystem& system, const TChangeSet& operations, const TPreferenceStore* preferences) {
    return std::ranges::all_of(ChangesOf(system, operations, preferences),
                               [](const TChange& change) { return change.Before == change.After; });
}
