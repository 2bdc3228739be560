// What Windows is told for screen readers, beyond what it knows of its own controls.
#include <oleacc.h>

#include <algorithm>
#include <map>

#include "app/main_window.h"
#include "tests/fakes/fake_system.h"
#include "tests/win32/peer_bench.h"
#include "ui/containers.h"
#include "ui/win32/form_keys.h"

namespace {

constexpr CLSID kService{0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
// The first numbers of the properties' GUIDs.
constexpr DWORD kName = 0x608D3DF8;
constexpr DWORD kDescription = 0x4D48DFE4;
constexpr DWORD kRole = 0xCB905FF2;

/// Stands for the service of Windows, which Wine does not have, and keeps what it is told.
class TFakeService : public IAccPropServices, public IClassFactory {
  public:
    TFakeService() {
        CoInitialize(nullptr);
        CoRegisterClassObject(kService, static_cast<IClassFactory*>(this), CLSCTX_INPROC_SERVER,
                              REGCLS_MULTIPLEUSE, &FRegistered);
    }
    virtual ~TFakeService() {
        CoRevokeClassObject(FRegistered);
        CoUninitialize();
    }
    TFakeService(const TFakeService&) = delete;
    TFakeService& operator=(const TFakeService&) = delete;

    /// What a screen reader is told that asks for the window.
    std::wstring Asked(HWND window, DWORD property) {
        SendMessageW(window, WM_GETOBJECT, 0, static_cast<LPARAM>(static_cast<DWORD>(OBJID_CLIENT)));
        return Told[{window, property}];
    }

    std::map<std::pair<HWND, DWORD>, std::wstring> Told;

    HRESULT WINAPI QueryInterface(REFIID id, void** object) override {
        const bool isFactory = id == IID_IUnknown || id == IID_IClassFactory;
        *object = isFactory ? static_cast<void*>(static_cast<IClassFactory*>(this))
                            : static_cast<IAccPropServices*>(this);
        return S_OK;
    }
    ULONG WINAPI AddRef() override { return 1; }
    ULONG WINAPI Release() override { return 1; }
    HRESULT WINAPI CreateInstance(IUnknown*, REFIID, void** object) override {
        *object = static_cast<IAccPropServices*>(this);
        return S_OK;
    }
    HRESULT WINAPI LockServer(BOOL) override { return S_OK; }

    HRESULT WINAPI SetHwndPropStr(HWND window, DWORD, DWORD, MSAAPROPID property, LPCWSTR text) override {
        Told[{window, property.Data1}] = text;
        return S_OK;
    }
    HRESULT WINAPI SetHwndProp(HWND window, DWORD, DWORD, MSAAPROPID property, VARIANT value) override {
        Told[{window, property.Data1}] = std::to_wstring(value.lVal);
        return S_OK;
    }
    HRESULT WINAPI ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID* properties,
                                  int count) override {
        for (int i = 0; i < count; ++i) Told.erase({window, properties[i].Data1});
        return S_OK;
    }
    HRESULT WINAPI SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    HRESULT WINAPI SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                 AnnoScope) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                     AnnoScope) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT WINAPI SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                      AnnoScope) override {
        return E_NOTIMPL;
    }
    HRESULT WINAPI ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    HRESULT WINAPI ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override {
        return E_NOTIMPL;
    }

  private:
    DWORD FRegistered = 0;
};

struct THasService {
    TFakeService Service;
};

/// The windows go before the service.
class TAccessibility : public THasService, public TPeerBench {
  protected:
    std::wstring Asked(const wchar_t* name, DWORD property) { return Service.Asked(Window(name), property); }
};

TEST_F(TAccessibility, FieldsAreCalledWhatStandsBesideThem) {
    Form.Build(Form,
               Column(Group(L"Group", L"&Group", ComboBox(L"First", {L"a"}),
                            Row(Label(L"L", L"&Size:"), Edit(L"Size"), UpDown(L"Arrows", L"Size", 1, 9, 1)),
                            Row(Button(L"Color", L"&Colour\u2026"), ColorSwatch(L"Swatch")),
                            Label(L"Value", L"1 ms"), TrackBar(L"Track", 0, 9, 1)),
                      Table(L"Table", {L"A"}), ListView(L"List", {L"A"}), Edit(L"Find")));
    Form.SetCaption(L"Form");
    Form.Find(L"Find")->SetCaption(L"Find it");
    Form.Find(L"Table")->SetCaption(L"Found");
    Show();
    HandleMessages();
    EXPECT_TRUE(Service.Told.empty()) << "nobody has asked";
    for (const auto& [control, name] : {std::pair(L"First", L"Group"),
                                        {L"Size", L"Size"},
                                        {L"Arrows", L"Size"},
                                        {L"Swatch", L"Colour\u2026"},
                                        {L"Track", L"Colour\u2026"},
                                        {L"Table", L"Found"},
                                        {L"List", L"Form"},
                                        {L"Find", L"Find it"}})
        EXPECT_EQ(Asked(control, kName), name) << testing::PrintToString(control);
    Form.Close();
    HandleMessages();
    EXPECT_EQ(std::erase_if(Service.Told, [](const auto& told) { return !told.second.empty(); }), 0U)
        << "windows that are gone";
}

TEST_F(TAccessibility, ChangedAndSelectedAreSaid) {
    Form.Build(
        Form,
        Column(CategoryBar(L"Bar", {CategoryGroup(L"G", L"G", {CategoryItem(L"A", L"A", 1, L"general")})}),
               CheckBox(L"Box", L"Box"), Table(L"Table", {L"A"}), Card(L"Card", Label(L"Text", L"Text"))));
    Get<TListView>(L"Table").EmptyText = L"Nothing here";
    auto& item = Get<TCategoryItem>(L"A");
    Show();
    item.SetSelected(true);
    EXPECT_EQ(Asked(L"A", kDescription), L"selected");
    for (TControl* control : {static_cast<TControl*>(&item), Form.Find(L"Box")}) control->SetMarked(true);
    // Who has asked already is not going to ask again.
    EXPECT_EQ((Service.Told[{Window(L"A"), kDescription}]), L"selected, changed");
    EXPECT_EQ(Asked(L"Box", kDescription), L"changed");
    item.SetSelected(false);
    EXPECT_EQ((Service.Told[{Window(L"A"), kDescription}]), L"changed");
    for (TControl* control : {static_cast<TControl*>(&item), Form.Find(L"Box")}) control->SetMarked(false);
    for (const wchar_t* control : {L"A", L"Box"}) EXPECT_EQ(Asked(control, kDescription), L"");
    EXPECT_EQ(Asked(L"Table", kDescription), L"Nothing here");
    Get<TListView>(L"Table").SetRows({{{L"row"}}});
    EXPECT_EQ(Asked(L"Table", kDescription), L"");
    EXPECT_EQ(Asked(L"Card", kRole), std::to_wstring(ROLE_SYSTEM_ALERT));
}

/// The events that Windows was told of since the object was made.
class TEvents {
  public:
    TEvents() {
        Seen.clear();
        FHook = SetWinEventHook(EVENT_MIN, EVENT_MAX, GetModuleHandleW(nullptr), Note, GetCurrentProcessId(),
                                GetCurrentThreadId(), WINEVENT_INCONTEXT);
    }
    ~TEvents() { UnhookWinEvent(FHook); }
    TEvents(const TEvents&) = delete;
    TEvents& operator=(const TEvents&) = delete;

    [[nodiscard]] static bool Tell(HWND window, DWORD event) { return Seen.contains({window, event}); }

  private:
    static void CALLBACK Note(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG, DWORD, DWORD) {
        Seen.insert({window, event});
    }

    static inline std::set<std::pair<HWND, DWORD>> Seen;
    HWINEVENTHOOK FHook;
};

TEST_F(TAccessibility, WhatChangesByItselfIsSaidAtOnce) {
    Form.Build(Form, Column(Card(L"Card", Label(L"Text", L"Text")), CheckBox(L"Box", L"Box")));
    Show();
    const TEvents events;
    Form.Find(L"Card")->SetCaption(L"Something else");
    Form.Find(L"Box")->SetMarked(true);
    EXPECT_TRUE(TEvents::Tell(Window(L"Card"), EVENT_SYSTEM_ALERT));
    EXPECT_TRUE(TEvents::Tell(Window(L"Box"), EVENT_OBJECT_DESCRIPTIONCHANGE));
}

TEST_F(TAccessibility, KeysLeadFromPartToPartAndFromSheetToSheet) {
    Form.Build(
        Form, Column(Edit(L"Find"),
                     Notebook(L"Pages",
                              {NotebookPage(1, PageControl(L"Tabs", Sheet(L"A", L"A", CheckBox(L"InA", L"A")),
                                                           Sheet(L"B", L"B", CheckBox(L"InB", L"B"))))}),
                     Row(Button(L"OK", L"OK"), Button(L"Apply", L"Apply"))));
    Form.Find(L"OK")->SetEnabled(false);
    Form.Panes = {{Form.Find(L"Find")}, {Form.Find(L"Pages")}, {Form.Find(L"OK"), Form.Find(L"Apply")}};
    Get<TNotebook>(L"Pages").ShowPage(L"1");
    Show();
    auto& window = static_cast<TFormWindow&>(*Form.Peer());
    const auto press = [&](WPARAM key, int with = 0) {
        BYTE keys[256]{};
        keys[with] = with == 0 ? 0 : 0x80;
        SetKeyboardState(keys);
        const bool isUsed = PressFormKey(window, {GetFocus(), WM_KEYDOWN, key, 1, 0, {}});
        keys[with] = 0;
        SetKeyboardState(keys);
        window.Panes().Note(GetFocus());
        const TControl* control = window.ControlOf(GetFocus());
        return isUsed && control != nullptr ? control->Name() : L"";
    };
    SetFocus(Window(L"Find"));
    EXPECT_EQ(press(VK_F6), L"InA");
    EXPECT_EQ(press(VK_NEXT, VK_CONTROL), L"Tabs");
    EXPECT_EQ(Get<TPageControl>(L"Tabs").ActiveSheet()->Name(), L"B");
    SetFocus(Window(L"InB"));
    window.Panes().Note(GetFocus());
    EXPECT_EQ(press(VK_F6), L"Apply") << "the first that is enabled";
    EXPECT_EQ(press(VK_F6), L"Find");
    EXPECT_EQ(press(VK_F6), L"InB") << "where the user was";
    EXPECT_EQ(press(VK_F6, VK_SHIFT), L"Find");
    EXPECT_EQ(press(VK_PRIOR, VK_CONTROL), L"Tabs");
    EXPECT_EQ(Get<TPageControl>(L"Tabs").ActiveSheet()->Name(), L"A");
    EXPECT_EQ(press(VK_NEXT), L"") << "alone it is the control's";
    Form.Panes.clear();
    EXPECT_EQ(press(VK_F6), L"");
}

bool IsField(const TComponent& component) {
    const auto kinds = {TComponentKind::Edit,     TComponentKind::UpDown,      TComponentKind::TrackBar,
                        TComponentKind::ComboBox, TComponentKind::ColorSwatch, TComponentKind::ListView};
    return std::ranges::count(kinds, component.Kind()) != 0;
}

TEST_F(TAccessibility, EveryFieldOfTheProgramHasAName) {
    TFakeSystem fake;
    fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
    TQuilltune_FormMain window(fake.System);
    TFormWindow& peer = TFormWindow::Attach(window, GetModuleHandleW(nullptr),
                                            [this](const std::exception_ptr&) { ++Faults; });
    peer.Show(SW_SHOW);
    for (const auto& component : window.Components())
        if (auto& control = static_cast<TControl&>(*component); control.IsLate) peer.CreateLate(control);
    for (const wchar_t* timer : {L"Timer_Click", L"Timer_Loading"}) window.Find<TTimer>(timer)->Tick();
    for (const auto& component : window.Components())
        if (component->Kind() == TComponentKind::CategoryItem)
            static_cast<TCategoryItem&>(*component).Click();
    for (const auto& component : window.Components())
        if (component->Kind() == TComponentKind::TabSheet) window.Reveal(static_cast<TControl&>(*component));
    TNames nameless;
    for (const auto& component : window.Components()) {
        if (!IsField(*component)) continue;
        const TWindowPeer* field = PeerOf(static_cast<TControl&>(*component));
        if (field == nullptr || Service.Asked(field->Handle(), kName).empty())
            nameless.push_back(component->Name());
    }
    EXPECT_EQ(nameless, TNames());
}

}  // namespace
