// Prints the reference of all settings, in Markdown, from the catalogue itself.
#include <algorithm>
#include <cstdio>

#include "app/category_table.h"
#include "app/page_table.h"
#include "platform/unicode.h"
#include "settings/row_words.h"
#include "settings/shell/desktop_icons.h"
#include "ui/containers.h"
#include "ui/controls.h"

namespace {

using TText = std::wstring;

TText Code(const TText& text) { return L'`' + text + L'`'; }

/// A caption without its access key and the colon at its end.
TText Plain(TText caption) {
    std::erase(caption, L'&');
    if (!caption.empty() && caption.back() == L':') caption.pop_back();
    return caption;
}

/// A text within a cell of a table.
TText Cell(const TText& text) {
    TText cell;
    for (const wchar_t c : text) {
        if (c == L'|') cell += L'\\';
        cell += c;
    }
    return cell;
}

TText Words(const TLevels& levels) {
    const auto name = [](int level) -> TText {
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

/// The Windows versions on which the row holds and its control is offered, and those on which it is read, where they
/// differ.
TText Levels(const TPageDefinition& page, const TControl& control, const TRow& row) {
    const TLevels loadedOn = std::visit([](const auto& kind) { return kind.LoadedOn; }, row);
    TLevels offered = LevelsOf(row);
    for (const TControl* c = &control; c != nullptr; c = c->Parent())
        for (const TOffer& offer : page.Offers)
            if (c->Name() == offer.Control)
                offered = {std::max(offered.First, offer.Levels.First),
                           std::min(offered.Last, offer.Levels.Last)};
    const TText shown = Words(offered);
    const TText read = Words(loadedOn);
    return read == L"all" || read == shown ? shown : shown + L"; read on " + read;
}

/// The control whose text a user reads beside this one: itself, the label or box before it, or its group.
const TControl& CaptionedBy(const TControl& control) {
    const auto hasOwn = [](const TControl& c) {
        return c.Kind() == TComponentKind::CheckBox || c.Kind() == TComponentKind::RadioButton ||
               c.Kind() == TComponentKind::Button || c.Kind() == TComponentKind::Label;
    };
    if (hasOwn(control)) return control;
    const TControl* captioned = control.Parent();
    for (const TControl* sibling : control.Parent()->Children()) {
        if (sibling == &control) break;
        if (hasOwn(*sibling)) captioned = sibling;
    }
    return *captioned;
}

/// That text, with those of the Windows versions that have another one.
TText CaptionOf(const TPageDefinition& page, const TControl& control) {
    const TControl& captioned = CaptionedBy(control);
    TText caption = Plain(captioned.Caption());
    for (const TLevelCaption& name : page.LevelCaptions)
        if (captioned.Name() == name.Control)
            caption += L" (" + Words(name.Levels) + L": " +
                       Plain(kCaptionKeys[static_cast<std::size_t>(name.Caption)].English) + L")";
    return caption;
}

const TControl* SheetOf(const TControl& control) {
    const TControl* c = &control;
    while (c != nullptr && c->Kind() != TComponentKind::TabSheet) c = c->Parent();
    return c;
}

void Print(const TText& line) { std::printf("%s\n", ToUtf8(line).c_str()); }

void PrintRow(const TForm& form, const TPageDefinition& page, const TRow& row, const TControl*& sheet) {
    const auto names = ControlsOf(row);
    const TControl& first = *form.Find(names.front());
    if (const TControl* here = SheetOf(first); here != sheet) {
        sheet = here;
        Print(L"");
        Print(L"### " + Plain(here->Caption()));
        Print(L"");
        Print(L"| Setting | Place | Shows | Writes | Windows | Restart |");
        Print(L"|---|---|---|---|---|---|");
    }
    TText setting;
    for (const TText& name : names)
        setting += (setting.empty() ? L"" : L"<br>") + CaptionOf(page, *form.Find(name)) + L" " + Code(name);
    const TRowWords entry = WordsOf(row);
    const bool restart = RestartOf(row);
    Print(L"| " + Cell(setting) + L" | " + Cell(entry.Place) + L" | " + Cell(entry.Shows) + L" | " +
          Cell(entry.Writes) + L" | " + Levels(page, first, row) + L" | " + (restart ? L"yes" : L"") + L" |");
}

void PrintPage(const TForm& form, const TPageDefinition& page, const TText& caption) {
    Print(L"");
    Print(L"## " + caption);
    // A loader may go back and forth between the sheets.
    std::vector<std::pair<const TControl*, std::vector<const TRow*>>> sheets;
    for (const TLoader& loader : page.Loaders) {
        for (const TRow& row : loader) {
            const TControl* sheet = SheetOf(*form.Find(ControlsOf(row).front()));
            auto entry = std::ranges::find(sheets, sheet, [](const auto& e) { return e.first; });
            if (entry == sheets.end()) entry = sheets.insert(entry, {sheet, {}});
            entry->second.push_back(&row);
        }
    }
    const TControl* current = nullptr;
    for (const auto& [sheet, rows] : sheets)
        for (const TRow* row : rows) PrintRow(form, page, *row, current);
}

}  // namespace

int main() {
    TForm form(L"Quilltune_FormMain", L"TQuilltune_FormMain");
    form.Build(form, Notebook(L"Notebook_Main", {}));
    for (const TPageDefinition* page : PageDefinitions())
        form.Build(*form.Find(L"Notebook_Main"), page->Design());

    Print(L"# Settings");
    Print(L"");
    Print(
        L"Generated from the catalogue by `tools/settings_reference`; do not edit. \"Shows\" says what a "
        L"stored value makes");
    Print(
        L"of the controls, \"Writes\" what Apply writes for the state that the user has chosen. HKLM, HKCU, "
        L"HKU and HKCR are the");
    Print(L"registry's roots; a text is a REG_SZ value.");
    for (const TCategoryGroupRow& group : CategoryTable())
        for (const TCategoryItemRow& item : group.Items)
            for (const TPageDefinition* page : PageDefinitions())
                if (page->Tag == item.Tag) PrintPage(form, *page, item.Caption);

    TForm dialog(L"Quilltune_FormFolder", L"TQuilltune_FormFolder");
    dialog.Build(dialog, DesktopIcons().Design());
    PrintPage(dialog, DesktopIcons(), L"Icons and Drives (a dialog: its OK writes at once)");
}
