// The delivered language files against the program: no text without a key, no key without a text.
#include <algorithm>
#include <array>
#include <cwctype>
#include <fstream>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "app/about_form.h"
#include "app/changes_form.h"
#include "app/folder_form.h"
#include "app/history_form.h"
#include "app/main_window.h"
#include "app/preview_form.h"
#include "console/texts.h"
#include "platform/text.h"
#include "settings/shell/desktop_icons.h"
#include "tests/fakes/fake_system.h"
#include "ui/spoken_name.h"

namespace {

using TTexts = std::map<std::wstring, std::wstring>;

/// Everything that the walk through the form translates, with its English text.
TTexts FormTexts(const TForm& form) {
    TTexts texts{{form.Name() + L".Caption", form.Caption()}};
    const auto add = [&](const std::wstring& list, const std::vector<std::wstring>& items) {
        for (std::size_t i = 0; i < items.size(); ++i)
            texts[list + L'[' + std::to_wstring(i) + L"].Caption"] = items[i];
    };
    using enum TComponentKind;
    for (const auto& component : form.Components()) {
        const auto& control = static_cast<const TControl&>(*component);
        const TComponentKind kind = control.Kind();
        if (kind == ComboBox)
            add(control.Name() + L".Items", static_cast<const TComboBox&>(control).Items());
        else if (kind == ListView)
            add(control.Name() + L".Columns", static_cast<const TListView&>(control).Columns());
        else if (std::ranges::count(std::array{Label, Button, GroupBox, CheckBox, RadioButton, TabSheet},
                                    kind) > 0)
            texts[control.Name() + L".Caption"] = control.Caption();
    }
    std::erase_if(texts, [](const auto& text) { return text.second.empty(); });  // those come later
    return texts;
}

/// Those of the desktop-icons dialog. Two of its sheets are named by texts of the program.
TTexts FolderFormTexts(const TForm& form) {
    TTexts texts = FormTexts(form);
    texts.erase(L"TabSheet_Folder_Desktop.Caption");
    texts.erase(L"TabSheet_Folder_Drivers.Caption");
    return texts;
}

/// Those of the settings and presets of the page; those that have a twin share its explanation.
void AddExplanations(TTexts& texts, const TCatalogue& catalogue, const TCataloguedPage& page) {
    std::set<std::wstring> twins;
    for (const TTwin& twin : page.Definition->Twins) twins.insert(twin.Control);
    for (const TSetting* setting : catalogue.Settings())
        if (setting->Page == page.Caption && !twins.contains(setting->Id))
            texts[setting->Id + L".Hint"] = setting->Explanation;
}

TExtIniFile LoadDelivered(const std::string& language) {
    std::ifstream file(QUILLTUNE_SOURCE_DIR "/languages/" + language + ".lng", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    EXPECT_FALSE(bytes.empty()) << language;
    TFakeSystem fake;
    fake.Files.Put(L"C:\\language.lng", {bytes.begin(), bytes.end()});
    TExtIniFile ini;
    EXPECT_TRUE(ini.LoadFromFile(fake.System, L"C:\\language.lng"));
    return ini;
}

void ExpectKeys(const TExtIniFile& ini, const wchar_t* section, const TTexts& texts, bool sameTexts) {
    const std::vector<std::wstring> keys = ini.ReadSection(section);
    for (const auto& [key, text] : texts) {
        EXPECT_EQ(std::ranges::count(keys, key), 1) << "missing or twice: " << testing::PrintToString(key);
        const std::wstring translated = ini.ReadString(section, key, L"");
        // Blanks around a value are not read.
        EXPECT_TRUE(sameTexts ? translated == Trim(text) : !translated.empty())
            << testing::PrintToString(key);
    }
    for (const std::wstring& key : keys)
        EXPECT_TRUE(texts.contains(key)) << "dead: " << testing::PrintToString(key);
}

/// The dialogs whose texts are all those of their designs.
struct TPlainDialogs {
    TSettingNames Names;
    TQuilltune_FormChanges Changes;
    TQuilltune_FormHistory History;
    TQuilltune_FormPreview Preview;
    TQuilltune_FormAbout About;

    TPlainDialogs(TSystem& system, const TQuilltune_FormMain& window, const TLanguage& language)
        : Names(system, language, 0),
          Changes(window.Context().Captions, language, Names, {}),
          History(system, window.Context().Captions, language, Names, {}),
          Preview(language, {}),
          About(system, window.Context().Captions, language, {}) {}

    [[nodiscard]] std::vector<TForm*> All() { return {&Changes, &History, &Preview, &About}; }
};

TEST(TLanguageFiles, HoldEveryTextAndNoOther) {
    TFakeSystem fake;
    const TQuilltune_FormMain window(fake.System);
    TTexts captions;
    for (const TCaptionKey& key : kCaptionKeys) captions[key.Key] = key.English;
    TTexts messages;
    for (const TTextKey& key : kTextKeys) messages[key.Key] = key.English;
    const TLanguage none(fake.System, L"Scanner");
    const TQuilltune_FormFolder dialog(window.Context(), none);
    TPlainDialogs dialogs(fake.System, window, none);
    TTexts windowTexts = FormTexts(window);
    TTexts dialogTexts = FolderFormTexts(dialog);
    const TCatalogue catalogue(fake.System, nullptr, 7);
    for (const TCataloguedPage& page : catalogue.Pages())
        AddExplanations(page.Definition == &DesktopIcons() ? dialogTexts : windowTexts, catalogue, page);
    for (const char* language : {"English", "German"}) {
        SCOPED_TRACE(language);
        const bool english = language == std::string("English");
        const TExtIniFile ini = LoadDelivered(language);
        ExpectKeys(ini, L"Scanner_Quilltune_FormMain", windowTexts, english);
        ExpectKeys(ini, L"Scanner_Quilltune_FormFolder", dialogTexts, english);
        ExpectKeys(ini, L"Quilltune_M", captions, english);
        ExpectKeys(ini, kTextSection, messages, english);
        std::vector<std::wstring> sections{L"Main", L"Scanner_Quilltune_FormMain", L"Quilltune_M",
                                           L"Scanner_Quilltune_FormFolder"};
        for (const TForm* form : dialogs.All()) {
            sections.push_back(L"Scanner_" + form->Name());
            ExpectKeys(ini, sections.back().c_str(), FormTexts(*form), english);
        }
        sections.emplace_back(kTextSection);
        EXPECT_EQ(ini.ReadSections(), sections);
    }
}

using TAccessKeys = std::map<wchar_t, std::wstring>;  // with the control that each belongs to

/// The captions of one Windows level, and what it does not have.
struct TLevelForms {
    int Level;
    const TExtIniFile& Ini;
    std::set<std::wstring> Absent = {};

    void Apply(const TForm& form, const TPageDefinition& page) {
        for (const TOffer& offer : page.Offers)
            if (!offer.Levels.Include(Level)) Absent.insert(offer.Control);
        std::map<std::wstring, bool> settings;
        for (const TLoader& loader : page.Loaders)
            for (const TRow& row : loader)
                for (const std::wstring& name : ControlsOf(row))
                    settings[name] |= LevelsOf(row).Include(Level);
        for (const auto& [name, isHeld] : settings)
            if (!isHeld) Absent.insert({name, CaptionedBy(*form.Find(name)).Name()});
        for (const TLevelCaption& name : page.LevelCaptions) {
            const TCaptionKey& key = kCaptionKeys[static_cast<std::size_t>(name.Caption)];
            if (name.Levels.Include(Level))
                form.Find(name.Control)->SetCaption(Ini.ReadString(kCaptionSection, key.Key, L""));
        }
    }
};

/// Adds the access keys of the controls in a container. Pages and sheets, which are not shown together, are put
/// aside.
void CollectAccessKeys(const TControl& container, const TLevelForms& forms, TAccessKeys& keys,
                       std::vector<const TControl*>& aside) {
    for (const TControl* control : container.Children()) {
        if (forms.Absent.contains(control->Name())) continue;
        if (control->Kind() == TComponentKind::TabSheet || control->Kind() == TComponentKind::NotebookPage) {
            aside.push_back(control);
            continue;
        }
        const std::size_t mark = control->Caption().find(L'&');
        if (mark != std::wstring::npos && mark + 1 < control->Caption().size()) {
            const auto key =
                static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(control->Caption()[mark + 1])));
            const auto [other, isNew] = keys.emplace(key, control->Name());
            EXPECT_TRUE(isNew) << testing::PrintToString(control->Name()) << " and "
                               << testing::PrintToString(other->second);
        }
        CollectAccessKeys(*control, forms, keys, aside);
    }
}

void ExpectAccessKeysDiffer(const TControl& container, const TLevelForms& forms, TAccessKeys keys) {
    std::vector<const TControl*> aside;
    CollectAccessKeys(container, forms, keys, aside);
    for (const TControl* shown : aside) ExpectAccessKeysDiffer(*shown, forms, keys);
}

TEST(TLanguageFiles, AccessKeysDifferOnEverySheetOfEveryWindows) {
    TFakeSystem fake;
    TQuilltune_FormMain window(fake.System);
    TLanguage loaded(fake.System, L"Scanner");
    TQuilltune_FormFolder dialog(window.Context(), loaded);
    TPlainDialogs dialogs(fake.System, window, loaded);
    std::vector<TForm*> forms = dialogs.All();
    forms.insert(forms.end(), {&window, &dialog});
    for (const char* language : {"English", "German"}) {
        const TExtIniFile ini = LoadDelivered(language);
        for (const int level : {4, 5, 6, 7, 8, 9, 10, 11}) {
            SCOPED_TRACE(testing::Message() << language << " on level " << level);
            TLevelForms ofLevel{level, ini};
            for (TForm* form : forms) {
                for (const auto& component : form->Components()) {
                    auto& control = static_cast<TControl&>(*component);
                    control.SetCaption(ini.ReadString(L"Scanner_" + form->Name(),
                                                      control.Name() + L".Caption", control.Caption()));
                }
            }
            for (const TPageDefinition* page : PageDefinitions()) ofLevel.Apply(window, *page);
            ofLevel.Apply(dialog, DesktopIcons());
            for (const TForm* form : forms) ExpectAccessKeysDiffer(*form, ofLevel, {});
        }
    }
}

/// The English ones that have one are fixed.
TEST(TLanguageFiles, CaptionsEndWithoutAFullStop) {
    TFakeSystem fake;
    const TQuilltune_FormMain window(fake.System);
    const TExtIniFile english = LoadDelivered("English");
    const TExtIniFile german = LoadDelivered("German");
    std::size_t stops = 0;
    for (const auto& [key, text] : FormTexts(window)) {
        const auto stopsIn = [&, &caption = key](const TExtIniFile& ini) {
            const std::wstring read = ini.ReadString(L"Scanner_Quilltune_FormMain", caption, L"");
            return read.ends_with(L'.') && !read.ends_with(L"...");
        };
        if (key == L"Label_Details_Text.Caption") continue;
        EXPECT_FALSE(stopsIn(german)) << testing::PrintToString(key);
        stops += stopsIn(english) ? 1U : 0U;
    }
    EXPECT_EQ(stops, 20U);
}

}  // namespace
