// The catalogue against the pages: what it says beforehand is what a click records and what Apply leaves.
#include "settings/catalogue.h"

#include "engine/carry_out.h"
#include "settings/explanations.h"
#include "settings/page_table.h"
#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kLastAccess = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";

/// Gives it a Firefox in `folder`, whose profile has no user.js yet, services and a value at every place
/// of those pages.
void Prepare(TFakeSystem& fake, const std::wstring& folder, std::span<const TCataloguedPage> populated) {
    fake.Registry.PutKey(TRootKey::LocalMachine,
                         L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
    fake.Files.PutText(folder + L"profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
    fake.Files.PutText(folder + L"p\\prefs.js", "user_pref(\"browser.urlbar.autoFill\",true);\n");
    for (const wchar_t* service : {L"wscsvc", L"MpsSvc", L"SharedAccess"})
        fake.Services.Put(service,
                          {.State = TServiceState::Running, .StartType = TServiceStartType::Automatic});
    for (const TCataloguedPage& page : populated)
        for (const TCataloguedRow& row : page.Rows)
            for (const TTarget& target : TargetsOf(*row.Row))
                if (const auto* place = std::get_if<TRegistryTarget>(&target))
                    fake.Registry.Put({place->Root, place->Key, place->ValueName}, Number(1));
}

std::vector<TControlState> StatesToTry(const TStates& states) {
    switch (states.Kind) {
        case TStateKind::OnOff:
            return {true, false};
        case TStateKind::On:
            return {true};
        case TStateKind::Item: {
            std::vector<TControlState> items;
            for (int i = 0; i < static_cast<int>(states.Items.size()); ++i) items.emplace_back(TItemState{i});
            return items;
        }
        case TStateKind::Number:
            return {TNumberState{states.Min}, TNumberState{states.Max}};
        case TStateKind::Text:
            return {std::wstring(L"C:\\a \"b\".exe")};
        case TStateKind::Color:
            return {TColorState{0x123456}};
        case TStateKind::Press:
            return {TControlState()};
        case TStateKind::Checks: {
            TChecksState checks(states.Items.size());
            checks[2] = true;
            return {checks};
        }
        case TStateKind::None:
            break;
    }
    return {};
}

/// Does it on a page of its own, as a user would.
void Do(TPageBench& bench, const std::wstring& control, const TControlState& state) {
    if (auto* button = bench.Context.Form.Find<TButton>(control)) {
        if (const auto* color = std::get_if<TColorState>(&state))
            bench.Fake.Dialogs.AnswerColor(color->Color);
        if (const auto* file = std::get_if<std::wstring>(&state)) bench.Fake.Dialogs.AnswerFile(*file);
        return button->Click();
    }
    auto* edit = bench.Context.Form.Find<TEdit>(control);
    if (edit == nullptr) return SetState(bench.Get<TControl>(control), state);
    edit->SetFocused(true);
    const auto* number = std::get_if<TNumberState>(&state);
    edit->SetText(number != nullptr ? std::to_wstring(number->Number) : std::get<std::wstring>(state));
    edit->SetFocused(false);
}

/// What the change leaves pending there, and what Apply then leaves.
std::vector<TChange> Recorded(const TCataloguedPage& page, int level, bool populated,
                              const std::wstring& control, const TControlState& state) {
    TPageBench bench(*page.Definition);
    bench.Context.Release = level;
    Prepare(bench.Fake, L"C:\\Mozilla\\", {&page, populated ? 1U : 0U});
    const int tag = page.Definition->Tag;
    for (const TPageLists& lists : PagesOfChosenLists())
        if (lists.Tag == tag) ChooseFirstItems(*bench.Context.Form.Find(std::to_wstring(tag)));
    bench.Load();
    Do(bench, control, state);
    const TFirefoxPrefs* prefs = bench.Context.FirefoxChanged ? &bench.Context.Firefox : nullptr;
    auto changes = PendingChanges(bench.Fake.System, bench.Context.Changes, prefs);
    for (const TChange& change : changes)
        if (const auto* parameter = std::get_if<TParameterTarget>(&change.Target))
            bench.Fake.Parameters.Pair(
                parameter->Set, parameter->Get,
                parameter->InParam ? TFakeParameters::TCarrier::Param : TFakeParameters::TCarrier::Data);
    CarryOut(bench.Context.Changes);
    if (prefs != nullptr) (void)bench.Context.Firefox.SaveFirefoxPrefs();
    for (const TChange& change : changes) {
        const auto* parameter = std::get_if<TParameterTarget>(&change.Target);
        EXPECT_TRUE(change.After == ContentOf(bench.Fake.System, change.Target, prefs) ||
                    (parameter != nullptr && parameter->Get == 0));
    }
    return changes;
}

/// Brings what a catalogue says in form with what happens, for every setting and every state.
void ExpectRight(int level, bool populated) {
    TFakeSystem fake;
    fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Data");
    TCatalogue catalogue(fake.System, nullptr, level);
    Prepare(fake, L"C:\\Data\\Mozilla\\Firefox\\",
            populated ? std::span(catalogue.Pages()) : std::span<const TCataloguedPage>());
    const auto before = fake.Registry.Lines();
    const TSetting& homePage = *catalogue.Find(L"Edit_CommonSettings_Display_FirefoxHomepage_HomePage");
    (void)catalogue.Present(homePage);
    (void)catalogue.WouldWrite(*catalogue.Find(L"Checkbox_Firefox_Use_AddressBar_AutoFill"), false);
    EXPECT_EQ(catalogue.WouldWrite(homePage, L"a").size(), 1U) << "nothing stays of what was asked before";
    int clicks = 0;
    for (const TCataloguedPage& page : catalogue.Pages()) {
        for (const TSetting* setting : catalogue.Settings()) {
            if (setting->Page != page.Caption) continue;
            SCOPED_TRACE(testing::PrintToString(setting->Id) + " on level " + std::to_string(level));
            const TStates states = catalogue.States(*setting);
            const TPresent present = catalogue.Present(*setting);
            for (const TControlState& state : StatesToTry(states)) {
                EXPECT_EQ(ParseState(states, setting->Preset != nullptr || states.Kind == TStateKind::Press
                                                 ? L"press"
                                                 : WordsOf(states, state)),
                          state);
                const auto changes = catalogue.WouldWrite(*setting, state);
                const auto reached = catalogue.PresetStates(*setting);
                const bool isElsewhere = std::ranges::any_of(
                    reached, [&](const auto& each) { return each.first->Page != setting->Page; });
                if (isElsewhere) {
                    EXPECT_EQ(changes, catalogue.WouldWrite(*setting, state));
                    continue;
                }
                if (!present.IsEnabled || (state == present.State && states.Kind != TStateKind::Press))
                    continue;
                ++clicks;
                EXPECT_TRUE(changes == Recorded(page, level, populated, setting->Id, state));
            }
            EXPECT_EQ(catalogue.Present(*setting).State, present.State) << "asking changes nothing";
        }
    }
    EXPECT_GT(clicks, 300);
    EXPECT_EQ(fake.Registry.Lines(), before);
    EXPECT_TRUE(fake.Files.Replaced().empty() && fake.Parameters.Log().empty() &&
                fake.Shell.Notifications().empty() && fake.Shell.HistoryClearings() == 0 &&
                fake.Dialogs.Askers().empty());
    for (const std::string& call : fake.Services.Calls)
        EXPECT_FALSE(call.starts_with("type") || call.starts_with("start") || call == "control 1");
}

TEST(TCatalogueModel, SaysWhatAClickRecordsAndWhatApplyLeaves) {
    ExpectRight(7, false);
    ExpectRight(5, true);
    ExpectRight(11, false);
}

TEST(TCatalogueModel, KnowsItsSettings) {
    TFakeSystem fake;
    fake.Files.PutText(
        L"C:\\L\\English.lng",
        "[Main]\nDisplayName=English\n[Quilltune_M]\nD_SystemDriver=Drives!\n"
        "[Scanner_Quilltune_FormMain]\nCheckbox_Drives_Common_NTFS_SaveLastVisitData.Caption=&Keep dates:\n"
        "Checkbox_Drives_Common_NTFS_SaveLastVisitData.Hint=Costs a zloty.\n");
    TLanguage language(fake.System, L"Scanner", L"C:\\L");
    language.LoadLanguage(L"English");
    TCatalogue catalogue(fake.System, &language, 7);
    const TSetting& setting = *catalogue.Find(L"CHECKBOX_drives_Common_NTFS_SaveLastVisitData");
    EXPECT_EQ(setting.Id, kLastAccess);
    EXPECT_EQ(setting.Caption, L"Keep dates");
    EXPECT_EQ(setting.Explanation, L"Costs a zloty.");
    EXPECT_EQ(setting.Page, L"Drives!");
    EXPECT_TRUE(setting.Levels == kEveryLevel);
    EXPECT_EQ(catalogue.Find(L"Checkbox_None"), nullptr);

    const TPresent missing = catalogue.Present(setting);
    EXPECT_TRUE(missing.IsOffered && missing.IsEnabled && missing.State == TControlState(true));
    ASSERT_EQ(missing.Stored.size(), 1U);
    EXPECT_EQ(missing.Stored[0].Content, TContent(TRegistryContent{}));
    fake.Registry.PutRaw(
        std::get_if<TRegistryTarget>(&missing.Stored[0].Target) != nullptr
            ? TRegistryPlace{TRootKey::LocalMachine, L"SYSTEM\\CurrentControlSet\\Control\\FileSystem",
                             L"NtfsDisableLastAccessUpdate"}
            : TRegistryPlace{},
        {11, {1, 2}});
    catalogue.Refresh();
    EXPECT_EQ(catalogue.Present(setting).Stored[0].Content,
              TContent(TRegistryContent{true, TRawValue{11, {1, 2}}}));

    // Hidden pages and controls are not offered; of the words of a text each counts where it counts most.
    EXPECT_FALSE(
        catalogue.Present(*catalogue.Find(L"Checkbox_FileType_MenuOperation_Drive_OpenDrive")).IsOffered);
    EXPECT_TRUE(catalogue.Find(L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing")->Levels == kSinceXp);
    EXPECT_EQ(catalogue.Search(L"DATES keep").at(0), &setting);
    const TSetting* twin = catalogue.Find(L"Checkbox_CommonSettings_Function_Drives_LastVisit");
    EXPECT_EQ(catalogue.Search(L"zloty"), (std::vector{twin, &setting})) << "they share the explanation";
    EXPECT_EQ(catalogue.Search(L"ntfsdisablelastaccessupdate keep").at(0), &setting);
    EXPECT_TRUE(catalogue.Search(L"keep nowhere").empty());
    const auto found = catalogue.Search(L"access");
    EXPECT_NE(std::ranges::find(found, &setting), found.end()) << "the value's name has it";
    EXPECT_NE(found.front(), &setting) << "a caption that has it comes first";

    const TSetting& preset = *catalogue.Find(L"Button_Drives_Common_Default");
    const auto states = catalogue.PresetStates(preset);
    EXPECT_TRUE(std::ranges::any_of(states, [&](const auto& each) { return each.first == &setting; }));
}

TEST(TCatalogueModel, EverySettingIsExplained) {
    TFakeSystem fake;
    const TCatalogue catalogue(fake.System, nullptr, 7);
    for (const TSetting* setting : catalogue.Settings())
        EXPECT_TRUE(setting->Explanation.ends_with(L'.')) << testing::PrintToString(setting->Id);
}

TEST(TCatalogueModel, BrokenExplanationsAreNone) {
    std::vector<std::uint8_t> packed(kPackedExplanations.begin(), kPackedExplanations.end());
    EXPECT_FALSE(UnpackExplanations(packed).ReadSections().empty());
    for (std::size_t i = 10; i < packed.size(); i += i < 100 || packed.size() - i < 10 ? 1 : 997) {
        EXPECT_TRUE(UnpackExplanations(kPackedExplanations.first(i)).ReadSections().empty()) << i;
        packed[i] ^= 0x5AU;
        EXPECT_TRUE(UnpackExplanations(packed).ReadSections().empty()) << i;
        packed[i] ^= 0x5AU;
    }
    EXPECT_TRUE(UnpackExplanations({}).ReadSections().empty());
}

TEST(TSettingStates, OtherWordsAreRefused) {
    const TStates list{TStateKind::Item, {L"None", L"Some"}};
    const TStates drives{TStateKind::Checks, {L"A:", L"B:"}};
    const struct {
        TStates States;
        const wchar_t* Words;
        std::optional<TControlState> State;
    } cases[] = {
        {{TStateKind::OnOff}, L"OFF", false},
        {{TStateKind::OnOff}, L"1", std::nullopt},
        {{TStateKind::On}, L"off", std::nullopt},
        {list, L"some", TItemState{1}},
        {list, L"0", TItemState{0}},
        {list, L"2", std::nullopt},
        {list, L"-1", std::nullopt},
        {{TStateKind::Number, {}, 1, 9}, L"9", TNumberState{9}},
        {{TStateKind::Number, {}, 1, 9}, L"10", std::nullopt},
        {{TStateKind::Number, {}, 1, 9}, L"", std::nullopt},
        {{TStateKind::Text}, L"", std::wstring()},
        {{TStateKind::Color}, L"#ff8001", TColorState{0x0180FF}},
        {{TStateKind::Color}, L"#ff800g", std::nullopt},
        {{TStateKind::Color}, L"#ff80011", std::nullopt},
        {{TStateKind::Press}, L"Press", TControlState()},
        {{TStateKind::Press}, L"on", std::nullopt},
        {drives, L"b:, A:", TChecksState{true, true}},
        {drives, L"", TChecksState{false, false}},
        {drives, L"C:", std::nullopt},
        {{TStateKind::None}, L"", std::nullopt},
    };
    for (const auto& each : cases)
        EXPECT_EQ(ParseState(each.States, each.Words), each.State)
            << testing::PrintToString(std::wstring(each.Words));
}

}  // namespace
