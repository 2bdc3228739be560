// From the words of a command line to the command that they mean.
#include <algorithm>

#include "console/command.h"
#include "console/nearest.h"
#include "platform/language.h"
#include "platform/text.h"

namespace {

/// In the order in which help lists them.
constexpr TCommand kCommands[] = {
    {L"list", L"[PAGE]", 0, 1, false, false, TText::HelpList, L"qtune list \"Task Bar\"", ListSettings},
    {L"find", L"TEXT...", 1, kAnyNumber, false, false, TText::HelpFind, L"qtune find recycle bin",
     FindSettings},
    {L"show", L"ID", 1, 1, false, false, TText::HelpShow, L"qtune show NTFS_SaveShortName", ShowSetting},
    {L"get", L"ID...", 1, kAnyNumber, false, false, TText::HelpGet, L"qtune get NTFS_SaveShortName",
     GetStates},
    {L"set", L"ID=STATE...", 1, kAnyNumber, true, true, TText::HelpSet,
     L"qtune set NTFS_SaveShortName=off NTFS_SaveLastVisitData=off", SetStates},
    {L"preview", L"FILE", 1, 1, false, false, TText::HelpPreview, L"qtune preview office.reg", PreviewFile},
    {L"apply", L"FILE", 1, 1, true, false, TText::HelpApply, L"qtune apply office.reg", ApplyFile},
    {L"export", L"FILE [ID...]", 1, kAnyNumber, false, false, TText::HelpExport, L"qtune export office.reg",
     ExportFile},
    {L"history", L"", 0, 0, false, false, TText::HelpHistory, L"qtune history", ListHistory},
    {L"undo", L"[NUMBER]", 0, 1, true, false, TText::HelpUndo, L"qtune undo 2 --dry-run", UndoEntry},
};

constexpr const wchar_t* kJson = L"--json";
constexpr const wchar_t* kLanguage = L"--language";
constexpr const wchar_t* kDryRun = L"--dry-run";
constexpr const wchar_t* kForce = L"--force";
constexpr const wchar_t* kHelp = L"--help";

bool AsksForHelp(std::wstring_view option) {
    return option == kHelp || option == L"-h" || option == L"-?" || option == L"/?";
}

std::wstring UsageOf(const TCommand& command) {
    const std::wstring words = *command.Words == L'\0' ? L"" : std::wstring(L" ") + command.Words;
    return std::wstring(L"qtune ") + command.Name + words;
}

template <typename TNamed>
std::vector<std::wstring> NamesOf(const TNamed& named) {
    std::vector<std::wstring> names;
    for (const auto& each : named) names.emplace_back(each.Name);
    return names;
}

void PrintOption(const TTask& task, const std::wstring& option, TText text) {
    constexpr std::size_t kColumn = 18;
    task.Console.Print(L"  " + option + std::wstring(kColumn - option.size(), L' ') + task.Texts[text]);
}

void PrintHelp(const TTask& task, const TCommand* command) {
    const auto print = [&](const std::wstring& line) { task.Console.Print(line); };
    print(task.Texts[TText::Usage] + L' ' + (command == nullptr ? L"qtune COMMAND" : UsageOf(*command)) +
          L" [OPTION...]");
    print(task.Texts[command == nullptr ? TText::HelpQtune : command->Help]);
    print(L"");
    if (command == nullptr) {
        for (const TCommand& each : kCommands) PrintOption(task, each.Name, each.Help);
        print(L"");
    }
    print(task.Texts[TText::HelpState]);
    print(L"");
    print(task.Texts[TText::Options]);
    PrintOption(task, kJson, TText::HelpJson);
    PrintOption(task, std::wstring(kLanguage) + L" NAME", TText::HelpLanguage);
    if (command == nullptr || command->CanRunDry) PrintOption(task, kDryRun, TText::HelpDryRun);
    if (command == nullptr || command->CanForce) PrintOption(task, kForce, TText::HelpForce);
    PrintOption(task, kHelp, TText::HelpHelp);
    if (command == nullptr) return;
    print(L"");
    print(task.Texts[TText::Example] + L' ' + command->Example);
}

/// What the words of a command line say, whatever they are.
struct TWords {
    std::vector<std::wstring> Plain;
    std::vector<std::wstring> Options;  ///< without that of the language
    std::optional<std::wstring> Language;
    bool LacksLanguage = false;
};

TWords Sort(const std::vector<std::wstring>& arguments) {
    TWords words;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& argument = arguments[i];
        const std::wstring withName = std::wstring(kLanguage) + L'=';
        if (argument == L"--") {
            words.Plain.insert(words.Plain.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                               arguments.end());
            break;
        }
        if (argument == kLanguage) {
            words.LacksLanguage = ++i == arguments.size();
            if (!words.LacksLanguage) words.Language = arguments[i];
        } else if (argument.starts_with(withName)) {
            words.Language = argument.substr(withName.size());
        } else if (argument.starts_with(L"--") || AsksForHelp(argument)) {
            words.Options.push_back(argument);
        } else {
            words.Plain.push_back(argument);
        }
    }
    return words;
}

void CheckLanguage(const TTask& task, const TWords& words) {
    if (words.LacksLanguage) throw TWrongUsage{task.Texts(TText::NoOptionValue, {kLanguage})};
    if (!words.Language) return;
    std::wstring names;
    for (const std::wstring& name : task.Language().FileNames()) {
        if (SameText(name, *words.Language)) return;
        names += (names.empty() ? L"" : L", ") + name;
    }
    throw TWrongUsage{task.Texts(TText::UnknownLanguage, {*words.Language, names})};
}

const TCommand& CommandOf(const TTask& task, const std::wstring& name) {
    const auto* command =
        std::ranges::find_if(kCommands, [&](const TCommand& each) { return SameText(each.Name, name); });
    if (command == std::end(kCommands)) throw task.Unknown(TText::UnknownCommand, name, NamesOf(kCommands));
    return *command;
}

/// Whether help was asked for.
bool ReadOptions(TTask& task, const TWords& words, const TCommand* command) {
    bool helps = false;
    for (const std::wstring& option : words.Options) {
        helps |= AsksForHelp(option);
        task.Json |= option == kJson;
        task.DryRun |= option == kDryRun;
        task.Force |= option == kForce;
        const std::vector<std::wstring> known{kJson, kLanguage, kDryRun, kForce, kHelp};
        if (!AsksForHelp(option) && std::ranges::count(known, option) == 0)
            throw task.Unknown(TText::UnknownOption, option, known);
    }
    const auto refuse = [&](const wchar_t* option) {
        throw TWrongUsage{task.Texts(TText::WrongOption, {command->Name, option})};
    };
    if (command != nullptr && !helps && task.DryRun && !command->CanRunDry) refuse(kDryRun);
    if (command != nullptr && !helps && task.Force && !command->CanForce) refuse(kForce);
    return helps;
}

void Run(TTask& task, const TWords& words) {
    CheckLanguage(task, words);
    const TCommand* command = words.Plain.empty() ? nullptr : &CommandOf(task, words.Plain.front());
    if (ReadOptions(task, words, command)) return PrintHelp(task, command);
    if (command == nullptr) throw TWrongUsage{task.Texts[TText::NoCommand]};
    task.Words.assign(words.Plain.begin() + 1, words.Plain.end());
    if (task.Words.size() < command->FewestWords)
        throw TWrongUsage{task.Texts(TText::TooFewWords, {UsageOf(*command)})};
    if (task.Words.size() > command->MostWords)
        throw TWrongUsage{
            task.Texts(TText::TooManyWords, {UsageOf(*command), task.Words[command->MostWords]})};
    command->Run(task);
}

}  // namespace

TWrongUsage TTask::Unknown(TText message, const std::wstring& typed,
                           const std::vector<std::wstring>& known) const {
    std::wstring text = Texts(message, {typed});
    std::wstring nearest;
    for (const std::wstring& word : NearestWords(typed, known))
        nearest += (nearest.empty() ? L"" : L", ") + word;
    if (!nearest.empty()) text = Texts(TText::DidYouMean, {std::move(text), std::move(nearest)});
    return {std::move(text)};
}

TExitStatus RunCommandLine(TSystem& system, const std::vector<std::wstring>& arguments, TConsole& console) {
    const TWords words = Sort(arguments);
    TTask task(system, words.Language, console);
    try {
        Run(task, words);
    } catch (const TWrongUsage& usage) {
        std::wstring line = usage.Message;  // what was typed may have several
        std::ranges::replace_if(
            line, [](wchar_t c) { return c == L'\r' || c == L'\n'; }, L' ');
        console.Complain(L"qtune: " + line);
        return TExitStatus::WrongUsage;
    }
    return task.Status();
}
