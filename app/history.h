// What was applied, and the way back: each Apply leaves a change set that restores what was there before it, as a file in
// a folder of the user's.
#pragma once

#include "engine/change_set.h"

class THistory {
  public:
    /// `system` outlives the history.
    explicit THistory(TSystem& system);

    /// The entries, the newest first. An entry is called by the local time of its Apply, "YYYY-MM-DD HH.MM.SS", with a number
    /// behind it when there was another one in the same second.
    [[nodiscard]] std::vector<std::wstring> Entries() const;

    /// The way back; nothing when the entry is gone or cannot be understood. An Apply that did not come to its end has left
    /// the whole profile of parameters in it; of that the answer has what is different now.
    [[nodiscard]] std::optional<TChangeSet> Read(const std::wstring& entry) const;

    /// Saves a way back, on the disk when this returns. The answer is the entry's name. Throws std::runtime_error when it
    /// cannot be saved.
    [[nodiscard]] std::wstring Add(const TChangeSet& wayBack);

    /// Puts another way back in an entry's place. Throws std::runtime_error when that cannot be done; it is then as it was.
    void Replace(const std::wstring& entry, const TChangeSet& wayBack);

    /// Removes the oldest entries beyond the hundredth, but not the latest.
    void RemoveOldest(const std::wstring& latest);

    void Remove(const std::wstring& entry);

  private:
    [[nodiscard]] std::wstring PathOf(const std::wstring& entry) const;

    TSystem& FSystem;
    std::wstring FFolder;
};

/// The history's part in one Apply.
class TRecordedApply {
  public:
    /// `preferences` is null when none will be saved. Everything outlives the object.
    TRecordedApply(TSystem& system, TChangeSet operations, const TPreferenceStore* preferences);

    /// Before the first write: saves the way back, with all that is kept of parameters, for what Windows will make of that
    /// is not known yet. Throws like THistory::Add; the Apply goes on all the same.
    void Begin();

    /// After the registry and parameters are written: adds what restores them to the byte. Throws like Complete.
    void Supplement();

    /// After all writes: completes the entry by what only became known now, and removes it when there is nothing to restore.
    /// Throws like THistory::Replace.
    void Complete();

  private:
    /// What restores what else came to be: how Windows keeps the parameters, the file of preferences to the byte.
    [[nodiscard]] TChangeSet Besides() const;
    [[nodiscard]] TChangeSet WithBesides() const;
    void Save(const TChangeSet& back);

    TSystem& FSystem;
    const TPreferenceStore* FPreferences;
    THistory FHistory;
    TChangeSet FOperations;
    TChangeSet FBack;
    bool FSetsParameters = false;
    bool FSetsPreferences = false;
    TChangeSet FProfile;                 ///< where Windows keeps parameters, before they are set
    TPreferenceContent FPreferenceFile;  ///< before it is saved
    std::wstring FEntry;                 ///< empty = nothing is saved
    TChangeSet FSaved;                   ///< what the entry holds
    bool FFailed = false;                ///< the history cannot be written
};
