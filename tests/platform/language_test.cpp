#include "platform/language.h"

#include <stdexcept>

#include <gmock/gmock.h>

#include "tests/fakes/fake_system.h"
#include "ui/controls.h"
#include "ui/design.h"
#include "ui/form.h"

namespace {

using testing::ElementsAre;

const std::wstring kProgram = L"C:\\Program Files\\Quilltune\\";
const std::wstring kToolbox = kProgram + L"Toolbox_Language";

class TLanguageTest : public testing::Test {
  protected:
    void PutLanguage(const std::wstring& folder, const std::wstring& name, const std::string& text) {
        Fake.Files.PutText(kProgram + folder + L'\\' + name + L".lng", text);
    }
    /// A language whose text M/k tells which one is loaded.
    void PutNamed(const std::wstring& folder, const std::wstring& name, const std::string& mark) {
        PutLanguage(folder, name, "[M]\nk=" + mark + "\n[Scanner_M]\n" + mark + "=1\n");
    }
    static std::wstring Loaded(const TLanguage& language) { return language.ReadString(L"M", L"k", L"none"); }

    TFakeSystem Fake;
};

TEST_F(TLanguageTest, ListsBothFolders) {
    PutLanguage(L"Language", L"English", "[Main]\nDisplayName=English (old)\n");
    PutLanguage(L"Language", L"Latin", "");
    PutLanguage(L"Toolbox_Language", L"Deutsch", "\xEF\xBB\xBF[main]\ndisplayname = Hochdeutsch\n");
    PutLanguage(L"Toolbox_Language", L"english", "[Main]\nDisplayName=English (new)\n");
    PutLanguage(L"Toolbox_Language", L"Readme.txt", "");  // Readme.txt.lng
    Fake.Files.PutText(kToolbox + L"\\note.txt", "[Main]\n");

    const TLanguage language(Fake.System, L"Scanner", kToolbox + L'\\');
    EXPECT_EQ(language.Folder(), kToolbox);
    EXPECT_THAT(language.FileNames(),
                ElementsAre(L"English", L"Latin", L"Deutsch", L"english", L"Readme.txt"));
    EXPECT_THAT(language.DisplayNames(),
                ElementsAre(L"English (old)", L"Latin", L"Hochdeutsch", L"English (new)", L"Readme.txt"));
}

TEST_F(TLanguageTest, LoadsTheChosenLanguageElseEnglish) {
    PutNamed(L"Language", L"English", "old English");
    PutNamed(L"Language", L"Latin", "Latin");
    PutNamed(L"Toolbox_Language", L"Deutsch", "Deutsch");
    PutNamed(L"Toolbox_Language", L"English", "English");
    PutNamed(L"Toolbox_Language", L"Locked", "Locked");
    // As Windows finds it, though no search for language files in the folder does.
    PutNamed(L"Toolbox_Language\\..", L"Outside", "Outside");
    Fake.Files.Lock(kToolbox + L"\\Locked.lng");
    const auto expectLoaded = [this](const wchar_t* name, const std::wstring& loaded, int index) {
        TLanguage language(Fake.System, L"Scanner", kToolbox);
        language.LoadLanguage(name);
        EXPECT_EQ(Loaded(language), loaded) << testing::PrintToString(name);
        EXPECT_EQ(language.Index(), index);
        ASSERT_EQ(language.ModuleStrings().Count(), 1U);
        EXPECT_EQ(language.ModuleStrings().Line(0), loaded + L"=1");
    };
    for (const wchar_t* name : {L"Deutsch", L"dEUTSCH"}) expectLoaded(name, L"Deutsch", 2);
    // English is listed first for the other folder; Latin is listed, but only the folder scanned last is looked in.
    for (const wchar_t* name :
         {L"English", L"Latin", L"Locked", L"Klingon", L"", L"..\\Outside", L"Deutsch.lng"})
        expectLoaded(name, L"English", 0);
}

TEST_F(TLanguageTest, WithoutEnglishKeepsWhatWasLoaded) {
    TLanguage none(Fake.System, L"Scanner", kToolbox);
    none.LoadLanguage(L"Deutsch");
    EXPECT_EQ(none.Index(), -1);
    EXPECT_EQ(Loaded(none), L"none");

    PutNamed(L"Toolbox_Language", L"Deutsch", "Deutsch");
    TLanguage german(Fake.System, L"Scanner", kToolbox);
    german.LoadLanguage(L"Klingon");
    EXPECT_EQ(german.Index(), 0);
    EXPECT_EQ(Loaded(german), L"Deutsch");
}

/// A control's peer that fails as soon as it has to show anything.
class TBrokenPeer : public TPeer {
  public:
    void Update(TControlAspect) override { throw std::runtime_error("broken"); }
};

class TTranslateTest : public TLanguageTest {
  protected:
    TTranslateTest() {
        Form.SetCaption(L"form");
        Form.Build(Form, Sheet(L"Sheet1", L"sheet",
                               Group(L"Group1", L"group", CheckBox(L"Check1", L"check"),
                                     RadioButton(L"Radio1", L"radio"))));
        Form.Build(Form, Panel(L"Panel1", Label(L"Label1", L"label"), Label(L"Label2", L"label")));
        Form.Build(Form, Edit(L"Edit1", L"edit"));
        Form.Build(Form, Button(L"Button1", L"button"));
        Form.Build(Form, CategoryGroup(L"Cat1", L"category", {CategoryItem(L"Item1", L"item", 1, L"")}));
        Form.Build(Form, ComboBox(L"Combo1", {L"a", L"b", L"c"}));
        Form.Build(Form, ListView(L"List1", {L"x", L"y", L"z"}));
        Combo = Form.Find<TComboBox>(L"Combo1");
        Combo->SetItemIndex(1);
    }

    /// Translates the form by a file with these lines in the form's section.
    void Translate(const std::string& lines) {
        PutLanguage(L"Toolbox_Language", L"English", "[Scanner_Main]\n" + lines);
        TLanguage(Fake.System, L"Scanner", kToolbox).Translate(Form);
    }
    std::wstring Caption(const wchar_t* name) const { return Form.Find(name)->Caption(); }

    TForm Form{L"Main", L"TMain"};
    TComboBox* Combo;
};

TEST_F(TTranslateTest, TranslatesTheKindsThatHaveTexts) {
    Translate(
        "main.caption=FORM\nSheet1.Caption=SHEET\nGroup1.Caption=GROUP\nCheck1.Caption=CHECK\n"
        "Radio1.Caption=RADIO\nLabel1.Caption=LABEL\nButton1.Caption=BUTTON\nCat1.Caption=no\n"
        "Item1.Caption=no\nPanel1.Caption=no\nEdit1.Caption=no\n");
    EXPECT_EQ(Form.Caption(), L"FORM");
    std::vector<std::wstring> captions;
    for (const auto& each : Form.Components())
        captions.push_back(each->Name() + L"=" + static_cast<const TControl&>(*each).Caption());
    // Those in small letters have no key or are of a kind that keeps its text.
    EXPECT_THAT(captions, testing::UnorderedElementsAre(
                              L"Sheet1=SHEET", L"Group1=GROUP", L"Check1=CHECK", L"Radio1=RADIO", L"Panel1=",
                              L"Label1=LABEL", L"Label2=label", L"Edit1=", L"Button1=BUTTON",
                              L"Cat1=category", L"Item1=item", L"Combo1=", L"List1="));
    EXPECT_EQ(Form.Find<TEdit>(L"Edit1")->Text(), L"edit");
}

TEST_F(TTranslateTest, TranslatesListsAndKeepsTheSelection) {
    int changes = 0;
    Combo->OnChange = [&](TComponent&) { ++changes; };
    Translate(
        "Combo1.Items[0].Caption=A\nCombo1.Items[1].Caption=B\nCombo1.Items[3].Caption=D\n"
        "List1.Columns[0].Caption=X\nList1.Columns[2].Caption=Z\n");
    EXPECT_THAT(Combo->Items(), ElementsAre(L"A", L"B", L"c"));
    EXPECT_THAT(Form.Find<TListView>(L"List1")->Columns(), ElementsAre(L"X", L"y", L"Z"));
    Translate("Combo1.Items[1].Caption=B2\n");
    EXPECT_THAT(Combo->Items(), ElementsAre(L"A", L"B2", L"c"));
    EXPECT_EQ(Combo->ItemIndex(), 1);
    EXPECT_EQ(changes, 0);
}

TEST_F(TTranslateTest, FailureEndsTheWalkSilently) {
    Form.Find(L"Label2")->SetPeer(std::make_unique<TBrokenPeer>());
    Translate("Label1.Caption=LABEL\nLabel2.Caption=LABEL\nButton1.Caption=BUTTON\n");
    EXPECT_EQ(Caption(L"Label1"), L"LABEL");
    EXPECT_EQ(Caption(L"Button1"), L"button");
}

TEST_F(TTranslateTest, BinaryFilesChangeNothing) {
    std::string noise;
    for (unsigned i = 0; i < 100'000; ++i) noise.push_back(static_cast<char>(i * 2654435761U >> 24));
    for (const char* mark : {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
        PutLanguage(L"Toolbox_Language", L"English", mark + noise);
        TLanguage(Fake.System, L"Scanner", kToolbox).Translate(Form);
        EXPECT_EQ(Form.Caption(), L"form");
        EXPECT_THAT(Combo->Items(), ElementsAre(L"a", L"b", L"c"));
    }
}

TEST(TTranslate, FormWithoutNameKeepsItsTexts) {
    TFakeSystem fake;
    fake.Files.PutText(kToolbox + L"\\English.lng", "[Scanner_]\n.Caption=no\nLabel1.Caption=no\n");
    TForm form(L"", L"TForm");
    form.Build(form, Label(L"Label1", L"label"));
    TLanguage(fake.System, L"Scanner", kToolbox).Translate(form);
    EXPECT_EQ(form.Caption(), L"");
    EXPECT_EQ(form.Find(L"Label1")->Caption(), L"label");
}

}  // namespace
