// Prints the reference of all settings, in Markdown, from the catalogue itself.
#include <algorithm>
#include <cstdio>

#include "platform/unicode.h"
#include "settings/catalogue.h"
#include "settings/category_table.h"
#include "settings/row_words.h"
#include "tests/fakes/fake_system.h"

namespace {

using TText = std::wstring;

TText Code(const TText& text) { return L'`' + text + L'`'; }

/// A text within a cell of a table.
TText Cell(const TText& text) {
    TText cell;
    for (const wchar_t c : text) {
        if (c == L'|') cell += L'\\';
        cell += c;
    }
    return cell;
}

/// The caption, with those of the Windows versions that have another one, and the control.
TText Words(const TSetting& setting) {
    TText words = setting.GeneralCaption;
    for (const TSetting::TLevelName& name : setting.LevelNames)
        words += L" (" + WordsOf(name.Levels) + L": " + name.Caption + L")";
    return words + L" " + Code(setting.Id);
}

/// The Windows versions on which the row holds and its control is offered, and those on which it is read, where they
/// differ.
TText Levels(const TCataloguedRow& row) {
    const TLevels loadedOn = std::visit([](const auto& kind) { return kind.LoadedOn; }, *row.Row);
    const TText shown = WordsOf(row.Levels);
    const TText read = WordsOf(loadedOn);
    return read == L"all" || read == shown ? shown : shown + L"; read on " + read;
}

void Print(const TText& line) { std::printf("%s\n", ToUtf8(line).c_str()); }

TText RestartWord(TRestart restart) {
    return restart == TRestart::None ? L"" : restart == TRestart::Windows ? L"Windows" : L"Explorer";
}

void PrintRow(const TCataloguedRow& row) {
    TText settings;
    for (const TSetting* setting : row.Settings)
        settings += (settings.empty() ? L"" : L"<br>") + Words(*setting);
    const TRowWords words = WordsOf(*row.Row);
    Print(L"| " + Cell(settings) + L" | " + Cell(words.Place) + L" | " + Cell(words.Shows) + L" | " +
          Cell(words.Writes) + L" | " + Levels(row) + L" | " + RestartWord(RestartOf(*row.Row)) + L" |");
}

/// What the settings and presets of the sheet are for. Several may have one caption.
void PrintExplanations(const TCatalogue& catalogue, const TText& page, const TText& sheet) {
    Print(L"");
    for (const TSetting* setting : catalogue.Settings())
        if (setting->Page == page && setting->Sheet == sheet)
            Print(L"- " + Code(setting->Id) + L": " + setting->Explanation);
}

void PrintPage(const TCatalogue& catalogue, const TCataloguedPage& page, const TText& caption) {
    Print(L"");
    Print(L"## " + caption);
    // A loader may go back and forth between the sheets.
    std::vector<TText> sheets;
    for (const TCataloguedRow& row : page.Rows)
        if (std::ranges::count(sheets, row.Settings.front()->Sheet) == 0)
            sheets.push_back(row.Settings.front()->Sheet);
    for (const TText& sheet : sheets) {
        Print(L"");
        Print(L"### " + sheet);
        Print(L"");
        Print(L"| Setting | Place | Shows | Writes | Windows | Restart |");
        Print(L"|---|---|---|---|---|---|");
        for (const TCataloguedRow& row : page.Rows)
            if (row.Settings.front()->Sheet == sheet) PrintRow(row);
        PrintExplanations(catalogue, page.Caption, sheet);
    }
}

/// What the design calls the page.
TText CaptionOf(const TCataloguedPage& page) {
    for (const TCategoryGroupRow& group : CategoryTable())
        for (const TCategoryItemRow& item : group.Items)
            if (item.Tag == page.Definition->Tag) return item.Caption;
    return page.Caption + L" (a dialog: its OK writes at once)";
}

}  // namespace

int main() {
    TFakeSystem fake;
    const TCatalogue catalogue(fake.System, nullptr, 7);
    Print(L"# Settings");
    Print(L"");
    Print(
        L"Generated from the catalogue by `tools/settings_reference`; do not edit. \"Shows\" says what a "
        L"stored value makes");
    Print(
        L"of the controls, \"Writes\" what Apply writes for the state that the user has chosen. HKLM, HKCU, "
        L"HKU and HKCR are the");
    Print(L"registry's roots; a text is a REG_SZ value.");
    for (const TCataloguedPage& page : catalogue.Pages()) PrintPage(catalogue, page, CaptionOf(page));
}
