#include <algorithm>

#include "engine/reg_file.h"
#include "engine/reg_file_data.h"
#include "engine/reg_file_keys.h"
#include "engine/reg_file_notes.h"
#include "platform/text.h"

namespace {

using TQuotes = TRegFileText::TQuotes;
using TBytesOfFile = std::span<const std::uint8_t>;

constexpr std::wstring_view kHeaders[] = {L"Windows Registry Editor Version 5.00", L"REGEDIT4"};

bool IsHeader(std::wstring_view line) {
    return std::ranges::find(kHeaders, line.substr(std::min(line.find_first_not_of(L" \t"), line.size()))) !=
           std::end(kHeaders);
}

/// ASCII that is neither letter nor digit, white space as well.
bool IsPunctuation(wchar_t c) {
    const auto isIn = [&](wchar_t first, wchar_t last) { return c >= first && c <= last; };
    return isIn(L'\1', L'\x7F') && !isIn(L'0', L'9') && !isIn(L'A', L'Z') && !isIn(L'a', L'z');
}

bool HasMark(TBytesOfFile bytes, std::uint8_t first, std::uint8_t second) {
    return bytes.size() >= 2 && bytes[0] == first && bytes[1] == second;
}

/// Without a byte-order mark registry editors take the text for one of the code page of Windows, whatever the version.
bool IsAnsi(TBytesOfFile bytes) {
    return !HasMark(bytes, 0xFF, 0xFE) && !HasMark(bytes, 0xFE, 0xFF) && !HasMark(bytes, 0xEF, 0xBB);
}

/// DecodeText would lose what is no character, which names may hold.
std::optional<std::wstring> RegFileTextOf(TBytesOfFile bytes, const TWindowsInfo& windows) {
    if (HasMark(bytes, 0xFF, 0xFE)) return FromUtf16Bytes(bytes.subspan(2));
    if (HasMark(bytes, 0xFE, 0xFF)) return FromUtf16Bytes(bytes.subspan(2), true);
    if (!IsAnsi(bytes) && !Utf8Text(bytes)) return std::nullopt;
    return DecodeText(bytes, windows);
}

class TRegFileReader {
  public:
    /// `ansi` is null for a file with a byte-order mark.
    TRegFileReader(std::wstring_view text, const TWindowsInfo* ansi) : FText(text), FAnsi(ansi) {}

    std::variant<TChangeSet, TRegFileError> Read();

  private:
    using TFault = std::optional<TRegFileFault>;

    TFault ReadLine();
    TFault ReadNote();
    TFault ReadKey();
    TFault ReadValue();
    void FinishText(TRawValue& value) const;
    /// Where no key is created after all.
    void DropCreation();
    void Add(TRegistryTarget target, TRegistryEffect effect);

    TRegFileText FText;
    const TWindowsInfo* FAnsi;
    TChangeSet FOperations;
    TRegNotes FNotes;
    std::optional<TRegKey> FSection;         ///< nothing before the first one
    std::optional<std::size_t> FCreation{};  ///< the operation that creates the section's key
};

std::variant<TChangeSet, TRegFileError> TRegFileReader::Read() {
    if (!FText.NextLine() || !IsHeader(FText.Rest())) return TRegFileError{1, TRegFileFault::NoHeader};
    while (FText.NextLine()) {
        const std::size_t line = FText.LineNumber();
        if (const TFault fault = ReadLine()) return TRegFileError{line, *fault};
    }
    if (FNotes.IsForNext()) return TRegFileError{FText.LineNumber(), TRegFileFault::BadNote};
    return std::move(FOperations);
}

TRegFileReader::TFault TRegFileReader::ReadLine() {
    FText.SkipBlanks();
    const std::wstring_view rest = FText.Rest();
    if (rest.find(L'\0') != std::wstring_view::npos) return TRegFileFault::Unreadable;
    if (rest.starts_with(kRegNote)) return ReadNote();
    if (rest.starts_with(L'[')) return ReadKey();
    if (rest.starts_with(L'@') || rest.starts_with(L'"')) return ReadValue();
    // Files that were put together of several ones have several headers, and some have lines drawn in them.
    const bool isRemark = rest.starts_with(L';') || rest.starts_with(L'#') || rest.starts_with(L"//") ||
                          std::ranges::all_of(rest, IsPunctuation) || IsHeader(rest);
    return isRemark ? TFault() : TRegFileFault::BadLine;
}

TRegFileReader::TFault TRegFileReader::ReadNote() {
    (void)FText.Take(kRegNote);
    if (FText.TakeWord(L"if-present")) {
        if (!FCreation || *FCreation + 1 != FOperations.size()) return TRegFileFault::BadNote;
        DropCreation();
        return FCreation || !FText.Rest().empty() ? TRegFileFault::BadNote : TFault();
    }
    return TakeRegNote(FText, FNotes, FOperations) ? TFault() : TRegFileFault::BadNote;
}

TRegFileReader::TFault TRegFileReader::ReadKey() {
    (void)FText.Take(L"[");
    const std::size_t end = FText.Rest().rfind(L']');
    if (end == std::wstring_view::npos) return TRegFileFault::BadKey;
    std::wstring_view name = FText.Rest().substr(0, end);
    if (FNotes.IsExact || (FNotes.Key && !name.empty())) return TRegFileFault::BadNote;
    if (FNotes.Key) name = *FNotes.Key;
    FSection = ParseRegKey(name);
    if (!FSection) return TRegFileFault::BadKey;
    FNotes.Key.reset();
    FCreation.reset();
    if (!FSection->IsDeleted) FCreation = FOperations.size();
    Add({.Root = FSection->Root, .Key = FSection->Path, .IsKey = true},
        {.Action = FSection->IsDeleted ? TRegAction::DeleteKey : TRegAction::Write});
    return {};
}

TRegFileReader::TFault TRegFileReader::ReadValue() {
    std::wstring name;
    if (!FSection) return TRegFileFault::NoKey;
    if (!FText.Take(L"@") && !FText.TakeQuoted(name, TQuotes::Value)) return TRegFileFault::BadName;
    FText.SkipBlanks();
    if (!FText.Take(L"=")) return TRegFileFault::BadName;
    FText.SkipBlanks();
    TRegistryEffect effect;
    if (FText.Take(L"-")) {
        if (!FText.TakeEnd()) return TRegFileFault::BadData;
        effect.Action = TRegAction::DeleteValue;
    } else {
        auto data = TakeRegData(FText, TQuotes::Value);
        if (!data) return TRegFileFault::BadData;
        if (data->IsBytes && !FNotes.IsExact) FinishText(data->Value);
        effect.Value = std::move(data->Value);
    }
    if (FNotes.Key) return TRegFileFault::BadNote;
    if (!FSection->IsDeleted) {
        if (effect.Value) DropCreation();
        Add({.Root = FSection->Root, .Key = FSection->Path, .ValueName = std::move(name)}, std::move(effect));
    }
    FNotes.Left.reset();
    FNotes.IsExact = false;
    return {};
}

/// Registry editors end a text that is given in bytes, and take bytes of an 8-bit file for text of 8 bits.
void TRegFileReader::FinishText(TRawValue& value) const {
    TBytes& bytes = value.Bytes;
    if (FAnsi != nullptr && IsTextType(value.Type) && !bytes.empty()) {
        if (bytes.back() != 0) bytes.push_back(0);
        bytes = Utf16Bytes(FAnsi->FromAnsi(bytes));
    } else if (LacksEnd(value)) {
        bytes.insert(bytes.end(), 2, 0);
    }
}

void TRegFileReader::DropCreation() {
    if (!FCreation || FOperations[*FCreation].Left) return;
    FOperations.erase(FOperations.begin() + static_cast<std::ptrdiff_t>(*FCreation));
    FCreation.reset();
}

void TRegFileReader::Add(TRegistryTarget target, TRegistryEffect effect) {
    TOperation operation{.Setting = FNotes.Setting,
                         .Target = std::move(target),
                         .Effect = std::move(effect),
                         .Restart = FNotes.Restart};
    if (FNotes.Left) operation.Left = *std::move(FNotes.Left);
    FNotes.Left.reset();
    FOperations.push_back(std::move(operation));
}

}  // namespace

std::variant<TChangeSet, TRegFileError> ReadRegFile(TBytesOfFile bytes, const TWindowsInfo& windows) {
    const auto text = RegFileTextOf(bytes, windows);
    if (!text) return TRegFileError{1, TRegFileFault::Unreadable};
    return TRegFileReader(*text, IsAnsi(bytes) ? &windows : nullptr).Read();
}
