// The messages of the command line, each looked up in the language file when it is needed.
#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <string>

class TLanguage;

enum class TText {
    Usage,
    Options,
    Example,
    NoCommand,
    UnknownCommand,
    UnknownOption,
    WrongOption,
    NoOptionValue,
    TooFewWords,
    TooManyWords,
    DidYouMean,
    UnknownLanguage,
    UnknownSetting,
    ManySettings,
    UnknownPage,
    ManyPages,
    NoAssignment,
    WrongState,
    WindowOnly,
    NotOffered,
    NotOfferedForce,
    NotEnabledForce,
    WrongNumber,
    NoEntry,
    UnreadableEntry,
    NotWritten,
    NoRights,
    Refused,
    NoService,
    ServiceNotSwitched,
    FileNotWritten,
    RestartNeeded,
    ExplorerRestartNeeded,
    HelpQtune,
    HelpList,
    HelpFind,
    HelpShow,
    HelpGet,
    HelpSet,
    HelpPreview,
    HelpApply,
    HelpExport,
    HelpHistory,
    HelpUndo,
    HelpState,
    HelpJson,
    HelpLanguage,
    HelpDryRun,
    HelpForce,
    HelpHelp,
    kCount,
};

struct TTextKey {
    const wchar_t* Key;      ///< in the language section kTextSection
    const wchar_t* English;  ///< what shows when the language file lacks the key
};

inline constexpr const wchar_t* kTextSection = L"Quilltune_Console";
inline constexpr std::size_t kTextCount = static_cast<std::size_t>(TText::kCount);
extern const std::array<TTextKey, kTextCount> kTextKeys;

class TMessages {
  public:
    /// `language` is asked for whenever there is something to say.
    explicit TMessages(std::function<const TLanguage&()> language) : FLanguage(std::move(language)) {}

    [[nodiscard]] std::wstring operator[](TText text) const;
    /// With each of the values in the place of %1, %2, ….
    [[nodiscard]] std::wstring operator()(TText text, std::initializer_list<std::wstring> values) const;

  private:
    std::function<const TLanguage&()> FLanguage;
};
