// A page on a form of its own, over fakes: what the page tests stand on.
#pragma once

#include <algorithm>

#include <gtest/gtest.h>

#include "settings/page.h"
#include "tests/fakes/fake_system.h"
#include "ui/containers.h"
#include "ui/controls.h"

class TPageBench {
  public:
    TFakeSystem Fake;

  private:
    TForm FForm;
    TSysControl FChanges;
    TFirefoxPrefs FFirefox{Fake.System, L"C:\\Mozilla\\"};
    std::unique_ptr<TPage> FPage;

  public:
    TPageContext Context{.System = Fake.System, .Form = FForm, .Changes = FChanges, .Firefox = FFirefox};
    int Recorded = 0;  ///< how often the page told that it recorded something

    explicit TPageBench(const TPageDefinition& definition) : FForm(L"Form", L"TForm"), FChanges(Fake.System) {
        FForm.Build(FForm, Notebook(L"Notebook", {}));
        FPage = std::make_unique<TPage>(definition, Context, *FForm.Find(L"Notebook"),
                                        [this](TComponent&) { ++Recorded; });
    }

    void Load() { FPage->Load(); }
    /// Whether Apply will ask for a restart.
    [[nodiscard]] bool NeedsRestart() const {
        return std::ranges::any_of(FChanges.Pending(), &TRegRecor::RestartNeeded);
    }
    void Store(const TPlace& place, const TRegistryData& data) {
        Fake.Registry.Put({place.Root, place.Key, place.ValueName}, data);
    }
    void Store(const TPlace& place, std::int32_t number) { Store(place, {TRegDataType::Dword, number}); }

    template <typename T>
    T& Get(const std::wstring& name) {
        T* control = FForm.Find<T>(name);
        if (control == nullptr) throw std::logic_error("no such control of that type");
        return *control;
    }
    /// Whether a check box or radio button is checked.
    bool Checked(const std::wstring& name) {
        if (auto* box = FForm.Find<TCheckBox>(name)) return box->Checked();
        return Get<TRadioButton>(name).Checked();
    }
    /// Sets a check box or radio button without recording.
    void Preset(const std::wstring& name, bool checked) {
        const TLoadingScope loading(Context);
        Click(name, checked);
    }
    /// Sets a check box or radio button as a user would.
    void Click(const std::wstring& name, bool checked) {
        if (auto* box = FForm.Find<TCheckBox>(name))
            box->SetChecked(checked);
        else
            Get<TRadioButton>(name).SetChecked(checked);
    }

    /// What a control shows: "on" or "off", a text, a position, an item index, a colour (0xBBGGRR).
    std::wstring State(const std::wstring& name);
    /// Brings a control into a state, as State words it, as a user would; a button is pressed.
    void Act(const std::wstring& name, const std::wstring& state);

    /// The pending changes, one line each, in order:
    ///   name: HKCU\key[value name] = 1         a DWORD; a text is in quotes, bytes are hexadecimal; no backslash ends the key
    ///   name: delete HKCU\key[value name]
    ///   name: delete HKCU\key
    ///   name: parameter 0x1009(0, 1)           a number or bytes as the second argument
    std::vector<std::wstring> Pending() const;
};

inline TRegistryData Number(std::int32_t number) { return {TRegDataType::Dword, number}; }
inline TRegistryData String(const wchar_t* text) { return {TRegDataType::String, std::wstring(text)}; }
inline TRegistryData Bytes(TBytes bytes) { return {TRegDataType::Binary, std::move(bytes)}; }
