// The whole main window over a system with anything in it, and a user who does anything.
#pragma once

#include <gtest/gtest.h>

#include "app/history.h"
#include "app/main_window.h"
#include "tests/settings/random_system.h"
#include "ui/state.h"

/// Stands for the native side: each dialog meets the next of its users.
class TUserPeer : public TFormPeer {
  public:
    using TUser = std::function<void(TForm& dialog)>;

    explicit TUserPeer(TUser user) : FUser(std::move(user)) {}

    void Close() override {}
    void Update(TControlAspect /*aspect*/) override {}
    void Reveal(TControl& /*control*/) override {}
    void ShowModal(TForm& dialog) override {
        dialog.SetPeer(std::make_unique<TUserPeer>(FUser));
        dialog.Show();
        FUser(dialog);
    }

  private:
    TUser FUser;
};

inline void Press(TForm& form, const wchar_t* button) { form.Find<TButton>(button)->Click(); }
inline TListView& List(TForm& form, const wchar_t* name) { return *form.Find<TListView>(name); }

/// The field that finds settings is not.
inline bool IsOnPage(const TControl& control) {
    const TControl* c = &control;
    while (c != nullptr && c->Kind() != TComponentKind::NotebookPage) c = c->Parent();
    return c != nullptr;
}

class TWorld : public TRandomSystem {
  public:
    using TRandomSystem::TRandomSystem;

    void Open() {
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
        Window->Show();
        Window->Find<TTimer>(L"Timer_Click")->Tick();
        Window->Find<TTimer>(L"Timer_Loading")->Tick();
        for (const auto& component : Window->Components())
            if (component->Kind() == TComponentKind::CategoryItem)
                static_cast<TCategoryItem&>(*component).Click();
    }

    /// What a user may do: anything with any control of any page.
    void Act(int actions) {
        std::vector<TControl*> controls;
        for (const auto& component : Window->Components()) {
            auto& control = static_cast<TControl&>(*component);
            const bool isIdle = StateOf(control) == TControlState() && !control.Name().ends_with(L"_Default");
            if (!isIdle && IsOnPage(control) && control.Enabled() && control.Visible())
                controls.push_back(&control);
        }
        for (; actions > 0; --actions) {
            TControl& control = *controls[static_cast<std::size_t>(Pick(static_cast<int>(controls.size())))];
            if (auto* edit = dynamic_cast<TEdit*>(&control)) {
                edit->SetFocused(true);
                edit->SetText(std::to_wstring(Pick(300)));
                edit->SetFocused(false);
            } else if (auto* button = dynamic_cast<TButton*>(&control)) {
                button->Click();
            } else if (auto* radio = dynamic_cast<TRadioButton*>(&control)) {
                radio->SetChecked(true);
            } else if (auto* list = dynamic_cast<TComboBox*>(&control)) {
                list->SetItemIndex(Pick(static_cast<int>(list->Items().size())));
            } else {
                SetState(control, StateFromNumber(control, Pick(5) / 2));
            }
        }
    }

    /// The button opens a dialog; the user acts in it, and in those that it opens.
    void Dialog(const wchar_t* button, const TUserPeer::TUser& user) {
        Window->SetPeer(std::make_unique<TUserPeer>(user));
        Press(*Window, button);
        Window->SetPeer(nullptr);
    }
    /// Undoes the newest entry of the history.
    void Undo() {
        Dialog(L"Button_History", [](TForm& dialog) {
            Press(dialog, dialog.ClassName() == L"TQuilltune_FormHistory" ? L"Button_History_Undo"
                                                                          : L"Button_Preview_Apply");
        });
    }
    std::vector<TListView::TRow> PendingRows() {
        std::vector<TListView::TRow> rows;
        if (Window->Find(L"Button_Changes")->Enabled())
            Dialog(L"Button_Changes",
                   [&](TForm& dialog) { rows = List(dialog, L"ListView_Changes").Rows(); });
        return rows;
    }

    /// Takes back the change of the last setting with these words in its name.
    void TakeBack(const wchar_t* words) {
        Dialog(L"Button_Changes", [&](TForm& dialog) {
            auto& list = List(dialog, L"ListView_Changes");
            for (std::size_t i = 0; i < list.Rows().size(); ++i)
                if (list.Rows()[i].Cells[0].find(words) != std::wstring::npos)
                    list.SetSelected({i}, static_cast<int>(i));
            Press(dialog, L"Button_Changes_Revert");
        });
    }

    /// What the controls of the pages show.
    std::map<std::wstring, std::tuple<TControlState, bool, bool>> Shown() {
        std::map<std::wstring, std::tuple<TControlState, bool, bool>> shown;
        for (const auto& component : Window->Components()) {
            auto& control = static_cast<TControl&>(*component);
            if (StateOf(control) != TControlState())
                shown[control.Name()] = {StateOf(control), control.Enabled(), control.Marked()};
        }
        return shown;
    }
    std::vector<std::wstring> Entries() { return THistory(Fake.System).Entries(); }

    std::unique_ptr<TQuilltune_FormMain> Window;
};
