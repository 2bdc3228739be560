#include "engine/reg_file_notes.h"

#include "base/decimal.h"
#include "engine/reg_file_data.h"

namespace {

using TQuotes = TRegFileText::TQuotes;

/// No structure of a parameter is larger.
constexpr std::size_t kLargestBlock = 512;
/// SERVICE_DISABLED; all start types are up to that.
constexpr std::uint32_t kLastStartType = 4;

std::optional<std::uint32_t> TakeNumber(TRegFileText& note) {
    if (note.Take(L"0x")) return note.TakeHex();
    std::uint64_t number = 0;
    std::size_t count = 0;
    for (; count < note.Rest().size() && note.Rest()[count] >= L'0' && note.Rest()[count] <= L'9'; ++count) {
        number = number * 10 + static_cast<std::uint64_t>(note.Rest()[count] - L'0');
        if (number > 0xFFFFFFFF) return std::nullopt;
    }
    if (count == 0 || !note.Take(note.Rest().substr(0, count))) return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

std::optional<TSpiData> TakeData(TRegFileText& note, TParameterTarget& target) {
    if (note.TakeWord(L"number")) return TakeNumber(note);
    TBytes block;
    if (!note.TakeWord(L"block") || !note.TakeBytes(block, false)) return std::nullopt;
    target.BlockSize = block.size();
    return block;
}

std::optional<TServiceStatus> TakeData(TRegFileText& note, const TServiceTarget& /*target*/) {
    if (!note.TakeWord(L"start")) return std::nullopt;
    const auto type = TakeNumber(note);
    if (!type || *type > kLastStartType) return std::nullopt;
    const bool runs = note.TakeWord(L"running");
    if (!runs && !note.TakeWord(L"stopped")) return std::nullopt;
    return TServiceStatus{static_cast<TServiceStartType>(*type), runs};
}

std::optional<std::wstring> TakeData(TRegFileText& note, const TPreferenceTarget& /*target*/) {
    std::wstring text;
    if (!note.TakeQuoted(text, TQuotes::Note)) return std::nullopt;
    return text;
}

/// Takes what the operation does and what is left of it. Only a preference can be made to be missing.
template <typename TSomeTarget>
std::optional<TOperation> TakeOperation(TRegFileText& note, TSomeTarget target) {
    TOperation operation;
    if (!note.TakeWord(L"to")) return std::nullopt;
    if (std::is_same_v<TSomeTarget, TPreferenceTarget> && note.TakeWord(L"none")) {
        operation.Effect = TPreferenceContent();
    } else {
        auto data = TakeData(note, target);
        if (!data) return std::nullopt;
        if constexpr (std::is_same_v<TSomeTarget, TPreferenceTarget>)
            operation.Effect = TPreferenceContent(std::move(data));
        else
            operation.Effect = *std::move(data);
    }
    if (note.TakeWord(L"left")) {
        decltype(TakeData(note, target)) left;
        if (!note.TakeWord(L"none") && !(left = TakeData(note, target))) return std::nullopt;
        operation.Left = TContent(std::move(left));
    }
    operation.Target = std::move(target);
    note.SkipBlanks();
    if (!note.Rest().empty() || !FitsNote(operation)) return std::nullopt;
    return operation;
}

std::optional<TOperation> TakeOperation(TRegFileText& note) {
    if (note.TakeWord(L"parameter")) {
        const auto set = TakeNumber(note);
        if (!set || !note.TakeWord(L"get")) return std::nullopt;
        const auto get = TakeNumber(note);
        if (!get) return std::nullopt;
        return TakeOperation(note, TParameterTarget{*set, *get, note.TakeWord(L"in-param")});
    }
    std::wstring name;
    if (note.TakeWord(L"service")) {
        if (!note.TakeQuoted(name, TQuotes::Note)) return std::nullopt;
        return TakeOperation(note, TServiceTarget{std::move(name)});
    }
    if (!note.TakeWord(L"preference") || !note.TakeQuoted(name, TQuotes::Note)) return std::nullopt;
    return TakeOperation(note, TPreferenceTarget{std::move(name)});
}

bool TakeLeft(TRegFileText& note, std::optional<TRegistryContent>& left) {
    left.emplace();
    left->HasKey = note.TakeWord(L"key");
    if (!left->HasKey && !note.TakeWord(L"no-key")) return false;
    if (note.Rest().empty()) return true;
    auto data = TakeRegData(note, TQuotes::Note);
    if (!data) return false;
    left->Value = std::move(data->Value);
    return true;
}

bool Fits(const TSpiData& data, const TParameterTarget& target) {
    const auto* block = std::get_if<TBytes>(&data);
    if (block == nullptr) return target.BlockSize == 0;
    return !block->empty() && block->size() == target.BlockSize && block->size() <= kLargestBlock;
}
bool Fits(const TServiceStatus& status, const TServiceTarget& /*target*/) {
    return static_cast<std::uint32_t>(status.StartType) <= kLastStartType;
}
bool Fits(const TPreferenceContent& /*text*/, const TPreferenceTarget& /*target*/) { return true; }

template <typename TData, typename TSomeTarget>
bool Fits(const TOperation& operation, const TSomeTarget& target) {
    const auto* effect = std::get_if<TData>(&operation.Effect);
    return effect != nullptr && Fits(*effect, target);
}

template <typename TData, typename TSomeTarget>
bool LeftFits(const TOperation& operation, const TSomeTarget& target) {
    if (!operation.Left) return true;
    const auto* left = std::get_if<std::optional<TData>>(&*operation.Left);
    return left != nullptr && (!*left || Fits(**left, target));
}

void AppendNumber(std::wstring& file, std::uint32_t code) {
    file += L"0x";
    AppendHex(file, code, code > 0xFFFF ? 8 : 4);
}

void AppendData(std::wstring& file, const TSpiData& data) {
    if (const auto* number = std::get_if<std::uint32_t>(&data)) {
        file += L"number ";
        file += DecimalText(*number);
    } else {
        file += L"block ";
        AppendBytes(file, std::get<TBytes>(data));
    }
}
void AppendData(std::wstring& file, const TServiceStatus& status) {
    file += L"start ";
    file += DecimalText(static_cast<std::int64_t>(status.StartType));
    file += status.Runs ? L" running" : L" stopped";
}
void AppendData(std::wstring& file, const std::wstring& text) { AppendQuoted(file, text); }
template <typename TData>
void AppendData(std::wstring& file, const std::optional<TData>& data) {
    if (data)
        AppendData(file, *data);
    else
        file += L"none";
}

template <typename TData>
void AppendChange(std::wstring& file, const TOperation& operation) {
    file += L" to ";
    AppendData(file, std::get<TData>(operation.Effect));
}

template <typename TData>
void AppendLeft(std::wstring& file, const TOperation& operation) {
    if (!operation.Left) return;
    file += L" left ";
    AppendData(file, std::get<std::optional<TData>>(*operation.Left));
}

}  // namespace

bool TakeRegNote(TRegFileText& note, TRegNotes& notes, TChangeSet& operations) {
    if (note.TakeWord(L"setting")) {
        if (!note.TakeQuoted(notes.Setting, TQuotes::Note)) return false;
        notes.Restart = note.TakeWord(L"restart")    ? TRestart::Windows
                        : note.TakeWord(L"explorer") ? TRestart::Explorer
                                                     : TRestart::None;
    } else if (note.TakeWord(L"left")) {
        if (notes.Left || !TakeLeft(note, notes.Left)) return false;
    } else if (note.TakeWord(L"exact")) {
        notes.IsExact = true;
    } else if (note.TakeWord(L"key")) {
        if (notes.Key || !note.TakeQuoted(notes.Key.emplace(), TQuotes::Note)) return false;
    } else {
        auto operation = TakeOperation(note);
        if (!operation || notes.IsForNext()) return false;
        operation->Setting = notes.Setting;
        operation->Restart = notes.Restart;
        operations.push_back(*std::move(operation));
    }
    note.SkipBlanks();
    return note.Rest().empty();
}

void AppendSettingNote(std::wstring& file, const TOperation& operation) {
    file += kRegNote;
    file += L"setting ";
    AppendQuoted(file, operation.Setting);
    if (operation.Restart != TRestart::None)
        file += operation.Restart == TRestart::Windows ? L" restart" : L" explorer";
    file += L"\r\n";
}

void AppendLeftNote(std::wstring& file, const TRegistryContent& left) {
    file += kRegNote;
    file += left.HasKey ? L"left key" : L"left no-key";
    if (left.Value) {
        file += L' ';
        AppendRegData(file, *left.Value, 0);
    }
    file += L"\r\n";
}

void AppendKeyNote(std::wstring& file, std::wstring_view key) {
    file += kRegNote;
    file += L"key ";
    AppendQuoted(file, key);
    file += L"\r\n";
}

void AppendOperationNote(std::wstring& file, const TOperation& operation) {
    file += kRegNote;
    if (const auto* parameter = std::get_if<TParameterTarget>(&operation.Target)) {
        file += L"parameter ";
        AppendNumber(file, parameter->Set);
        file += L" get ";
        AppendNumber(file, parameter->Get);
        if (parameter->InParam) file += L" in-param";
        AppendChange<TSpiData>(file, operation);
        AppendLeft<TSpiData>(file, operation);
    } else if (const auto* service = std::get_if<TServiceTarget>(&operation.Target)) {
        file += L"service ";
        AppendQuoted(file, service->Service);
        AppendChange<TServiceStatus>(file, operation);
        AppendLeft<TServiceStatus>(file, operation);
    } else {
        file += L"preference ";
        AppendQuoted(file, std::get<TPreferenceTarget>(operation.Target).QuotedName);
        AppendChange<TPreferenceContent>(file, operation);
        AppendLeft<std::wstring>(file, operation);
    }
    file += L"\r\n";
}

bool FitsNote(const TOperation& operation) {
    if (const auto* parameter = std::get_if<TParameterTarget>(&operation.Target))
        return Fits<TSpiData>(operation, *parameter) && LeftFits<TSpiData>(operation, *parameter);
    if (const auto* service = std::get_if<TServiceTarget>(&operation.Target))
        return Fits<TServiceStatus>(operation, *service) && LeftFits<TServiceStatus>(operation, *service);
    if (const auto* preference = std::get_if<TPreferenceTarget>(&operation.Target))
        return Fits<TPreferenceContent>(operation, *preference) &&
               LeftFits<std::wstring>(operation, *preference);
    return false;
}
