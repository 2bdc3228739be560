// The preferences of the user's Firefox profile: read from its prefs.js and user.js, edited, written back as user.js.
#pragma once

#include <memory>

#include "engine/change_set.h"
#include "platform/text.h"
#include "settings/net/prefs_entries.h"

/// Names of prefs have their quotes, and values are what is written between the comma and the closing parenthesis; see
/// settings/net/prefs_entry.h. Nothing is converted or checked.
class TFirefoxPrefs : public TPreferenceStore {
  public:
    /// What GetFirefoxPref answers when no statement names the pref.
    static constexpr const wchar_t* kNoSuchPref = L"Noexsit";

    /// `firefoxFolder` is Firefox's folder, with trailing delimiter; empty = that in the user's application data, which is
    /// looked up when it is first needed. `system` outlives the store.
    explicit TFirefoxPrefs(TSystem& system, std::wstring firefoxFolder = {});

    /// The folder of the profile that was looked up, without trailing delimiter; empty when there is none.
    [[nodiscard]] const std::wstring& FirefoxProfileFolder() const { return FFirefoxProfileFolder; }
    /// The statements with their comments, as settings/net/prefs_text.h has them; of two that name the same pref the later
    /// one counts.
    [[nodiscard]] std::vector<std::wstring> FirefoxPrefLines() const;

    /// For all users or for this one, of 32 or 64 bits.
    [[nodiscard]] bool IsFirefoxInstalled() const;

    /// Looks the profile up and reads its user.js, dropping whatever was not saved. When the profile has none yet, a
    /// copy of its prefs.js becomes its user.js and is read; a copy that cannot be made is passed over. Without a profile,
    /// and when a file is there but cannot be read, nothing is loaded. Messages are handled meanwhile; what they see,
    /// edit and save is what was loaded before.
    ///
    /// The profile is the Default of an `[Install…]` section of profiles.ini, which stands for an installation of Firefox:
    /// of the first one that is locked to a profile, otherwise of the first one. Those whose Default is the Path of no
    /// profile do not count. Where none is left, it is the profile that is marked as the default one, or else Profile0.
    void LoadFirefoxPrefs();

    /// The value of the last statement that names the pref, without regard to case, or kNoSuchPref.
    [[nodiscard]] std::wstring GetFirefoxPref(std::wstring_view quotedName) const;

    /// Sets the value in every statement that names the pref; an empty value removes the statements. When there is none,
    /// one is appended, even with an empty value. `setting` is the name of the control that stands for it.
    void SetFirefoxPref(std::wstring_view quotedName, std::wstring_view value,
                        std::wstring_view setting = {});

    /// Takes back what was set for the control since the prefs were last loaded or saved.
    void Revert(const std::wstring& setting);

    /// Whether the pref was set since it was last loaded or saved.
    [[nodiscard]] bool HasEdit(std::wstring_view quotedName) const;

    /// Nothing as long as there is nothing to save to.
    [[nodiscard]] std::vector<TEdited> Edited() const override;
    /// What the profile's user.js says now or, where there is none, its prefs.js, which the next load begins from.
    [[nodiscard]] TPreferenceContent Saved(std::wstring_view quotedName) const override;
    /// Without a statement that names it nothing is removed, and so nothing changes. The whole file takes the place of
    /// everything that was set.
    void Change(const std::wstring& quotedName, const TPreferenceContent& content,
                const std::wstring& setting) override;
    /// SaveFirefoxPrefs; throws also when there is nothing to save to.
    void Save() override;

    /// Replaces the profile's user.js by the entries, in the encoding in which they were read. Should the file no longer
    /// be as it was when it was loaded or saved, it is read again, and what was set since then is set in what it says now;
    /// a file that is gone is written anew. False when there is nothing to save, because nothing was ever loaded or there
    /// is no profile. Throws std::runtime_error when the file cannot be written, now or then not be read; it is then as
    /// it was, and what was set waits for the next call.
    [[nodiscard]] bool SaveFirefoxPrefs();

  private:
    using TBytes = std::vector<std::uint8_t>;
    using TSharedBytes = std::shared_ptr<const TBytes>;

    enum class TState : std::uint8_t { Nothing, Unreadable, Loaded };

    /// A file and its text in UTF-8, which is part of the file or was converted from it.
    struct TSource {
        TSharedBytes File{};
        std::shared_ptr<const std::string> Converted{};
        std::string_view Text{};
        TTextEncoding Encoding = TTextEncoding::Utf8;  ///< of the file
    };

    struct TContent {
        TState State = TState::Nothing;
        TSharedBytes UserFile{};  ///< user.js as it was read or written; null when there is none
        TSource Source{};
        TPrefEntries Entries{};  ///< those of Source, and what was set since
    };

    struct TEdit {
        std::string QuotedName;
        std::string Value;
        bool Appended = false;  ///< no statement named it
        std::wstring Setting{};
    };

    /// Null when there is no such file.
    [[nodiscard]] TSharedBytes ReadBytes(const std::wstring& path) const;
    [[nodiscard]] std::wstring FindProfileFolder();
    [[nodiscard]] TSource Decode(TSharedBytes file) const;
    [[nodiscard]] TBytes Encode(const std::string& text, TTextEncoding encoding) const;
    [[nodiscard]] TContent ReadProfile(const std::wstring& profileFolder) const;
    /// Changes the entries that name the pref; false when there is none.
    bool Replace(const std::string& quotedName, const std::string& value);
    /// Takes the entries from the source again, with what was set since.
    void Rebuild();
    /// Reads user.js again should it have changed.
    void FollowUserFile(const std::wstring& path);

    TSystem& FSystem;
    std::wstring FFirefoxFolder;
    std::wstring FFirefoxProfileFolder;
    TContent FContent;
    std::vector<TEdit> FEdits;         ///< what was set since FContent was read or written, in order
    std::optional<TBytes> FWholeFile;  ///< what to save instead
    unsigned FSaves = 0;               ///< tells a load that the file changed meanwhile
};
