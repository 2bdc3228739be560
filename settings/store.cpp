#include "settings/store.h"

#include <array>

#include "engine/reg_value.h"
#include "platform/text.h"
#include "settings/page_context.h"

bool TMatch::operator()(const TRegValue& value) const {
    switch (FKind) {
        case TKind::Number:
            return AsInteger(value) == FNumber;
        case TKind::Text:
            return AsText(value) == FText;
        case TKind::TextAnyCase:
            return SameText(AsText(value), FText);
        case TKind::NumberOrText:
            return AsInteger(value) == FNumber || SameText(AsText(value), FText);
        case TKind::EmptyOrZero:
            break;
    }
    return AsText(value).empty() || AsInteger(value) == 0;
}

std::wstring TMatch::Words() const {
    switch (FKind) {
        case TKind::Number:
            return std::to_wstring(FNumber);
        case TKind::Text:
            return L'"' + std::wstring(FText) + L'"';
        case TKind::TextAnyCase:
            return L'"' + std::wstring(FText) + L"\" in any case";
        case TKind::NumberOrText:
            return std::to_wstring(FNumber) + L" or \"" + FText + L"\" in any case";
        case TKind::EmptyOrZero:
            break;
    }
    return L"0 or empty";
}

std::optional<TRegValue> Stored(const TPageContext& context, const TPlace& place) {
    if (place.IsFirefoxPref) {
        const std::wstring value = context.Firefox.GetFirefoxPref(place.ValueName);
        if (value == TFirefoxPrefs::kNoSuchPref) return std::nullopt;
        return value;
    }
    TRegRecor record = RecordAt(place, {});
    if (context.ShowsPending)
        context.Changes.ReadPending(record);
    else
        context.Changes.ReadCurrent(record);
    if (record.ReadResult != TReadStatus::Found) return std::nullopt;
    return std::move(record.Value);
}

std::optional<std::int32_t> StoredNumber(const TPageContext& context, const TPlace& place) {
    const auto value = Stored(context, place);
    return value ? AsInteger(*value) : std::nullopt;
}

std::optional<std::uint32_t> StoredBits(const TPageContext& context, const TPlace& place) {
    const auto value = Stored(context, place);
    return value ? AsBits(*value) : std::nullopt;
}

TRegRecor RecordAt(const TPlace& place, const std::wstring& changeName) {
    TRegRecor record;
    record.Name = changeName;
    record.RootKey = place.Root;
    record.Key = place.Key;
    record.ValueName = place.ValueName;
    return record;
}

void AddChange(TPageContext& context, TRegRecor record) {
    record.Setting = context.Setting;
    record.RestartNeeded = context.RestartNeeded;
    context.Changes.Add(record);
}

namespace {

void RecordValue(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                 TRegDataType type, TRegValue value) {
    TRegRecor record = RecordAt(place, changeName);
    record.DataType = type;
    record.Value = std::move(value);
    AddChange(context, std::move(record));
}

void RecordDeletion(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                    TRegAction action) {
    TRegRecor record = RecordAt(place, changeName);
    record.Action = action;
    AddChange(context, std::move(record));
}

void RecordAsStored(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                    std::int32_t number) {
    TRegRecor record = RecordAt(place, changeName);
    context.Changes.ReadCurrent(record);
    if (record.ReadResult != TReadStatus::Found) record.DataType = TRegDataType::Dword;
    record.Value = number;
    AddChange(context, std::move(record));
}

}  // namespace

void Record(TPageContext& context, const std::wstring& changeName, const TPlace& place, const TDatum& datum) {
    const std::wstring deletionName = changeName + L"-";
    const bool deletes = datum.Kind == TDatum::TKind::DeleteValue || datum.Kind == TDatum::TKind::DeleteKey;
    context.Changes.Remove(deletes || datum.Kind == TDatum::TKind::Nothing ? changeName : deletionName);
    switch (datum.Kind) {
        case TDatum::TKind::Dword:
            return RecordNumber(context, changeName, place, datum.Number);
        case TDatum::TKind::Text:
            return RecordText(context, changeName, place, datum.Characters);
        case TDatum::TKind::Caption:
            return RecordText(context, changeName, place, context.Captions[datum.Translation]);
        case TDatum::TKind::AsStored:
            return RecordAsStored(context, changeName, place, datum.Number);
        case TDatum::TKind::DeleteValue:
            return RecordDeletion(context, deletionName, place, TRegAction::DeleteValue);
        case TDatum::TKind::DeleteKey:
            return RecordDeletion(context, deletionName, place, TRegAction::DeleteKey);
        case TDatum::TKind::Nothing:
            return;
    }
}

void RecordText(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                const std::wstring& text) {
    if (!place.IsFirefoxPref) return RecordValue(context, changeName, place, TRegDataType::String, text);
    context.FirefoxChanged = true;
    context.Firefox.SetFirefoxPref(place.ValueName, text, context.Setting);
}

void RecordNumber(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                  std::int32_t number) {
    if (place.IsFirefoxPref) return RecordText(context, changeName, place, std::to_wstring(number));
    RecordValue(context, changeName, place, TRegDataType::Dword, number);
}

void RecordBytes(TPageContext& context, const std::wstring& changeName, const TPlace& place, TBytes bytes) {
    RecordValue(context, changeName, place, TRegDataType::Binary, std::move(bytes));
}

std::uint32_t ReadParameter(const TPageContext& context, std::uint32_t action) {
    std::array<std::uint8_t, sizeof(std::uint32_t)> buffer{};
    if (!context.System.Parameters.Get(action, 0, buffer)) buffer = {};
    std::uint32_t value = 0;
    for (std::size_t i = buffer.size(); i-- > 0;) value = value << 8 | buffer[i];
    return value;
}

bool ReadSwitch(const TPageContext& context, std::uint32_t action) {
    constexpr std::uint32_t kLowestByte = 0xFF;
    return (ReadParameter(context, action) & kLowestByte) != 0;
}

void RecordParameter(TPageContext& context, const std::wstring& changeName, std::uint32_t action,
                     std::uint32_t param, const TSpiData& data) {
    constexpr std::uint32_t kUpdateProfile = 1;  // SPIF_UPDATEINIFILE
    TRegRecor record;
    record.Name = changeName;
    record.IsSystemParameter = true;
    record.SpiAction = action;
    record.SpiParam = param;
    record.SpiData = data;
    record.SpiWinIni = kUpdateProfile;
    AddChange(context, std::move(record));
}
