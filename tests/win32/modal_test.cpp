// A form shown over another one that waits for it.
#include "tests/win32/peer_bench.h"
#include "ui/containers.h"

namespace {

class TModal : public TPeerBench {
  protected:
    TModal() {
        Form.Build(Form, Column(Button(L"Before", L"Before"), Button(L"Opens", L"Opens")));
        Show();
        Dialog.ClientWidth = 300;
        Dialog.ClientHeight = 200;
        Dialog.Build(Dialog, Column(CheckBox(L"Box", L"Box"), Timer(L"User", 10),
                                    Buttons(Button(L"OK", L"OK"), Button(L"Cancel", L"Cancel"))));
        Dialog.Find<TButton>(L"OK")->Default = true;
        Dialog.Find<TButton>(L"Cancel")->Cancel = true;
        Dialog.Find<TButton>(L"Cancel")->OnClick = [this](TComponent&) { Dialog.Close(); };
        Dialog.Find(L"User")->SetEnabled(true);
    }
    /// Opens the dialog; the user acts once in it.
    void Open(const std::function<void()>& user) {
        Dialog.Find<TTimer>(L"User")->OnTimer = [this, user](TComponent& timer) {
            static_cast<TTimer&>(timer).SetEnabled(false);
            user();
        };
        SetFocus(Window(L"Opens"));
        Form.ShowModal(Dialog);
    }
    static HWND HandleOf(const TForm& form) { return static_cast<TFormWindow*>(form.Peer())->Handle(); }
    HWND BoxWindow() const { return static_cast<TWindowPeer*>(Dialog.Find(L"Box")->Peer())->Handle(); }

    TForm Dialog{L"Dialog", L"TPeerBenchDialog"};
};

TEST_F(TModal, TheOwnerWaitsAndGetsTheFocusBack) {
    const HWND owner = HandleOf(Form);
    Open([&] {
        const HWND dialog = HandleOf(Dialog);
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_EQ(GetWindow(dialog, GW_OWNER), owner);
        EXPECT_EQ(GetFocus(), BoxWindow());
        TForm second(L"Second", L"TPeerBenchDialog");
        Form.ShowModal(second);
        EXPECT_EQ(second.Peer(), nullptr) << "one at a time";
        RECT place{};
        RECT around{};
        GetWindowRect(dialog, &place);
        GetWindowRect(owner, &around);
        EXPECT_NEAR(place.left + place.right, around.left + around.right, 2);
        EXPECT_NEAR(place.top + place.bottom, around.top + around.bottom, 2);
        SetWindowPos(dialog, nullptr, 0, 0, 50, 50, SWP_NOMOVE | SWP_NOZORDER);
        RECT shrunk{};
        GetWindowRect(dialog, &shrunk);
        EXPECT_EQ(shrunk.right - shrunk.left, place.right - place.left) << "no smaller than designed";
        // Told to the owner's handler; the dialog goes on.
        Dialog.Find<TCheckBox>(L"Box")->OnClick = [](TComponent&) { throw std::runtime_error("fault"); };
        SendMessageW(BoxWindow(), BM_CLICK, 0, 0);
        EXPECT_EQ(std::exchange(Faults, 0), 1);
        PostMessageW(BoxWindow(), WM_KEYDOWN, VK_ESCAPE, 1);
    });
    EXPECT_TRUE(Dialog.Closed());
    EXPECT_EQ(HandleOf(Dialog), nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(GetFocus(), Window(L"Opens"));
}

TEST_F(TModal, EnterPressesAFocusedButtonAndElsewhereOkAfterTheFocusedEditIsCommitted) {
    Dialog.Build(Dialog,
                 Column(CategoryBar(L"Bar", {CategoryGroup(L"Group", L"Group",
                                                           {CategoryItem(L"Item", L"Item", 1, L"general")})}),
                        Edit(L"Edit"), Button(L"Plain", L"&Plain")));
    Dialog.Find<TButton>(L"OK")->OnClick = Dialog.Find<TButton>(L"Plain")->OnClick = Note;
    Dialog.Find<TCategoryItem>(L"Item")->OnClick = Note;
    Dialog.Find<TEdit>(L"Edit")->OnExit = [this](TComponent& edit) {
        Fired.push_back(edit.Name());
        throw std::runtime_error("fault");
    };
    Open([&] {
        const auto window = [this](const wchar_t* name) {
            return static_cast<TWindowPeer*>(Dialog.Find(name)->Peer())->Handle();
        };
        SetFocus(window(L"Edit"));
        for (const wchar_t* name : {L"Edit", L"Plain", L"Item", L"Box"}) {
            PostMessageW(window(name), WM_KEYDOWN, VK_RETURN, 1);
        }
        PostMessageW(window(L"Edit"), WM_KEYDOWN, VK_ESCAPE, 1);
    });
    EXPECT_EQ(Fired, (TNames{L"Edit", L"OK", L"Edit", L"Plain", L"Item", L"Edit", L"OK", L"Edit", L"Edit"}));
    EXPECT_EQ(std::exchange(Faults, 0), 5) << "a fault of the edit holds no button back";
}

TEST_F(TModal, KeysThatAControlTakesAreNotThoseOfTheForm) {
    Dialog.Build(Dialog, Column(Edit(L"Find"), Table(L"Found", {L"A"})));
    auto& field = *Dialog.Find<TEdit>(L"Find");
    auto& list = *Dialog.Find<TListView>(L"Found");
    const auto note = [this](const wchar_t* who) {
        return [this, who](TKey key) {
            Fired.push_back(who + std::to_wstring(static_cast<int>(key)));
            return true;
        };
    };
    field.SetCaption(L"Find something");
    field.OnKey = note(L"field ");
    field.OnEnter = [this](TControl& from) { Fired.push_back(L"from " + from.Name()); };
    list.OnKey = note(L"list ");
    Dialog.OnFindKey = [&](TComponent&) { Dialog.Reveal(field); };
    Dialog.FirstFocus = &list;
    Dialog.Find<TButton>(L"OK")->OnClick = Dialog.Find<TButton>(L"Cancel")->OnClick = Note;
    BYTE keys[256]{};
    Open([&] {
        const auto post = [](const TControl& control, WPARAM key) {
            PostMessageW(PeerOf(control)->Handle(), WM_KEYDOWN, key, 1);
        };
        EXPECT_EQ(GetFocus(), PeerOf(list)->Handle());
        post(list, VK_RETURN);
        post(list, VK_ESCAPE);
        keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys);
        post(list, 'F');
        for (const WPARAM key : {VK_RETURN, VK_ESCAPE, VK_DOWN}) post(field, key);
        Dialog.Close();
    });
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys);
    EXPECT_EQ(Fired, (TNames{L"list 1", L"from Found", L"field 0", L"field 1", L"field 2"}));
    EXPECT_EQ(field.Text(), L"");
}

TEST_F(TModal, ASentCloseEndsItAtOnce) {
    Open([&] { SendMessageW(HandleOf(Dialog), WM_CLOSE, 0, 0); });
    EXPECT_TRUE(IsWindowEnabled(HandleOf(Form)));
    MSG message;
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the program goes on";
}

TEST_F(TModal, EndsWithItsOwner) {
    Open([&] { SendMessageW(HandleOf(Form), WM_CLOSE, 0, 0); });
    EXPECT_EQ(HandleOf(Dialog), nullptr);
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(TModal, EndsWithItsOwnerThatAnotherProgramCloses) {
    HANDLE other = nullptr;
    Open([&] {
        const auto close = [](void* owner) -> DWORD {
            SendMessageW(static_cast<HWND>(owner), WM_CLOSE, 0, 0);
            return 0;
        };
        other = CreateThread(nullptr, 0, close, HandleOf(Form), 0, nullptr);
    });
    EXPECT_EQ(WaitForSingleObject(other, 5000), WAIT_OBJECT_0);
    CloseHandle(other);
    EXPECT_EQ(HandleOf(Dialog), nullptr);
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the program ends";
}

TEST_F(TModal, LeavesTheFocusWhereTheKeyboardGoesOn) {
    Open([&] {
        Form.Find(L"Opens")->SetEnabled(false);
        Dialog.Close();
    });
    EXPECT_EQ(GetFocus(), Window(L"Before"));
}

TEST_F(TModal, LeavesTheEndOfTheProgramToTheOuterLoop) {
    Open([] { PostQuitMessage(7); });
    EXPECT_EQ(HandleOf(Dialog), nullptr);
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

class TNested : public TModal {
  protected:
    TNested() {
        Inner.ClientWidth = Inner.ClientHeight = 100;
        Inner.Build(Inner,
                    Column(Button(L"InnerOk", L"OK"), Button(L"InnerCancel", L"Cancel"), Timer(L"Acts", 10)));
        Inner.Find<TButton>(L"InnerOk")->Default = true;
        Inner.Find<TButton>(L"InnerCancel")->Cancel = true;
        for (const wchar_t* name : {L"InnerOk", L"InnerCancel"})
            Inner.Find<TButton>(name)->OnClick = [this](TComponent& button) {
                Note(button);
                Inner.Close();
            };
        Inner.Find(L"Acts")->SetEnabled(true);
    }
    /// Opens the dialog and from its check box the inner one; the user acts once there, and `after` it.
    void OpenBoth(
        const std::function<void()>& user, const std::function<void()>& after = [] {}) {
        Inner.Find<TTimer>(L"Acts")->OnTimer = [user](TComponent& timer) {
            static_cast<TTimer&>(timer).SetEnabled(false);
            user();
        };
        Open([this, after] {
            SetFocus(BoxWindow());
            Dialog.ShowModal(Inner);
            after();
        });
    }
    static bool IsEnding() {
        MSG message;
        return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }

    TForm Inner{L"Inner", L"TPeerBenchInner"};
};

TEST_F(TNested, EveryOneWaitsForTheOneOverIt) {
    OpenBoth(
        [this] {
            EXPECT_EQ(GetWindow(HandleOf(Inner), GW_OWNER), HandleOf(Dialog));
            EXPECT_FALSE(IsWindowEnabled(HandleOf(Form)) || IsWindowEnabled(HandleOf(Dialog)));
            static_cast<TFormWindow*>(Form.Peer())->ComeForward();
            EXPECT_EQ(GetForegroundWindow(), HandleOf(Inner));
            PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
        },
        [this] {
            EXPECT_EQ(HandleOf(Inner), nullptr);
            EXPECT_EQ(GetFocus(), BoxWindow());
            EXPECT_TRUE(IsWindowEnabled(HandleOf(Dialog)));
            EXPECT_FALSE(IsWindowEnabled(HandleOf(Form)));
            PostMessageW(BoxWindow(), WM_KEYDOWN, VK_ESCAPE, 1);
        });
    EXPECT_EQ(Fired, TNames{L"InnerCancel"});
    EXPECT_TRUE(Dialog.Closed() && IsWindowEnabled(HandleOf(Form)) && !IsEnding());
    EXPECT_EQ(GetFocus(), Window(L"Opens"));
}

TEST_F(TNested, TheMiddleOneMayBeClosedFirst) {
    OpenBoth([this] { Dialog.Close(); });
    EXPECT_EQ(HandleOf(Inner), nullptr);
    EXPECT_TRUE(IsWindowEnabled(HandleOf(Form)) && !IsEnding());
    EXPECT_EQ(GetFocus(), Window(L"Opens"));
}

TEST_F(TNested, AllEndWithTheProgram) {
    OpenBoth([] { PostQuitMessage(7); });
    EXPECT_TRUE(HandleOf(Inner) == nullptr && HandleOf(Dialog) == nullptr && IsWindow(HandleOf(Form)));
    EXPECT_TRUE(IsEnding());
}

TEST_F(TNested, AllEndWithTheMainWindow) {
    OpenBoth([this] { SendMessageW(HandleOf(Form), WM_CLOSE, 0, 0); });
    EXPECT_TRUE(HandleOf(Inner) == nullptr && HandleOf(Dialog) == nullptr);
    EXPECT_TRUE(IsEnding());
}

TEST_F(TNested, WhatIsRevealedUnderADialogHasTheFocusInTheEnd) {
    OpenBoth([this] {
        Form.Reveal(*Form.Find(L"Before"));
        EXPECT_EQ(GetActiveWindow(), HandleOf(Inner));
        Inner.Close();
        Dialog.Close();
    });
    EXPECT_EQ(GetFocus(), Window(L"Before"));
}

}  // namespace
