#include "engine/registry_tree.h"

#include <map>

namespace {

void AddTree(const TRegistry& registry, TRootKey root, const std::wstring& key, TChangeSet& tree) {
    tree.push_back({{}, TRegistryTarget{root, key, {}, true}, TRegistryEffect{}});
    for (const std::wstring& name : registry.ValueNames(root, key)) {
        TRawValue value;
        if (registry.ReadRaw({root, key, name}, value) == TReadStatus::Found)
            tree.push_back(
                {{}, TRegistryTarget{root, key, name}, TRegistryEffect{TRegAction::Write, std::move(value)}});
    }
    for (const std::wstring& name : registry.SubKeys(root, key)) {
        std::wstring below = key + L'\\';
        AddTree(registry, root, below += name, tree);
    }
}

/// The places of a tree, by their names.
std::map<std::wstring, const TOperation*> Index(const TChangeSet& tree) {
    std::map<std::wstring, const TOperation*> index;
    for (const TOperation& operation : tree) {
        const auto& target = std::get<TRegistryTarget>(operation.Target);
        // NUL is in no name.
        index[target.IsKey ? target.Key : target.Key + L'\0' + target.ValueName] = &operation;
    }
    return index;
}

TRegistryContent ContentMadeBy(const TOperation& operation) {
    return {.HasKey = true, .Value = std::get<TRegistryEffect>(operation.Effect).Value};
}

}  // namespace

TChangeSet TreeOf(TSystem& system, TRootKey root, const std::wstring& key) {
    TChangeSet tree;
    const TTarget target = TRegistryTarget{root, key, {}, true};
    if (std::get<TRegistryContent>(ContentOf(system, target, nullptr)).HasKey)
        AddTree(system.Registry, root, key, tree);
    return tree;
}

TChangeSet Restoring(const TChangeSet& earlier, const TChangeSet& later) {
    TChangeSet back;
    const auto before = Index(earlier);
    const auto after = Index(later);
    for (const auto& [name, operation] : before) {
        const auto found = after.find(name);
        if (found != after.end() && found->second->Effect == operation->Effect) continue;
        back.push_back(*operation);
        back.back().Left =
            found == after.end()
                ? TRegistryContent{.HasKey = after.contains(std::get<TRegistryTarget>(operation->Target).Key)}
                : ContentMadeBy(*found->second);
    }
    for (const auto& [name, operation] : after) {
        if (before.contains(name)) continue;
        const auto& target = std::get<TRegistryTarget>(operation->Target);
        // What is above a new key or value is new itself, and goes with everything in it.
        const std::wstring above = target.IsKey ? target.Key.substr(0, target.Key.rfind(L'\\')) : target.Key;
        if (!before.contains(above)) continue;
        back.push_back({{},
                        target,
                        TRegistryEffect{target.IsKey ? TRegAction::DeleteKey : TRegAction::DeleteValue},
                        TRestart::None,
                        ContentMadeBy(*operation)});
    }
    return back;
}
