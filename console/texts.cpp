#include "console/texts.h"

#include "platform/language.h"
#include "settings/change_words.h"

const std::array<TTextKey, kTextCount> kTextKeys{{
    {L"Usage", L"Usage:"},
    {L"Options", L"Options:"},
    {L"Example", L"Example:"},
    {L"NoCommand", L"No command is given; \"qtune --help\" lists them."},
    {L"UnknownCommand", L"There is no command \"%1\"."},
    {L"UnknownOption", L"There is no option \"%1\"."},
    {L"WrongOption", L"\"%1\" has no option \"%2\"."},
    {L"NoOptionValue", L"\"%1\" needs a name behind it."},
    {L"TooFewWords", L"Something is missing; the command is: %1"},
    {L"TooManyWords", L"\"%2\" is too much; the command is: %1"},
    {L"DidYouMean", L"%1 Did you mean %2?"},
    {L"UnknownLanguage", L"There is no language \"%1\". There are: %2"},
    {L"UnknownSetting", L"No setting is called \"%1\"."},
    {L"ManySettings", L"\"%1\" is part of %2 settings: %3"},
    {L"UnknownPage", L"No page is called \"%1\"."},
    {L"ManyPages", L"\"%1\" is part of several pages: %2"},
    {L"NoAssignment", L"\"%1\" is no ID=STATE."},
    {L"WrongState", L"%1 cannot be \"%2\". It takes: %3"},
    {L"WindowOnly", L"%1 can be used in the window only."},
    {L"NotOffered", L"This Windows does not offer %1."},
    {L"NotOfferedForce", L"This Windows does not offer %1; --force sets it all the same."},
    {L"NotEnabledForce",
     L"%1 cannot be changed as the other settings are now; --force sets it all the same."},
    {L"WrongNumber", L"\"%1\" is no number of an entry."},
    {L"NoEntry", L"The history has no entry %1."},
    {L"UnreadableEntry", L"The entry %1 of the history cannot be read."},
    {L"NotWritten", L"%1 is not as it should be: %2."},
    {L"NoRights", L"there is no right to write there"},
    {L"Refused", L"Windows refused it"},
    {L"NoService", L"there is no such service"},
    {L"ServiceNotSwitched", L"the service could not be switched"},
    {L"FileNotWritten", L"the file cannot be written"},
    {L"RestartNeeded", L"Windows must restart before all of it takes effect."},
    {L"ExplorerRestartNeeded", L"Explorer must be restarted before all of it takes effect."},
    {L"HelpQtune",
     L"Shows and changes the settings of Quilltune. \"qtune COMMAND --help\" tells more of a command."},
    {L"HelpList", L"Lists all settings, or those of a page: id, state, caption."},
    {L"HelpFind",
     L"Finds the settings that hold all words in their texts, names or places: id, page, sheet, caption."},
    {L"HelpShow", L"Tells all about a setting: what it is, where it is stored, what each state writes."},
    {L"HelpGet", L"Prints the state of each setting on a line of its own."},
    {L"HelpSet",
     L"Brings settings into states, as the window would, and prints what that changes: place, before, "
     L"after."},
    {L"HelpPreview", L"Prints what applying a registration file would change: place, now, after."},
    {L"HelpApply", L"Applies a registration file and prints what that changes: place, before, after."},
    {L"HelpExport",
     L"Saves what is stored now at the places of these settings, or of all, as a registration file."},
    {L"HelpHistory", L"Lists what was applied, the newest first: number, time, settings."},
    {L"HelpUndo", L"Takes back what was applied last, or under that number, and prints what that changes."},
    {L"HelpState",
     L"ID is the name of a setting or a part of it that no other has. STATE is on or off, a number, a text, "
     L"the number or caption of an item, items with commas between them, a color as #RRGGBB, or press."},
    {L"HelpJson", L"prints JSON"},
    {L"HelpLanguage", L"answers in that language"},
    {L"HelpDryRun", L"only prints what would be changed"},
    {L"HelpForce", L"also sets what this Windows does not offer, or not now"},
    {L"HelpHelp", L"prints this"},
}};

std::wstring TMessages::operator[](TText text) const {
    const TTextKey& key = kTextKeys[static_cast<std::size_t>(text)];
    return FLanguage().ReadString(kTextSection, key.Key, key.English);
}

std::wstring TMessages::operator()(TText text, std::initializer_list<std::wstring> values) const {
    return Formatted((*this)[text], values);
}
