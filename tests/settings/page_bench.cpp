#include "tests/settings/page_bench.h"

namespace {

std::wstring Hex(std::uint32_t number, int digits) {
    std::wstring text;
    while (number != 0 || digits > 0) {
        text.insert(text.begin(), L"0123456789ABCDEF"[number % 16]);
        number /= 16;
        --digits;
    }
    return text;
}

std::wstring Hex(const TBytes& bytes) {
    std::wstring text;
    for (const std::uint8_t byte : bytes) text += (text.empty() ? L"" : L" ") + Hex(byte, 2);
    return text;
}

std::wstring Words(const TRegRecor& record) {
    switch (record.DataType) {
        case TRegDataType::Dword:
            return std::to_wstring(std::get<std::int32_t>(record.Value));
        case TRegDataType::Binary:
            return Hex(std::get<TBytes>(record.Value));
        default:
            break;
    }
    // A number that is written in the type of the stored value stays a number until Apply.
    const auto* number = std::get_if<std::int32_t>(&record.Value);
    return L'"' + (number != nullptr ? std::to_wstring(*number) : std::get<std::wstring>(record.Value)) +
           L'"';
}

std::wstring Line(const TRegRecor& record) {
    if (record.IsSystemParameter) {
        EXPECT_EQ(record.SpiWinIni, 1u) << "every recorder updates the user's profile";
        const auto* number = std::get_if<std::uint32_t>(&record.SpiData);
        return L"parameter 0x" + Hex(record.SpiAction, 1) + L'(' + std::to_wstring(record.SpiParam) + L", " +
               (number != nullptr ? std::to_wstring(*number) : Hex(std::get<TBytes>(record.SpiData))) + L')';
    }
    const wchar_t* root = record.RootKey == TRootKey::LocalMachine  ? L"HKLM"
                          : record.RootKey == TRootKey::CurrentUser ? L"HKCU"
                          : record.RootKey == TRootKey::Users       ? L"HKU"
                                                                    : L"HKCR";
    const std::wstring key = root + record.Key.substr(0, record.Key.find_last_not_of(L'\\') + 1);
    const std::wstring place = key + L'[' + record.ValueName + L']';
    switch (record.Action) {
        case TRegAction::DeleteKey:
            return L"delete " + key;
        case TRegAction::DeleteValue:
            return L"delete " + place;
        case TRegAction::Write:
            break;
    }
    return place + L" = " + Words(record);
}

}  // namespace

std::wstring TPageBench::State(const std::wstring& name) {
    TControl& control = Get<TControl>(name);
    if (const auto* list = dynamic_cast<const TListView*>(&control)) {
        std::wstring initials;
        for (const auto& row : list->Rows())
            if (row.Checked) initials += row.Cells[0][0];
        return initials.empty() ? L"none" : initials;
    }
    const TControlState state = StateOf(control);
    if (const auto* checked = std::get_if<bool>(&state)) return *checked ? L"on" : L"off";
    if (const auto* item = std::get_if<TItemState>(&state)) return std::to_wstring(item->Index);
    if (const auto* number = std::get_if<TNumberState>(&state)) return std::to_wstring(number->Number);
    if (const auto* text = std::get_if<std::wstring>(&state)) return *text;
    if (const auto* color = std::get_if<TColorState>(&state)) return L"0x" + Hex(color->Color, 6);
    return control.Caption();
}

void TPageBench::Act(const std::wstring& name, const std::wstring& state) {
    TControl& control = Get<TControl>(name);
    if (auto* button = dynamic_cast<TButton*>(&control)) return button->Click();
    if (auto* edit = dynamic_cast<TEdit*>(&control)) {
        edit->SetFocused(true);
        return edit->SetText(state);
    }
    if (auto* list = dynamic_cast<TListView*>(&control)) {
        for (std::size_t i = 0; i < list->Rows().size(); ++i)
            if (list->Rows()[i].Cells[0].starts_with(state)) list->SetRowChecked(i, !list->Rows()[i].Checked);
        return;
    }
    const bool isBox = std::holds_alternative<bool>(StateOf(control));
    SetState(control, StateFromNumber(control, isBox ? state == L"on" : std::stoi(state)));
}

std::vector<std::wstring> TPageBench::Pending() const {
    std::vector<std::wstring> lines;
    for (const TRegRecor& record : FChanges.Pending()) lines.push_back(record.Name + L": " + Line(record));
    return lines;
}
