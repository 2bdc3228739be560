// The comments of this program in a registry file, each a line that begins with kRegNote:
//
//   setting "Checkbox_X" restart            of all operations up to the next such line; "restart" may be missing
//   left key dword:00000001                 of the next operation on the registry; without data where there was no value
//   left no-key
//   exact                                   the bytes of the next value stand as they are, though they are a text without end
//   if-present                              the section, in which this is first, does not create its key
//   key "HKEY_CURRENT_USER\\A"              the key of the next section, which is called [] here
//   parameter 0x0025 get 0x0026 in-param to number 1 left number 0
//   parameter 0x0049 get 0x0048 to block 08,00,00,00,01,00,00,00 left none
//   service "Themes" to start 2 running left start 4 stopped
//   preference "\"a.b\"" to "true" left none
//
// Numbers are decimal, or hexadecimal after 0x. "none" is what is not there. What is left is missing where nobody said it.
#pragma once

#include "engine/change_set.h"
#include "engine/reg_file_text.h"
#include "engine/restart.h"

/// What notes say of the operations that follow them.
struct TRegNotes {
    std::wstring Setting;
    TRestart Restart = TRestart::None;
    // Of the next one:
    std::optional<TRegistryContent> Left{};
    bool IsExact = false;
    std::optional<std::wstring> Key{};

    [[nodiscard]] bool IsForNext() const { return Left || IsExact || Key; }
};

/// Reads the rest of a note that is no "if-present" into `notes`, or adds the operation that it is. False when it cannot be
/// understood.
[[nodiscard]] bool TakeRegNote(TRegFileText& note, TRegNotes& notes, TChangeSet& operations);

void AppendSettingNote(std::wstring& file, const TOperation& operation);
void AppendLeftNote(std::wstring& file, const TRegistryContent& left);
void AppendKeyNote(std::wstring& file, std::wstring_view key);
/// `operation` is none on the registry.
void AppendOperationNote(std::wstring& file, const TOperation& operation);

/// Whether a note can say it.
[[nodiscard]] bool FitsNote(const TOperation& operation);
