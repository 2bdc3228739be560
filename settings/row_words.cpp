#include "settings/row_words.h"

#include "platform/text.h"

namespace {

using TText = std::wstring;

TText Code(const TText& text) { return L'`' + text + L'`'; }

TText Hex(std::uint32_t number) {
    TText text;
    do text.insert(text.begin(), L"0123456789ABCDEF"[number % 16]);
    while ((number /= 16) != 0);
    return L"0x" + text;
}

TText Words(const TPlace& place) {
    if (place.IsFirefoxPref) return L"Firefox preference " + Code(place.ValueName);
    const wchar_t* root = place.Root == kLocalMachine  ? L"HKLM"
                          : place.Root == kCurrentUser ? L"HKCU"
                          : place.Root == kUsers       ? L"HKU"
                                                       : L"HKCR";
    TText key = root + TText(place.Key);
    if (key.back() == L'\\') key.pop_back();
    return Code(key) + L" " + (*place.ValueName == 0 ? TText(L"(default value)") : Code(place.ValueName));
}

TText Words(const TDatum& datum) {
    const TText number = std::to_wstring(datum.Number);
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

TText Words(const TBoxRecord& records) {
    return L"checked: " + Words(records.Checked) + L"; clear: " + Words(records.Clear);
}

TRowWords Entry(const TCheckBoxRow& row) {
    TText shows;
    if (row.Shows.When)
        shows = Words(row.Shows.When->Shows) + L" when " + row.Shows.When->Value.Words() + L"; ";
    shows += L"else " + Words(row.Shows.Otherwise) + L"; missing: " + Words(row.Shows.Missing);
    // Spellings of one place differ in case and in the last backslash at most.
    if (row.LoadedFrom && !SameText(TText(row.LoadedFrom->ValueName), row.Value.ValueName))
        shows = L"from " + Words(*row.LoadedFrom) + L": " + shows;
    TText writes = Words(row.Records);
    if (row.Policy) {
        shows += L"; clear while the policy " + Code(row.Policy->ValueName) + L" is 1";
        writes += L". Checking it also turns that policy off";
    }
    if (row.Further) writes += L". Also " + Words(row.Further->Value) + L": " + Words(row.Further->Records);
    return {Words(row.Value), shows, writes};
}

TRowWords Entry(const TKeyRow& row) {
    return {Words(row.Value), L"checked when there is such a key",
            L"checked: text `\"\"`, which creates the key; clear: deletes the key"};
}

TRowWords Entry(const TRadioPairRow& row) {
    return {Words(row.Value),
            L"the first when " + row.FirstWhen.Words() + L"; else the second; missing: " + Words(row.Missing),
            L"first: " + Words(row.FirstRecords) + L"; second: " + Words(row.SecondRecords)};
}

TRowWords Entry(const TChoiceRow& row) {
    TText items;
    for (std::size_t i = 0; i < row.Items.size(); ++i)
        items += (i == 0 ? L"item " : L"; item ") + std::to_wstring(i) + L": " + Words(row.Items[i]);
    return {Words(row.Value),
            L"the item of the value; missing: " +
                (row.Missing < 0 ? TText(L"unchanged") : L"item " + std::to_wstring(row.Missing)),
            items};
}

TRowWords Entry(const TNumberRow& row) {
    return {Words(row.Value),
            L"the number; missing: " + (row.Missing ? std::to_wstring(*row.Missing) : TText(L"unchanged")),
            row.Type == TNumberType::Text ? L"text, the number in decimal" : L"DWORD, the number"};
}

TRowWords Entry(const TTextRow& row) {
    return {Words(row.Value),
            L"the text; missing: " + (row.MissingShows == nullptr ? TText(L"unchanged")
                                                                  : L"the text of " + Code(row.MissingShows)),
            L"text"};
}

TText Parameter(std::uint32_t get, std::uint32_t set, TParameterSlot slot) {
    return L"system parameter, read " + Hex(get) + L", set " + Hex(set) +
           (slot == TParameterSlot::Param ? L" (uiParam)" : L" (pvParam)");
}

TRowWords Entry(const TParameterSwitchRow& row) {
    return {Parameter(row.Get, row.Set, row.Slot), L"on or off", L"1 when on, 0 when off"};
}

TRowWords Entry(const TParameterNumberRow& row) {
    return {Parameter(row.Get, row.Set, row.Slot), L"the number", L"the number"};
}

TRowWords Entry(const TSpecialRow& row) { return {Words(row.Value), row.Rule, L"as said on the left"}; }

}  // namespace

TRowWords WordsOf(const TRow& row) {
    return std::visit([](const auto& kind) { return Entry(kind); }, row);
}

std::wstring WordsOf(const TLevels& levels) {
    const auto name = [](int level) -> std::wstring {
        constexpr const wchar_t* kNames[] = {L"2000", L"XP", L"Vista", L"7"};
        return level < 4 || level > 7 ? std::to_wstring(level) : kNames[level - 4];
    };
    if (levels.First == kEveryLevel.First && levels.Last == kEveryLevel.Last)
        return levels.Except < 0 ? L"all" : L"all but " + name(levels.Except);
    if (levels.First == levels.Last) return name(levels.First);
    if (levels.First == kEveryLevel.First) return L"up to " + name(levels.Last);
    if (levels.Last == kEveryLevel.Last) return name(levels.First) + L" and later";
    return name(levels.First) + L" to " + name(levels.Last);
}
