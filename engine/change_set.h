// What one Apply does, as a list of single changes: what is there now, and what will be.
#pragma once

#include <string_view>

#include "engine/restart.h"
#include "engine/sys_control.h"
#include "platform/service_control.h"

// The places of changes.

struct TRegistryTarget {
    TRootKey Root = TRootKey::CurrentUser;
    std::wstring Key;        ///< without backslashes at its ends
    std::wstring ValueName;  ///< empty = the key's default value
    bool IsKey = false;  ///< the key itself with all that is in it and below it; there is no value name then

    bool operator==(const TRegistryTarget&) const = default;
};

/// A parameter of SystemParametersInfoW.
struct TParameterTarget {
    std::uint32_t Set = 0;      ///< SPI_SET… code
    std::uint32_t Get = 0;      ///< SPI_GET… code; 0 = Windows does not tell it
    bool InParam = false;       ///< a number that is set in uiParam; otherwise in pvParam
    std::size_t BlockSize = 0;  ///< of the structure that pvParam points to; 0 = it is a number

    bool operator==(const TParameterTarget&) const = default;
};

struct TServiceTarget {
    std::wstring Service;

    bool operator==(const TServiceTarget&) const = default;
};

struct TPreferenceTarget {
    std::wstring QuotedName;

    bool operator==(const TPreferenceTarget&) const = default;
};

using TTarget = std::variant<TRegistryTarget, TParameterTarget, TServiceTarget, TPreferenceTarget>;

// What is there.

struct TRegistryContent {
    bool HasKey = false;
    std::optional<TRawValue> Value{};  ///< nothing when it is missing; always nothing of a key itself

    bool operator==(const TRegistryContent&) const = default;
};
using TParameterContent = std::optional<TSpiData>;       ///< nothing when Windows does not tell it
using TServiceContent = std::optional<TServiceStatus>;   ///< nothing when there is no such service
using TPreferenceContent = std::optional<std::wstring>;  ///< nothing when no statement names it

using TContent = std::variant<TRegistryContent, TParameterContent, TServiceContent, TPreferenceContent>;

// What an operation does to its target, whatever is there.

struct TRegistryEffect {
    TRegAction Action = TRegAction::Write;
    std::optional<TRawValue> Value{};  ///< nothing of a write = the key is created and nothing is written

    bool operator==(const TRegistryEffect&) const = default;
};

/// What comes to be there; nothing = the operation is not carried out.
using TEffect = std::variant<std::monostate, TRegistryEffect, TSpiData, TServiceStatus, TPreferenceContent>;

/// One of the steps of a change set. The effect is of the target's kind.
struct TOperation {
    std::wstring Setting;  ///< the name of the control that stands for it; empty when there is none
    TTarget Target;
    TEffect Effect;
    TRestart Restart = TRestart::None;  ///< before it takes effect
    /// Of a way back: what the changes that it takes back left there.
    std::optional<TContent> Left{};

    bool operator==(const TOperation&) const = default;
};

/// Operations in the order in which they are carried out.
using TChangeSet = std::vector<TOperation>;

/// What one operation of a set comes to.
struct TChange {
    std::wstring Setting;  ///< the name of the control that stands for it
    TTarget Target;
    TContent Before;                    ///< what is there now
    TContent After;                     ///< what will be there when all changes of the set are made
    TRestart Restart = TRestart::None;  ///< before it takes effect
    bool IsOverwritten = false;         ///< a later change of the set leaves something else there

    bool operator==(const TChange&) const = default;
};

/// Preferences that a program keeps in a file of its own. They are changed in memory and saved as a whole.
class TPreferenceStore {
  public:
    struct TEdited {
        std::wstring Setting;  ///< see TChange
        std::wstring QuotedName;
        TPreferenceContent After;  ///< what the file will say unless a later change decides
    };

    virtual ~TPreferenceStore() = default;

    /// What will be saved, in the order in which it was last changed.
    [[nodiscard]] virtual std::vector<TEdited> Edited() const = 0;
    /// What the file says now; nothing when it does not name the preference. Of the empty name the whole file, a
    /// character for each byte.
    [[nodiscard]] virtual TPreferenceContent Saved(std::wstring_view quotedName) const = 0;
    /// Has the file say something else once it is saved; nothing = it does not name the preference.
    virtual void Change(const std::wstring& quotedName, const TPreferenceContent& content,
                        const std::wstring& setting) = 0;
    /// Writes what was changed. Throws when that cannot be done; it then waits for the next call.
    virtual void Save() = 0;
};

/// What is there now. Nothing is touched. `preferences` may be null when the target is none of them.
[[nodiscard]] TContent ContentOf(TSystem& system, const TTarget& target, const TPreferenceStore* preferences);

/// Everything that is pending, in the order in which Apply carries it out: registry and system parameters, services,
/// preferences. `preferences` is null when none are going to be saved. What the registry would refuse ends the pass of
/// registry and parameters, and so does not come to be.
[[nodiscard]] TChangeSet OperationsOf(const TSysControl& changes, const TPreferenceStore* preferences);

/// What each operation comes to, in their order.
[[nodiscard]] std::vector<TChange> ChangesOf(TSystem& system, const TChangeSet& operations,
                                             const TPreferenceStore* preferences);

/// The two together.
[[nodiscard]] inline std::vector<TChange> PendingChanges(TSystem& system, const TSysControl& changes,
                                                         const TPreferenceStore* preferences) {
    return ChangesOf(system, OperationsOf(changes, preferences), preferences);
}
