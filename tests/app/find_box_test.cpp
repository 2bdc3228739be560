// Finding a setting: what the list offers, and where it leads.
#include <set>

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "settings/page_model.h"
#include "tests/fakes/fake_system.h"

namespace {

/// What the native side was asked for.
struct TSeen {
    std::vector<TControl*> Revealed;
    std::vector<std::wstring> Dialogs;  ///< the control that each begins with
};

class TSeeingPeer : public TFormPeer {
  public:
    explicit TSeeingPeer(TSeen& seen) : FSeen(seen) {}

    void Close() override { ADD_FAILURE() << "closed"; }
    void Update(TControlAspect /*aspect*/) override {}
    void Reveal(TControl& control) override { FSeen.Revealed.push_back(&control); }
    void ShowModal(TForm& dialog) override { FSeen.Dialogs.push_back(dialog.FirstFocus->Name()); }

  private:
    TSeen& FSeen;
};

class TFind : public testing::Test {
  protected:
    void Open(std::uint32_t major, std::uint32_t minor) {
        Fake.Windows.SetVersion({.PlatformId = 2, .Major = major, .Minor = minor});
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
        Window->SetPeer(std::make_unique<TSeeingPeer>(Seen));
        Window->Show();
        EXPECT_FALSE(Window->Find(L"Edit_Find")->Enabled());
        Get<TTimer>(L"Timer_Click").Tick();
        Get<TTimer>(L"Timer_Loading").Tick();
        EXPECT_TRUE(Window->Find(L"Edit_Find")->Enabled());
    }
    template <typename T>
    T& Get(const wchar_t* name) {
        return *Window->Find<T>(name);
    }
    TEdit& Field() { return Get<TEdit>(L"Edit_Find"); }
    TListView& List() { return Get<TListView>(L"ListView_Find"); }
    TControl& ActivePage() { return *Get<TNotebook>(L"Notebook_Main").ActivePage(); }
    bool Finds() {
        EXPECT_NE(List().Visible(), Window->Find(L"Notebook_Main")->Visible());
        EXPECT_EQ(List().Visible(), !Field().Text().empty());
        return List().Visible();
    }

    TFakeSystem Fake;
    TSeen Seen;
    std::unique_ptr<TQuilltune_FormMain> Window;
};

TEST_F(TFind, EveryRowLeadsToAControlThatTheUserSees) {
    for (const auto& [major, minor] : {std::pair(5u, 0u), {6u, 1u}}) {
        Seen = {};
        Open(major, minor);
        std::set<std::wstring> reached;
        std::size_t row = 0;
        for (std::size_t rows = 1; row < rows; row += 5) {
            Field().SetText(L" ");  // everything
            ASSERT_TRUE(Finds());
            rows = List().Rows().size();
            const auto cells = List().Rows()[row].Cells;
            SCOPED_TRACE(testing::PrintToString(cells));
            List().Open(row);
            EXPECT_FALSE(Finds());
            const TControl& control = *Seen.Revealed.back();
            EXPECT_TRUE(TPageModel::IsShown(control));
            const TControl* around = &control;
            for (; around->Kind() != TComponentKind::NotebookPage; around = around->Parent())
                if (around->Kind() == TComponentKind::TabSheet)
                    EXPECT_EQ(static_cast<const TPageControl*>(around->Parent())->ActiveSheet(), around);
            EXPECT_EQ(around, &ActivePage());
            const bool inDialog = control.Name() == L"Button_Folder_Advanced_Desktop_Set";
            EXPECT_TRUE(reached.insert(inDialog ? Seen.Dialogs.back() : control.Name()).second) << "twice";
            EXPECT_EQ(control.Framed(), !inDialog);
        }
        EXPECT_GT(row, 200u);
        EXPECT_FALSE(Seen.Dialogs.empty());
        EXPECT_FALSE(Window->Find(L"Button_Apply")->Enabled());
    }
}

TEST_F(TFind, TheKeysOfTheFieldAndTheList) {
    Open(6, 1);
    TControl& from = Get<TControl>(L"RzGroup_Others.Items[0]");
    const std::wstring page = ActivePage().Name();
    const auto begin = [&] {
        Window->FindKey();
        EXPECT_EQ(Seen.Revealed.back(), &Field());
        Field().Enter(from);
    };
    // The best first, and each key asks anew.
    begin();
    EXPECT_TRUE(Field().OnKey(TKey::Enter)) << "it must not press OK";
    EXPECT_FALSE(Field().OnKey(TKey::Down));
    Field().SetText(L"last ac");
    EXPECT_TRUE(Finds());
    EXPECT_EQ(List().Rows()[0].Cells,
              (std::vector<std::wstring>{L"Record the date of the last access to files and folders",
                                         L"General Settings, Function"}));
    EXPECT_EQ(List().Selected(), std::vector<std::size_t>{0});
    EXPECT_TRUE(Field().OnKey(TKey::Down));
    EXPECT_EQ(Seen.Revealed.back(), &List());
    Field().Enter(List());
    // Escape from either leads back.
    for (const TKeyEvent* keys : {&List().OnKey, &Field().OnKey}) {
        Field().SetText(L"last ac");
        EXPECT_TRUE((*keys)(TKey::Escape));
        EXPECT_FALSE(Finds());
        EXPECT_EQ(Seen.Revealed.back(), &from);
        EXPECT_EQ(ActivePage().Name(), page);
    }
    // Nothing found, nothing opened.
    Field().SetText(L"xyzzy");
    EXPECT_TRUE(Finds() && List().Rows().empty());
    EXPECT_NE(List().EmptyText.find(L"Nothing found"), std::wstring::npos);
    EXPECT_FALSE(Field().OnKey(TKey::Down));
    EXPECT_TRUE(Field().OnKey(TKey::Enter));
    EXPECT_TRUE(Finds());
    // A category item shows its page.
    Get<TCategoryItem>(L"RzGroup_Communication.Items[4]").Click();
    EXPECT_FALSE(Finds());
    EXPECT_EQ(ActivePage().Name(), L"15");
    // Enter opens the row that the user was at.
    Field().SetText(L"last access driver");
    EXPECT_TRUE(Field().OnKey(TKey::Enter));
    TControl& control = *Seen.Revealed.back();
    EXPECT_EQ(control.Name(), L"Checkbox_Drives_Common_NTFS_SaveLastVisitData");
    // It flashes, and nothing stays.
    auto& timer = Get<TTimer>(L"Timer_Flash");
    int appears = control.Framed() ? 1 : 0;
    for (int ticks = 0; timer.Enabled() && ticks < 20; ++ticks) {
        const bool was = control.Framed();
        timer.Tick();
        appears += !was && control.Framed() ? 1 : 0;
    }
    EXPECT_EQ(appears, 3);
    EXPECT_FALSE(control.Framed() || timer.Enabled());
}

TEST_F(TFind, IsPreparedInSteps) {
    Open(6, 1);
    auto& timer = Get<TTimer>(L"Timer_Find");
    int steps = 0;
    for (; timer.Enabled() && steps < 100; ++steps) timer.Tick();
    EXPECT_GT(steps, 10);
    EXPECT_LT(steps, 100);
    Field().SetText(L" ");
    const auto rows = List().Rows().size();
    Open(6, 1);
    Field().SetText(L" ");  // at once
    EXPECT_EQ(List().Rows().size(), rows);
}

}  // namespace
