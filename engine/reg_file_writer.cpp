#include "engine/reg_file.h"
#include "engine/reg_file_data.h"
#include "engine/reg_file_keys.h"
#include "engine/reg_file_notes.h"

namespace {

/// As long as the lines of registry editors.
constexpr std::size_t kLineWidth = 77;

constexpr std::wstring_view kByteOrderMark = L"\xFEFF";

bool HasNul(const std::wstring& text) { return text.find(L'\0') != std::wstring::npos; }

/// Whether the file can say it. No call of Windows takes a name with NUL.
bool CanSay(const TOperation& operation) {
    const auto* target = std::get_if<TRegistryTarget>(&operation.Target);
    if (target == nullptr) return FitsNote(operation);
    return std::holds_alternative<TRegistryEffect>(operation.Effect) && !HasNul(target->Key) &&
           !HasNul(target->ValueName) &&
           (!operation.Left || std::holds_alternative<TRegistryContent>(*operation.Left));
}

class TRegFileWriter {
  public:
    void Add(const TOperation& operation);
    [[nodiscard]] TBytes Bytes() const { return Utf16Bytes(FText); }

  private:
    /// What the last line belongs to.
    enum class TBlock : std::uint8_t { None, Section, Notes };

    void AddKey(const TRegistryTarget& target, bool isDeleted, const TOperation& operation);
    void AddValue(const TRegistryTarget& target, const TRegistryEffect& effect, const TOperation& operation);
    void AddHeader(const TRegistryTarget& target, bool isDeleted);
    /// Goes on with the block, or begins another one with an empty line. False for the latter.
    bool GoOnWith(TBlock block, const TOperation& operation);
    void AddLeft(const TOperation& operation);

    std::wstring FText = std::wstring(kByteOrderMark) + L"Windows Registry Editor Version 5.00\r\n";
    TOperation FSetting{};  ///< what the last note says of it
    TBlock FBlock = TBlock::None;
    TRegistryTarget FSection;  ///< where values go in a section
};

void TRegFileWriter::Add(const TOperation& operation) {
    if (!CanSay(operation)) return;
    const auto* target = std::get_if<TRegistryTarget>(&operation.Target);
    if (target == nullptr) {
        GoOnWith(TBlock::Notes, operation);
        return AppendOperationNote(FText, operation);
    }
    const auto& effect = std::get<TRegistryEffect>(operation.Effect);
    if (effect.Action == TRegAction::DeleteKey || (effect.Action == TRegAction::Write && !effect.Value))
        AddKey(*target, effect.Action == TRegAction::DeleteKey, operation);
    else
        AddValue(*target, effect, operation);
}

/// In a section that values share the key would be created by the first of them.
void TRegFileWriter::AddKey(const TRegistryTarget& target, bool isDeleted, const TOperation& operation) {
    FBlock = TBlock::None;
    GoOnWith(TBlock::Section, operation);
    AddLeft(operation);
    AddHeader(target, isDeleted);
    FBlock = TBlock::None;
}

void TRegFileWriter::AddValue(const TRegistryTarget& target, const TRegistryEffect& effect,
                              const TOperation& operation) {
    if (FBlock == TBlock::Section && (target.Root != FSection.Root || target.Key != FSection.Key))
        FBlock = TBlock::None;
    if (!GoOnWith(TBlock::Section, operation)) {
        AddHeader(target, false);
        FSection = target;
        if (!effect.Value) (FText += kRegNote) += L"if-present\r\n";
    }
    AddLeft(operation);
    if (effect.Value && LacksEnd(*effect.Value)) (FText += kRegNote) += L"exact\r\n";
    if (target.ValueName.empty())
        FText += L'@';
    else
        AppendQuoted(FText, target.ValueName);
    FText += L'=';
    if (effect.Value)
        AppendRegData(FText, *effect.Value, kLineWidth);
    else
        FText += L'-';
    FText += L"\r\n";
}

/// A key that is no single line goes into a note, and registry editors leave out its section.
void TRegFileWriter::AddHeader(const TRegistryTarget& target, bool isDeleted) {
    std::wstring key = RegKeyText({target.Root, target.Key, isDeleted});
    if (key.find_first_of(L"\r\n") != std::wstring::npos) {
        AppendKeyNote(FText, key);
        key.clear();
    }
    ((FText += L'[') += key) += L"]\r\n";
}

bool TRegFileWriter::GoOnWith(TBlock block, const TOperation& operation) {
    const bool goesOn = FBlock == block;
    if (!goesOn) FText += L"\r\n";
    FBlock = block;
    if (operation.Setting != FSetting.Setting || operation.Restart != FSetting.Restart) {
        FSetting.Setting = operation.Setting;
        FSetting.Restart = operation.Restart;
        AppendSettingNote(FText, operation);
    }
    return goesOn;
}

void TRegFileWriter::AddLeft(const TOperation& operation) {
    if (operation.Left) AppendLeftNote(FText, std::get<TRegistryContent>(*operation.Left));
}

}  // namespace

TBytes WriteRegFile(const TChangeSet& changes) {
    TRegFileWriter writer;
    for (const TOperation& operation : changes) writer.Add(operation);
    return writer.Bytes();
}
