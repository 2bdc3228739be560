#include "settings/row_words.h"

#include <algorithm>
#include <bit>

#include "base/decimal.h"
#include "platform/system_parameters.h"
#include "platform/text.h"
#include "settings/coding.h"

namespace {

using TText = std::wstring;

TText Code(const TText& text) { return L'`' + text + L'`'; }

TText Hex(std::uint32_t number) { return L"0x" + HexText(number); }

TText Words(const TDatum& datum);

TText InRegistry(const TPlace& place) {
    const wchar_t* root = place.Root == kLocalMachine  ? L"HKLM"
                          : place.Root == kCurrentUser ? L"HKCU"
                          : place.Root == kUsers       ? L"HKU"
                                                       : L"HKCR";
    TText key = root + TText(place.Key);
    if (key.back() == L'\\') key.pop_back();
    return Code(key) + L" " + (*place.ValueName == 0 ? TText(L"(default value)") : Code(place.ValueName));
}

TText InParameter(const TParameter& parameter) {
    TText words = L"system parameter, ";
    if (parameter.Get != 0 && parameter.Get < kSystemMetric) words += L"read " + Hex(parameter.Get) + L", ";
    words += L"set " + Hex(parameter.Set);
    if (parameter.BlockSize != 0)
        return words + L" (the number at byte " + DecimalText(parameter.Offset) + L" of " +
               DecimalText(parameter.BlockSize) + L")";
    return words + (parameter.Slot == TParameterSlot::Param ? L" (uiParam)" : L" (pvParam)");
}

TText Words(TCoding coding) {
    switch (coding) {
        case TCoding::Plain:
        case TCoding::Number:
        case TCoding::Switch:
            break;
        case TCoding::Decimal:
            return L", in decimal text";
        case TCoding::Seconds:
            return L", in milliseconds";
        case TCoding::BlinkRate:
            return L", as " + DecimalText(MirrorBlink(0)) +
                   L" less the milliseconds in decimal text, -1 at the left end";
        case TCoding::FirstByte:
            return L", the first byte";
        case TCoding::ColorBytes:
            return L", as the bytes red, green, blue, 0";
        case TCoding::ColorText:
            return L", as \"red green blue\" in decimal";
        case TCoding::Quoted:
            return L", in quotes and with escapes";
    }
    return {};
}

TText Numbers(const TPlace& place) {
    if (place.Kind == TPlaceKind::Preference) return L"text ";
    const bool isPlain = place.Coding == TCoding::Plain || place.Coding == TCoding::Number;
    return place.Kind == TPlaceKind::Registry && isPlain ? L"DWORD " : L"";
}

/// What the place is written with; numbers as it keeps them.
TText Words(const TPlace& place, const TDatum& datum) {
    if (datum.Kind != TDatum::TKind::Dword) return Words(datum);
    if (std::popcount(place.Mask) == 1)
        return (datum.Number != 0 ? L"sets the bit " : L"clears the bit ") + Hex(place.Mask);
    return Numbers(place) + DecimalText(datum.Number);
}

TText Words(const TDatum& datum) {
    const TText number = DecimalText(datum.Number);
    switch (datum.Kind) {
        case TDatum::TKind::Dword:
            return L"DWORD " + number;
        case TDatum::TKind::Text:
            return L"text " + Code(TText(L"\"") + datum.Characters + L"\"");
        case TDatum::TKind::Caption:
            return L"text \"" + TText(kCaptionKeys[static_cast<std::size_t>(datum.Translation)].English) +
                   L"\" in the user's language";
        case TDatum::TKind::AsStored:
            return number + L" in the type that is stored (DWORD when there is none)";
        case TDatum::TKind::YesOrNo:
            return TText(datum.Number != 0 ? L"text `\"yes\"`" : L"text `\"no\"`") + L", or DWORD " + number +
                   L" where a DWORD is stored";
        case TDatum::TKind::SetBits:
            return L"sets the bits " + Hex(static_cast<std::uint32_t>(datum.Number));
        case TDatum::TKind::DeleteValue:
            return L"deletes the value";
        case TDatum::TKind::DeleteKey:
            return L"deletes the key";
        case TDatum::TKind::Nothing:
            break;
    }
    return L"nothing";
}

TText Words(TBoxState state) {
    switch (state) {
        case TBoxState::Checked:
            return L"checked";
        case TBoxState::Clear:
            return L"clear";
        case TBoxState::Keep:
            break;
    }
    return L"unchanged";
}

TText Words(TPairState state) {
    switch (state) {
        case TPairState::First:
            return L"the first";
        case TPairState::Second:
            return L"the second";
        case TPairState::Keep:
            break;
    }
    return L"unchanged";
}

TText Words(const TPlace& place, const TBoxRecord& records) {
    return L"checked: " + Words(place, records.Checked) + L"; clear: " + Words(place, records.Clear);
}

/// Names the part of the value that shows, where it is not all of it.
TText Shown(const TPlace& place) {
    if (place.Coding == TCoding::FirstByte) return L"of the first byte: ";
    return place.Mask == 0 ? TText() : L"of the bit " + Hex(place.Mask) + L": ";
}

TText Words(const TBoxRule& rule) {
    const TText missing = L"; missing: " + Words(rule.Missing);
    if (!rule.When) return Words(rule.Otherwise) + L" when there is a value" + missing;
    TText words = Words(rule.When->Shows) + L" when " + rule.When->Value.Words() + L"; ";
    return words + L"else " + Words(rule.Otherwise) + missing;
}

/// Names where the value is read when that is not the place. Spellings of one place differ in case and in the last backslash
/// at most.
TText From(const TPlace* loadedFrom, const TPlace& place) {
    const bool isElsewhere =
        loadedFrom != nullptr &&
        (loadedFrom->Kind != place.Kind || !SameText(TText(loadedFrom->ValueName), place.ValueName));
    return isElsewhere ? L"from " + Words(*loadedFrom) + L": " : TText();
}

TText Missing(const TPlace& place, const std::optional<std::int32_t>& missing) {
    // A parameter that is a number is never missing.
    if (place.Kind == TPlaceKind::Parameter && place.Parameter.BlockSize == 0) return {};
    return L"; missing: " + (missing ? DecimalText(*missing) : TText(L"unchanged"));
}

TText Items(const TPlace& place, std::span<const TDatum> items) {
    TText words;
    for (std::size_t i = 0; i < items.size(); ++i)
        words += (i == 0 ? L"item " : L"; item ") + DecimalText(static_cast<std::int64_t>(i)) + L": " +
                 Words(place, items[i]);
    return words;
}

TRowWords Entry(const TCheckBoxRow& row) {
    TText shows = From(row.LoadedFrom, row.Value) + Shown(row.Value) + Words(row.Shows);
    TText writes = Words(row.Value, row.Records);
    if (row.RecordsWhenMissing != nullptr)
        writes += L"; either, while there is no value: " + Words(row.Value, *row.RecordsWhenMissing);
    if (row.Policy != nullptr) {
        shows += L"; clear while the policy " + Code(row.Policy) + L" is 1";
        writes += L". Checking it also turns that policy off";
    }
    for (const TBoxFurther& further : row.Further)
        writes += L". Also " + Words(further.Value) + L": " + Words(further.Value, further.Records);
    return {Words(row.Value), shows, writes};
}

TRowWords Entry(const TKeyRow& row) {
    return {Words(row.Value), L"checked when there is such a key",
            L"checked: text `\"\"`, which creates the key; clear: deletes the key"};
}

TRowWords Entry(const TFieldsRow& row) {
    TText writes;
    if (row.Records) writes = Words(row.Value, *row.Records) + L". Also ";
    for (const TBoxField& field : row.Fields)
        writes += (&field == row.Fields.data() ? L"" : L", ") + Words(field.Value);
    return {Words(row.Value), Words(row.Shows),
            writes + L": checked: the text of the field; clear: deletes the value"};
}

TRowWords Entry(const TServiceRow& row) {
    return {Words(row.Value), L"checked while the service runs",
            L"checked: enables and starts it; clear: stops and disables it"};
}

TRowWords Entry(const TRadioPairRow& row) {
    return {Words(row.Value),
            L"the first when " + row.FirstWhen.Words() + L"; else the second; missing: " + Words(row.Missing),
            L"first: " + Words(row.Value, row.FirstRecords) + L"; second: " +
                Words(row.Value, row.SecondRecords)};
}

TRowWords Entry(const TChoiceRow& row) {
    TText writes = Items(row.Value, row.Items);
    if (row.Further)
        writes +=
            L". Also " + Words(row.Further->Value) + L": " + Items(row.Further->Value, row.Further->Items);
    return {Words(row.Value),
            L"the item of the value; missing: " +
                (row.Missing < 0 ? TText(L"unchanged") : L"item " + DecimalText(row.Missing)),
            writes};
}

TRowWords Entry(const TNumberRow& row) {
    TText writes = Numbers(row.Value) + L"the number" + Words(row.Value.Coding);
    if (row.Source == TNumberSource::Typed) writes += L", as it was typed";
    if (row.RemovedAt) writes += L"; " + DecimalText(*row.RemovedAt) + L" removes it";
    if (row.Further) writes += L". Also " + Words(row.Further->Value);
    return {Words(row.Value),
            From(row.LoadedFrom, row.Value) + L"the number" +
                Missing(row.LoadedFrom == nullptr ? row.Value : *row.LoadedFrom, row.Missing) +
                (row.NoNumberIsFault ? L"; no number: a fault" : L""),
            writes};
}

TRowWords Entry(const TTextRow& row) {
    return {
        Words(row.Value),
        L"the text; missing: " + (row.MissingClears             ? TText(L"nothing")
                                  : row.MissingShows == nullptr ? TText(L"unchanged")
                                                                : L"the text of " + Code(row.MissingShows)),
        L"text" + Words(row.Value.Coding)};
}

TRowWords Entry(const TSwitchRow& row) {
    const TText amount = row.Items.empty() ? Numbers(row.Value) + L"the number" + Words(row.Value.Coding)
                                           : Items(row.Value, row.Items);
    TText shows = L"off when " + row.OffWhen.Words() + L"; else on, with the " +
                  (row.Items.empty() ? L"number" : L"item of the value");
    if (row.OtherItem >= 0) shows += L", else item " + DecimalText(row.OtherItem);
    if (row.Value.Kind != TPlaceKind::Parameter)
        shows += TText(L"; missing: ") + (row.Missing == kKeep    ? L"unchanged"
                                          : row.Missing == kClear ? L"off"
                                                                  : L"on");
    return {Words(row.Value), shows, L"on: " + amount + L"; off: " + Words(row.Value, row.OffRecords)};
}

TRowWords Entry(const TListsRow& row) {
    TText shows;
    for (const TBitsList& list : row.Lists) {
        shows += (shows.empty() ? L"the bits " : L"; the bits ") + Hex(list.Mask) + L" of the number: ";
        for (std::size_t i = 0; i < list.Items.size(); ++i)
            shows += (i == 0 ? L"item " : L", item ") + DecimalText(static_cast<std::int64_t>(i)) + L" " +
                     Hex(list.Items[i]);
        if (list.Items.empty()) shows += L"the item's number";
    }
    return {Words(row.Value), shows + Missing(row.Value, row.Missing),
            Numbers(row.Value) + L"the number of all lists"};
}

TRowWords Entry(const TColorRow& row) {
    return {Words(row.Value), L"the colour; missing: unchanged",
            L"the colour that the user picks" + Words(row.Value.Coding)};
}

TRowWords Entry(const TProgramRow& row) {
    return {Words(row.Value), L"the command line, in its edit; missing: unchanged",
            L"text, the command line of the program that the user chooses"};
}

TRowWords Entry(const TSpecialRow& row) {
    TText places;
    for (const TPlace& place : row.Places) places += (places.empty() ? L"" : L"<br>") + Words(place);
    return {places, L"by a rule of its own", L"by a rule of its own"};
}

}  // namespace

std::wstring Words(const TPlace& place) {
    switch (place.Kind) {
        case TPlaceKind::Preference:
            return L"Firefox preference " + Code(place.ValueName);
        case TPlaceKind::Parameter:
            return InParameter(place.Parameter);
        case TPlaceKind::Service:
            return L"service " + Code(place.ValueName);
        case TPlaceKind::Registry:
            break;
    }
    return InRegistry(place);
}

TRowWords WordsOf(const TRow& row) {
    return std::visit([](const auto& kind) { return Entry(kind); }, row);
}
