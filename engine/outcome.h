// What operations make of what is there, without carrying them out.
#pragma once

#include <unordered_map>

#include "engine/change_set.h"
#include "platform/text.h"

/// The key of the machine that stands behind one of HKEY_CLASSES_ROOT; any other is what it is.
[[nodiscard]] TRegistryTarget Unmerged(TRegistryTarget target);

class TOutcome {
  public:
    /// Comes after what was added before.
    void Add(const TOperation& operation);

    /// What will be there, where `content` is there now.
    [[nodiscard]] TContent Of(const TTarget& target, TContent content) const;

  private:
    template <typename T>
    using TByName = std::unordered_map<std::wstring, T, TTextHash, TTextEqual>;

    struct TValue {
        std::size_t Time = 0;
        std::optional<TRawValue> Raw;  ///< nothing = it is deleted
    };
    /// Times count the operations; 0 = it did not happen.
    struct TKey {
        std::size_t Created = 0;  ///< the key, or one below it
        std::size_t Deleted = 0;
        TByName<TValue> Values;
    };

    void Add(const TRegistryTarget& target, const TRegistryEffect& effect);
    [[nodiscard]] TRegistryContent Of(const TRegistryTarget& target, TRegistryContent content) const;

    std::size_t FTime = 0;
    TByName<TKey> FKeys;
    std::unordered_map<std::uint32_t, TSpiData> FParameters;  ///< by the code that sets them
    TByName<TServiceStatus> FServices;
    TByName<TPreferenceContent> FPreferences;
};
