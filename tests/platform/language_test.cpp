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
    /// Puts a language file into a folder of the program.
    void Put(const std::wstring& file, const std::string& text) {
        Fake.Files.PutText(kProgram + file + L".lng", text);
    }

    TFakeSystem Fake;
};

TEST_F(TLanguageTest, ListsBothFolders) {
    Put(L"Language\\English", "[Main]\nDisplayName=English (old)\n");
    Put(L"Language\\Latin", "");
    Put(L"Toolbox_Language\\Deutsch", "\xEF\xBB\xBF[main]\ndisplayname = Hochdeutsch\n");
    Put(L"Toolbox_Language\\english", "[Main]\nDisplayName=English (new)\n");
    Put(L"Toolbox_Language\\Readme.txt", "");
    Fake.Files.PutText(kToolbox + L"\\note.txt", "[Main]\n");

    const TLanguage language(Fake.System, L"Scanner", kToolbox + L'\\');
    EXPECT_EQ(language.Folder(), kToolbox);
    EXPECT_THAT(language.FileNames(),
                ElementsAre(L"English", L"Latin", L"Deutsch", L"english", L"Readme.txt"));
    EXPECT_THAT(language.DisplayNames(),
                ElementsAre(L"English (old)", L"Latin", L"Hochdeutsch", L"English (new)", L"Readme.txt"));
}

TEST_F(TLanguageTest, LoadsTheChosenLanguageElseEnglishElseKeepsWhatItHas) {
    /// What a new object loads for that name, as the file tells by its text M/k.
    const auto expectLoaded = [this](const wchar_t* name, const std::wstring& loaded, int index) {
        TLanguage language(Fake.System, L"Scanner", kToolbox);
        language.LoadLanguage(name);
        EXPECT_EQ(language.ReadString(L"M", L"k", L"none"), loaded) << testing::PrintToString(name);
        EXPECT_EQ(language.Index(), index);
        EXPECT_EQ(language.ModuleStrings().Count(), index < 0 ? 0U : 1U);
        if (index < 0) return;
        EXPECT_EQ(language.ModuleStrings().Line(0), loaded + L"=1");
    };
    const auto put = [this](const std::wstring& file, const std::string& mark) {
        Put(file, "[M]\nk=" + mark + "\n[Scanner_M]\n" + mark + "=1\n");
    };
    expectLoaded(L"Deutsch", L"none", -1);
    put(L"Toolbox_Language\\Deutsch", "Deutsch");
    expectLoaded(L"Klingon", L"Deutsch", 0);

    put(L"Language\\English", "old English");
    put(L"Language\\Latin", "Latin");
    put(L"Toolbox_Language\\English", "English");
    put(L"Toolbox_Language\\Locked", "Locked");
    // As Windows finds it, though no search for language files in the folder does.
    put(L"Toolbox_Language\\..\\Outside", "Outside");
    Fake.Files.Lock(kToolbox + L"\\Locked.lng");
    for (const wchar_t* name : {L"Deutsch", L"dEUTSCH"}) expectLoaded(name, L"Deutsch", 2);
    // English is listed first for the other folder; Latin is listed, but only the folder scanned last is looked in.
    for (const wchar_t* name :
         {L"English", L"Latin", L"Locked", L"Klingon", L"", L"..\\Outside", L"Deutsch.lng"})
        expectLoaded(name, L"English", 0);
}

/// A control's peer that fails as soon as it has to show anything.
class TFailingPeer : public TPeer {
  public:
    void Update(TControlAspect) override { throw std::runtime_error("broken"); }
};

class TTranslateTest : public TLanguageTest {
  protected:
    TTranslateTest() {
        Form.SetCaption(L"form");
        Form.Build(
            Form,
            Sheet(L"Sheet1", L"sheet",
                  Group(L"Group1", L"group", CheckBox(L"Check1", L"check"), RadioButton(L"Radio1", L"radio")),
                  Panel(L"Panel1", Label(L"Label1", L"label"), Label(L"Label2", L"label")),
                  Edit(L"Edit1", L"edit"), Button(L"Button1", L"button"),
                  ComboBox(L"Combo1", {L"a", L"b", L"c"}), ListView(L"List1", {L"x", L"y", L"z"})));
        Form.Build(Form, CategoryGroup(L"Cat1", L"category", {CategoryItem(L"Item1", L"item", 1, L"")}));
        Combo = Form.Find<TComboBox>(L"Combo1");
        Combo->SetItemIndex(1);
    }

    /// Translates the form by a file with these lines in the form's section.
    void Translate(const std::string& lines) {
        Put(L"Toolbox_Language\\English", "[Scanner_Main]\n" + lines);
        TLanguage(Fake.System, L"Scanner", kToolbox).Translate(Form);
    }

    TForm Form{L"Main", L"TMain"};
    TComboBox* Combo;
};

TEST_F(TTranslateTest, TranslatesTheKindsThatHaveTexts) {
    Translate(
        "main.caption=FORM\nSheet1.Caption=SHEET\nGroup1.Caption=GROUP\nCheck1.Caption=CHECK\n"
        "Radio1.Caption=RADIO\nLabel1.Caption=LABEL\nButton1.Caption=BUTTON\nCat1.Caption=no\n"
        "Item1.Caption=no\nPanel1.Caption=no\nEdit1.Caption=no\n");
    std::wstring captions = Form.Caption();
    for (const auto& each : Form.Components())
        captions += L' ' + static_cast<const TControl&>(*each).Caption();
    // Those in small letters have no key or are of a kind that keeps its text.
    EXPECT_EQ(captions, L"FORM SHEET GROUP CHECK RADIO  LABEL label  BUTTON   category item");
    EXPECT_EQ(Form.Find<TEdit>(L"Edit1")->Text(), L"edit");
}

TEST_F(TTranslateTest, TranslatesListsAndKeepsTheSelection) {
    Combo->OnChange = [](TComponent&) { ADD_FAILURE() << "nobody has chosen anything"; };
    Translate(
        "Combo1.Items[0].Caption=A\nCombo1.Items[1].Caption=B\nCombo1.Items[3].Caption=D\n"
        "List1.Columns[0].Caption=X\nList1.Columns[2].Caption=Z\n");
    EXPECT_THAT(Form.Find<TListView>(L"List1")->Columns(), ElementsAre(L"X", L"y", L"Z"));
    Translate("Combo1.Items[1].Caption=B2\n");
    EXPECT_THAT(Combo->Items(), ElementsAre(L"A", L"B2", L"c"));
    EXPECT_EQ(Combo->ItemIndex(), 1);
}

TEST_F(TTranslateTest, FailureEndsTheWalkSilently) {
    Form.Find(L"Label2")->SetPeer(std::make_unique<TFailingPeer>());
    Translate("Label1.Caption=LABEL\nLabel2.Caption=LABEL\nButton1.Caption=BUTTON\n");
    EXPECT_EQ(Form.Find(L"Label1")->Caption(), L"LABEL");
    EXPECT_EQ(Form.Find(L"Button1")->Caption(), L"button");
}

TEST_F(TTranslateTest, FormWithoutNameKeepsItsTexts) {
    Put(L"Toolbox_Language\\English", "[Scanner_]\n.Caption=no\n");
    TForm form(L"", L"TForm");
    TLanguage(Fake.System, L"Scanner", kToolbox).Translate(form);
    EXPECT_EQ(form.Caption(), L"");
}

}  // namespace
