// The commands that only ask.
#include <algorithm>

#include "console/command.h"
#include "platform/text.h"
#include "settings/change_words.h"

namespace {

std::wstring StateWords(TCatalogue& catalogue, const TSetting& setting, const TPresent& present) {
    // A preset has no state, and need not be asked.
    return setting.Preset != nullptr ? std::wstring() : WordsOf(catalogue.States(setting), present.State);
}

TList ListOf(const std::vector<std::wstring>& texts) {
    TList list;
    for (const std::wstring& text : texts) list.push_back({text});
    return list;
}

/// The page of that caption, or the only one of whose caption it is a part.
std::wstring PageOf(TTask& task, const std::wstring& typed) {
    std::vector<std::wstring> captions;
    std::vector<std::wstring> holding;
    for (const TCataloguedPage& page : task.Catalogue().Pages()) {
        if (SameText(page.Caption, typed)) return page.Caption;
        captions.push_back(page.Caption);
        if (!typed.empty() && FindText(page.Caption, typed) != std::wstring::npos)
            holding.push_back(page.Caption);
    }
    if (holding.empty()) throw task.Unknown(TText::UnknownPage, typed, captions);
    if (holding.size() == 1) return holding.front();
    std::wstring names;
    for (const std::wstring& caption : holding) names += (names.empty() ? L"" : L", ") + caption;
    throw TWrongUsage{task.Texts(TText::ManyPages, {typed, names})};
}

/// One state of each kind that the setting can be brought into, or all when they can be counted.
std::vector<TControlState> Examples(const TStates& states, const TControlState& present) {
    std::vector<TControlState> examples;
    switch (states.Kind) {
        case TStateKind::OnOff:
            return {true, false};
        case TStateKind::On:
            return {true};
        case TStateKind::Item:
            for (int i = 0; i < static_cast<int>(states.Items.size()); ++i)
                examples.emplace_back(TItemState{i});
            return examples;
        case TStateKind::Number:
            if (!states.Allow(present)) return {TNumberState{states.Min}};
            break;
        case TStateKind::Press:
            return {std::monostate()};
        case TStateKind::Text:
        case TStateKind::Color:
        case TStateKind::Checks:
            break;
        case TStateKind::None:
            return {};
    }
    return states.Allow(present) ? std::vector{present} : std::vector<TControlState>();
}

}  // namespace

void ListSettings(TTask& task) {
    const std::wstring page = task.Words.empty() ? std::wstring() : PageOf(task, task.Words.front());
    TList list;
    for (const TSetting* setting : task.Catalogue().Settings()) {
        if (!page.empty() && setting->Page != page) continue;
        const TPresent present = task.Catalogue().Shown(*setting);
        list.push_back({TRecord{{L"id", {setting->Id}},
                                {L"state", {StateWords(task.Catalogue(), *setting, present)}},
                                {L"caption", {setting->Caption}},
                                {L"page", {setting->Page}, false},
                                {L"sheet", {setting->Sheet}, false},
                                {L"group", {setting->Group}, false},
                                {L"offered", {present.IsOffered}, false},
                                {L"enabled", {present.IsEnabled}, false}}});
    }
    task.Print({std::move(list)});
}

void FindSettings(TTask& task) {
    std::wstring text;
    for (const std::wstring& word : task.Words) text += (text.empty() ? L"" : L" ") + word;
    TList list;
    for (const TSetting* setting : task.Catalogue().Search(text))
        list.push_back({TRecord{{L"id", {setting->Id}},
                                {L"page", {setting->Page}},
                                {L"sheet", {setting->Sheet}},
                                {L"caption", {setting->Caption}},
                                {L"group", {setting->Group}, false},
                                {L"explanation", {setting->Explanation}, false}}});
    task.Print({std::move(list)});
}

void ShowSetting(TTask& task) {
    const TSetting& setting = task.Setting(task.Words.front());
    TCatalogue& catalogue = task.Catalogue();
    const TPresent present = catalogue.Present(setting);
    const TStates states = catalogue.States(setting);
    TList windows;
    for (std::wstring& name : NamesOf(setting.Levels)) windows.push_back({std::move(name)});
    TList stored;
    for (const TPresent::TStored& each : present.Stored)
        stored.push_back({TRecord{{L"place", {PlaceWords(each.Target, task.Captions())}},
                                  {L"content", {ContentWords(each.Target, each.Content, task.Captions())}}}});
    TList writes;
    for (const TControlState& state : Examples(states, present.State))
        for (const TChange& change : catalogue.WouldWrite(setting, state))
            writes.push_back({TRecord{
                {L"state",
                 {states.Kind == TStateKind::Press ? AllowedWords(states).front() : WordsOf(states, state)}},
                {L"place", {PlaceWords(change.Target, task.Captions())}},
                {L"after", {ContentWords(change.Target, change.After, task.Captions())}}}});
    task.Print({TRecord{{L"id", {setting.Id}},
                        {L"caption", {setting.Caption}},
                        {L"page", {setting.Page}},
                        {L"sheet", {setting.Sheet}},
                        {L"group", {setting.Group}},
                        {L"explanation", {setting.Explanation}},
                        {L"state", {WordsOf(states, present.State)}},
                        {L"states", {ListOf(AllowedWords(states))}},
                        {L"offered", {present.IsOffered}},
                        {L"enabled", {present.IsEnabled}},
                        {L"restart", {setting.Restart == TRestart::Windows}},
                        {L"explorer", {setting.Restart == TRestart::Explorer}},
                        {L"windows", {std::move(windows)}},
                        {L"stored", {std::move(stored)}},
                        {L"writes", {std::move(writes)}}}});
}

void GetStates(TTask& task) {
    task.HasCaptions = false;
    std::vector<const TSetting*> settings;
    for (const std::wstring& word : task.Words) settings.push_back(&task.Setting(word));
    TList list;
    for (const TSetting* setting : settings) {
        const TPresent present = task.Catalogue().Shown(*setting);
        std::wstring state;
        if (present.IsOffered)
            state = StateWords(task.Catalogue(), *setting, present);
        else
            task.Fail(task.Texts(TText::NotOffered, {setting->Id}));
        list.push_back({TRecord{{L"id", {setting->Id}, false},
                                {L"state", {std::move(state)}},
                                {L"offered", {present.IsOffered}, false}}});
    }
    task.Print({std::move(list)});
}
