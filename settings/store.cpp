#include "settings/store.h"

#include <algorithm>

#include "base/decimal.h"
#include "engine/reg_value.h"
#include "platform/text.h"
#include "settings/coding.h"
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
        case TKind::Outside: {
            const auto number = AsInteger(value);
            return !number || *number < FNumber || *number > FMost;
        }
        case TKind::EmptyOrZero:
        case TKind::EmptyOrNo:
            break;
    }
    return AsText(value).empty() || AsInteger(value) == 0 ||
           (FKind == TKind::EmptyOrNo && SameText(AsText(value), FText));
}

std::wstring TMatch::Words() const {
    switch (FKind) {
        case TKind::Number:
            return DecimalText(FNumber);
        case TKind::Text:
            return L'"' + std::wstring(FText) + L'"';
        case TKind::TextAnyCase:
            return L'"' + std::wstring(FText) + L"\" in any case";
        case TKind::NumberOrText:
            return DecimalText(FNumber) + L" or \"" + FText + L"\" in any case";
        case TKind::EmptyOrZero:
            return L"0 or empty";
        case TKind::EmptyOrNo:
            return std::wstring(L"0, empty or \"") + FText + L"\" in any case";
        case TKind::Outside:
            break;
    }
    return L"below " + DecimalText(FNumber) +
           (FMost < std::numeric_limits<std::int32_t>::max() ? L" or above " + DecimalText(FMost) : L"") +
           L" or no number";
}

namespace {

/// The bytes that pvParam points to: a number, or a structure with its size in front. Nothing when Windows does not tell
/// them.
std::optional<TBytes> ReadParameter(const TPageContext& context, const TParameter& parameter) {
    TBytes buffer(parameter.BlockSize == 0 ? sizeof(std::uint32_t) : parameter.BlockSize);
    if (parameter.BlockSize != 0) buffer[0] = parameter.BlockSize;
    if (parameter.Get == 0 || !context.System.Parameters.Get(parameter.Get, parameter.BlockSize, buffer))
        return std::nullopt;
    return buffer;
}

std::optional<TRegValue> NumberIn(const TParameter& parameter, const std::optional<TBytes>& bytes) {
    if (!bytes && parameter.BlockSize != 0) return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t i = sizeof(number); bytes && i-- > 0;)
        number = number << 8 | (*bytes)[parameter.Offset + i];
    return static_cast<std::int32_t>(number);
}

/// What is at the place, as it is.
std::optional<TRegValue> Present(const TPageContext& context, const TPlace& place) {
    switch (place.Kind) {
        case TPlaceKind::Parameter:
            return NumberIn(place.Parameter, ReadParameter(context, place.Parameter));
        case TPlaceKind::Preference: {
            std::wstring value = context.Firefox.GetFirefoxPref(place.ValueName);
            if (value == TFirefoxPrefs::kNoSuchPref) return std::nullopt;
            return value;
        }
        case TPlaceKind::Service:
            return std::nullopt;
        case TPlaceKind::Registry:
            break;
    }
    TRegRecor record = RecordAt(place, {});
    if (context.ShowsPending)
        context.Changes.ReadPending(record);
    else
        context.Changes.ReadCurrent(record);
    if (record.ReadResult != TReadStatus::Found) return std::nullopt;
    return std::move(record.Value);
}

}  // namespace

std::optional<TRegValue> Stored(const TPageContext& context, const TPlace& place) {
    auto value = Present(context, place);
    return value ? Decode(place, *std::move(value)) : std::nullopt;
}

std::optional<std::int32_t> StoredNumber(const TPageContext& context, const TPlace& place) {
    const auto value = Stored(context, place);
    return value ? AsInteger(*value) : std::nullopt;
}

std::optional<std::uint32_t> StoredBits(const TPageContext& context, const TPlace& place) {
    const auto value = Stored(context, place);
    return value ? AsBits(*value) : std::nullopt;
}

bool KeyExists(const TPageContext& context, const TPlace& place) {
    TRegRecor key = RecordAt(place, {});
    key.ValueName.clear();
    return context.Changes.CheckExists(key) == TReadStatus::Found;
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

void RecordYesOrNo(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                   std::int32_t number) {
    const auto value = Stored(context, place);
    if (value && std::holds_alternative<std::int32_t>(*value))
        RecordNumber(context, changeName, place, number);
    else
        RecordText(context, changeName, place, number != 0 ? L"yes" : L"no");
}

/// A call of SystemParametersInfoW that also updates the user's profile.
void RecordParameter(TPageContext& context, const std::wstring& changeName, const TParameter& parameter,
                     std::uint32_t number) {
    constexpr std::uint32_t kUpdateProfile = 1;  // SPIF_UPDATEINIFILE
    TRegRecor record;
    record.Name = changeName;
    record.IsSystemParameter = true;
    record.SpiGet = parameter.Get;
    record.SpiAction = parameter.Set;
    record.SpiWinIni = kUpdateProfile;
    if (parameter.BlockSize != 0) {
        TBytes block = ReadParameter(context, parameter).value_or(TBytes(parameter.BlockSize));
        if (parameter.BeginsWithSize) {
            std::fill_n(block.begin(), sizeof(number), std::uint8_t{0});
            block[0] = parameter.BlockSize;
        }
        for (std::size_t i = 0; i < sizeof(number); ++i)
            block[parameter.Offset + i] = static_cast<std::uint8_t>(number >> (8 * i));
        record.SpiParam = parameter.BlockSize;
        record.SpiData = std::move(block);
    } else if (parameter.Slot == TParameterSlot::Param) {
        record.SpiInParam = true;
        record.SpiParam = number;
        record.SpiData = std::uint32_t{0};
    } else {
        record.SpiData = number;
    }
    AddChange(context, std::move(record));
}

/// Records the value as the kind of place takes it.
void RecordKept(TPageContext& context, const std::wstring& changeName, const TPlace& place, TKept kept) {
    switch (place.Kind) {
        case TPlaceKind::Parameter:
            return RecordParameter(context, changeName, place.Parameter, AsBits(kept.Value).value_or(0));
        case TPlaceKind::Preference:
            context.FirefoxChanged = true;
            return context.Firefox.SetFirefoxPref(place.ValueName, AsText(kept.Value), context.Setting);
        case TPlaceKind::Service:
            return;
        case TPlaceKind::Registry:
            break;
    }
    TRegRecor record = RecordAt(place, changeName);
    record.DataType = kept.Type;
    record.Value = std::move(kept.Value);
    AddChange(context, std::move(record));
}

}  // namespace

void Record(TPageContext& context, const std::wstring& changeName, const TPlace& place, const TDatum& datum) {
    const std::wstring deletionName = changeName + L"-";
    const bool deletes = datum.Kind == TDatum::TKind::DeleteValue || datum.Kind == TDatum::TKind::DeleteKey;
    if (datum.Kind == TDatum::TKind::Nothing && place.Kind == TPlaceKind::Parameter) return;
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
        case TDatum::TKind::YesOrNo:
            return RecordYesOrNo(context, changeName, place, datum.Number);
        case TDatum::TKind::SetBits:
            return RecordNumber(context, changeName, place,
                                StoredNumber(context, place).value_or(0) | datum.Number);
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
    RecordKept(context, changeName, place, Encode(place, text));
}

void RecordNumber(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                  std::int32_t number) {
    const bool isPart = place.Mask != 0 || place.Coding == TCoding::FirstByte;
    RecordKept(context, changeName, place,
               Encode(place, number, isPart ? Present(context, place) : std::nullopt));
}
