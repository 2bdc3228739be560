// The commands of the command line, and what each of them works with.
#pragma once

#include <optional>

#include "console/texts.h"
#include "console/value.h"
#include "engine/restart.h"
#include "settings/catalogue.h"

/// Where lines go, each without its end.
class TConsole {
  public:
    virtual ~TConsole() = default;
    /// What programs read.
    virtual void Print(std::wstring_view line) = 0;
    /// Messages.
    virtual void Complain(std::wstring_view line) = 0;
};

/// What a program that ran it learns.
enum class TExitStatus {
    Done = 0,
    Failed = 1,      ///< something could not be read or written; each was named
    WrongUsage = 2,  ///< nothing was written
    Restart = 3010,  ///< done, and Windows must restart (ERROR_SUCCESS_REBOOT_REQUIRED)
};

/// What was asked for cannot be meant; told to the user and answered with WrongUsage.
struct TWrongUsage {
    std::wstring Message;
};

/// The work of one command.
class TTask {
  public:
    /// `language` is the name of the language to answer in; nothing = the suite's. Everything else outlives the object.
    TTask(TSystem& system, std::optional<std::wstring> language, TConsole& console);

    TSystem& System;
    TConsole& Console;
    const TMessages Texts;
    TRelease Release;  ///< the running Windows

    std::vector<std::wstring> Words;  ///< behind the command, without the options
    bool Json = false;
    bool DryRun = false;
    bool Force = false;
    bool HasCaptions =
        true;  ///< otherwise those of the catalogue are not needed, and no language is read for them

    /// Read when it is first asked for.
    [[nodiscard]] const TLanguage& Language() const;
    [[nodiscard]] const TCaptions& Captions() const;
    /// Made when it is first asked for.
    [[nodiscard]] TCatalogue& Catalogue();
    /// The setting of that name, or the only one of whose name it is a part. Throws TWrongUsage.
    [[nodiscard]] const TSetting& Setting(const std::wstring& id);

    void Print(const TValue& value) const;
    /// Names something that could not be read or written.
    void Fail(const std::wstring& message);
    /// Windows must restart.
    void Need(TRestart restart);
    [[nodiscard]] TExitStatus Status() const;

    /// The message, and behind it those of the known words that may have been meant.
    [[nodiscard]] TWrongUsage Unknown(TText message, const std::wstring& typed,
                                      const std::vector<std::wstring>& known) const;

  private:
    std::optional<std::wstring> FLanguageName;
    mutable std::unique_ptr<TLanguage> FLanguage;
    mutable std::optional<TCaptions> FCaptions;
    std::optional<TCatalogue> FCatalogue;
    bool FFailed = false;
    TRestart FRestart = TRestart::None;
};

struct TCommand {
    const wchar_t* Name;
    const wchar_t* Words;  ///< as help shows them
    std::size_t FewestWords;
    std::size_t MostWords;
    bool CanRunDry;
    bool CanForce;
    TText Help;
    const wchar_t* Example;
    void (*Run)(TTask& task);
};

inline constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

// console/questions.cpp
void ListSettings(TTask& task);
void FindSettings(TTask& task);
void ShowSetting(TTask& task);
void GetStates(TTask& task);
// console/set_command.cpp
void SetStates(TTask& task);
// console/file_commands.cpp
void PreviewFile(TTask& task);
void ApplyFile(TTask& task);
void ExportFile(TTask& task);
void ListHistory(TTask& task);
void UndoEntry(TTask& task);

/// Runs a command line, without the program's name.
[[nodiscard]] TExitStatus RunCommandLine(TSystem& system, const std::vector<std::wstring>& arguments,
                                         TConsole& console);
