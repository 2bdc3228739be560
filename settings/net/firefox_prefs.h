// The preferences of the user's Firefox profile: read from its prefs.js and user.js, edited, written back as user.js.
#pragma once

#include "platform/system.h"
#include "platform/text.h"

/// Names of prefs have their quotes, and values are what is written between the comma and the closing parenthesis; see
/// settings/net/prefs_text.h. Nothing is converted or checked.
class TFirefoxPrefs {
  public:
    /// What GetFirefoxPref answers when no statement names the pref.
    static constexpr const wchar_t* kNoSuchPref = L"Noexsit";

    /// `firefoxFolder` is Firefox's folder in the user's application data, with trailing delimiter. `system` outlives
    /// the store.
    TFirefoxPrefs(TSystem& system, std::wstring firefoxFolder);

    [[nodiscard]] const std::wstring& FirefoxFolder() const { return FFirefoxFolder; }
    /// The folder of the profile that was loaded, without trailing delimiter; empty when there is none.
    [[nodiscard]] const std::wstring& FirefoxProfileFolder() const { return FFirefoxProfileFolder; }
    /// The statements; of two that name the same pref the later one counts.
    [[nodiscard]] const std::vector<std::wstring>& FirefoxPrefLines() const { return FFirefoxPrefLines; }

    [[nodiscard]] bool IsFirefoxInstalled() const;

    /// Looks the profile up and reads its user.js, dropping whatever was not saved. When the profile has none yet, a
    /// copy of its prefs.js becomes its user.js and is read. What cannot be read or copied is passed over. Messages are
    /// handled meanwhile; what they see, edit and save is what was loaded before.
    void LoadFirefoxPrefs();

    /// The value of the last statement that names the pref, without regard to case, or kNoSuchPref.
    [[nodiscard]] std::wstring GetFirefoxPref(std::wstring_view quotedName) const;

    /// Sets the value in every statement that names the pref; an empty value removes the statements. When there is none,
    /// one is appended, even with an empty value.
    void SetFirefoxPref(std::wstring_view quotedName, std::wstring_view value);

    /// Replaces the profile's user.js by the statements, one per line, in the encoding in which they were read. False
    /// when nothing was ever loaded and there is thus nothing to save. Throws std::runtime_error when the file cannot be
    /// written; it is then as it was.
    [[nodiscard]] bool SaveFirefoxPrefs();

  private:
    [[nodiscard]] std::optional<TDecodedText> ReadText(const std::wstring& path) const;
    [[nodiscard]] std::wstring FindProfileFolder() const;
    [[nodiscard]] TDecodedText ReadPrefs(const std::wstring& profileFolder) const;

    TSystem& FSystem;
    std::wstring FFirefoxFolder;
    std::wstring FFirefoxProfileFolder;
    std::vector<std::wstring> FFirefoxPrefLines;
    TTextEncoding FEncoding = TTextEncoding::Utf8;
    bool FLoaded = false;
    unsigned FSaves = 0;  ///< tells a load that the file changed meanwhile
};
