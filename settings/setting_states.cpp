#include "settings/setting_states.h"

#include <algorithm>

#include "base/decimal.h"
#include "platform/text.h"

namespace {

constexpr const wchar_t* kOn = L"on";
constexpr const wchar_t* kOff = L"off";
constexpr const wchar_t* kPress = L"press";
constexpr int kColorDigits = 6;

std::wstring ColorWords(TColor color) {
    std::wstring words = L"#";
    // Red is the lowest byte.
    for (int i = 0; i < kColorDigits; ++i)
        words += L"0123456789ABCDEF"[color >> (8 * (i / 2) + (i % 2 == 0 ? 4 : 0)) & 0xF];
    return words;
}

std::optional<TControlState> ParseColor(std::wstring_view words) {
    if (!words.starts_with(L'#') || words.size() != kColorDigits + 1) return std::nullopt;
    TColor color = 0;
    for (int i = 0; i < kColorDigits; ++i) {
        const std::size_t digit =
            FindText(L"0123456789ABCDEF", words.substr(static_cast<std::size_t>(i) + 1, 1));
        if (digit == std::wstring_view::npos) return std::nullopt;
        color |= static_cast<TColor>(digit) << (8 * (i / 2) + (i % 2 == 0 ? 4 : 0));
    }
    return TColorState{color};
}

std::optional<std::size_t> FindItem(const TStates& states, std::wstring_view words) {
    for (std::size_t i = 0; i < states.Items.size(); ++i)
        if (SameText(states.Items[i], words)) return i;
    const auto number = ParseInteger(words);
    if (states.Kind != TStateKind::Item || !number || *number < 0) return std::nullopt;
    const auto index = static_cast<std::size_t>(*number);
    return index < states.Items.size() ? std::optional(index) : std::nullopt;
}

std::optional<TControlState> ParseChecks(const TStates& states, std::wstring_view words) {
    TChecksState checks(states.Items.size());
    while (!Trim(words).empty()) {
        const std::size_t comma = std::min(words.find(L','), words.size());
        const auto item = FindItem(states, Trim(words.substr(0, comma)));
        if (!item) return std::nullopt;
        checks[*item] = true;
        words.remove_prefix(std::min(comma + 1, words.size()));
    }
    return checks;
}

}  // namespace

bool TStates::Allow(const TControlState& state) const {
    const auto* item = std::get_if<TItemState>(&state);
    const auto* number = std::get_if<TNumberState>(&state);
    const auto* checks = std::get_if<TChecksState>(&state);
    switch (Kind) {
        case TStateKind::OnOff:
            return std::holds_alternative<bool>(state);
        case TStateKind::On:
            return state == TControlState(true);
        case TStateKind::Item:
            return item != nullptr && item->Index >= 0 &&
                   static_cast<std::size_t>(item->Index) < Items.size();
        case TStateKind::Number:
            return number != nullptr && number->Number >= Min && number->Number <= Max;
        case TStateKind::Text:
            return std::holds_alternative<std::wstring>(state);
        case TStateKind::Color:
            return std::holds_alternative<TColorState>(state);
        case TStateKind::Press:
            return std::holds_alternative<std::monostate>(state);
        case TStateKind::Checks:
            return checks != nullptr && checks->size() == Items.size();
        case TStateKind::None:
            break;
    }
    return false;
}

std::wstring WordsOf(const TStates& states, const TControlState& state) {
    if (const auto* checked = std::get_if<bool>(&state)) return *checked ? kOn : kOff;
    if (const auto* item = std::get_if<TItemState>(&state)) return DecimalText(item->Index);
    if (const auto* number = std::get_if<TNumberState>(&state)) return DecimalText(number->Number);
    if (const auto* text = std::get_if<std::wstring>(&state)) return *text;
    if (const auto* color = std::get_if<TColorState>(&state)) return ColorWords(color->Color);
    std::wstring words;
    if (const auto* checks = std::get_if<TChecksState>(&state))
        for (std::size_t i = 0; i < std::min(checks->size(), states.Items.size()); ++i)
            if ((*checks)[i]) words += (words.empty() ? L"" : L",") + states.Items[i];
    return words;
}

std::optional<TControlState> ParseState(const TStates& states, std::wstring_view words) {
    std::optional<TControlState> state;
    switch (states.Kind) {
        case TStateKind::OnOff:
        case TStateKind::On:
            if (SameText(words, kOn)) state = true;
            if (SameText(words, kOff)) state = false;
            break;
        case TStateKind::Item:
            if (const auto item = FindItem(states, words)) state = TItemState{static_cast<int>(*item)};
            break;
        case TStateKind::Number:
            if (const auto number = ParseInteger(words)) state = TNumberState{*number};
            break;
        case TStateKind::Text:
            return std::wstring(words);
        case TStateKind::Color:
            state = ParseColor(words);
            break;
        case TStateKind::Press:
            if (SameText(words, kPress)) state = std::monostate();
            break;
        case TStateKind::Checks:
            state = ParseChecks(states, words);
            break;
        case TStateKind::None:
            break;
    }
    return state && states.Allow(*state) ? state : std::nullopt;
}

std::vector<std::wstring> AllowedWords(const TStates& states) {
    switch (states.Kind) {
        case TStateKind::OnOff:
            return {kOn, kOff};
        case TStateKind::On:
            return {kOn};
        case TStateKind::Item: {
            std::vector<std::wstring> words;
            for (const std::wstring& item : states.Items)
                words.push_back(DecimalText(static_cast<std::int64_t>(words.size())) + L" (" + item + L")");
            return words;
        }
        case TStateKind::Number:
            return {DecimalText(states.Min) + L" to " + DecimalText(states.Max)};
        case TStateKind::Text:
            return {L"a text"};
        case TStateKind::Color:
            return {L"#RRGGBB"};
        case TStateKind::Press:
            return {kPress};
        case TStateKind::Checks:
            return states.Items;
        case TStateKind::None:
            break;
    }
    return {};
}
