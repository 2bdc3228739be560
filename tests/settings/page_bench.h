// A page on a form of its own, over fakes: what the page tests stand on.
#pragma once

#include <algorithm>

#include <gtest/gtest.h>

#include "settings/page.h"
#include "tests/fakes/fake_system.h"
#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/state.h"

class TPageBench {
  public:
    TFakeSystem Fake;

  private:
    TForm FForm;
    TSysControl FChanges;
    TFirefoxPrefs FFirefox{Fake.System, L"C:\\Mozilla\\"};
    std::vector<std::unique_ptr<TPage>> FPages;

  public:
    TPageContext Context{.System = Fake.System, .Form = FForm, .Changes = FChanges, .Firefox = FFirefox};
    int Recorded = 0;  ///< how often the page told that it recorded something

    explicit TPageBench(const TPageDefinition& definition) : FForm(L"Form", L"TForm"), FChanges(Fake.System) {
        FForm.Build(FForm, Notebook(L"Notebook", {}));
        Add(definition);
    }

    /// Puts a further page on the form.
    void Add(const TPageDefinition& definition) {
        FPages.push_back(std::make_unique<TPage>(definition, Context, *FForm.Find(L"Notebook"),
                                                 [this](TComponent&) { ++Recorded; }));
    }
    /// Runs the loaders of the first page.
    void Load() { FPages.front()->Load(); }
    /// What Apply will ask to restart.
    [[nodiscard]] TRestart NeedsRestart() const {
        TRestart needed = TRestart::None;
        for (const TRegRecor& record : FChanges.Pending()) needed = std::max(needed, record.RestartNeeded);
        return needed;
    }
    /// What Apply will do with a service: 0 nothing, 1 switch it on, 2 off.
    [[nodiscard]] int Switches(const wchar_t* service) const {
        for (const TServiceSwitch& each : FChanges.Services())
            if (each.Service == service) return each.On ? 1 : 2;
        return 0;
    }

    template <typename T>
    T& Get(const std::wstring& name) {
        T* control = FForm.Find<T>(name);
        if (control == nullptr) throw std::logic_error("no such control of that type");
        return *control;
    }
    /// What a control shows: "on" or "off", a text, a position, an item index, a colour (0xBBGGRR), the initials
    /// of the checked rows of a list.
    std::wstring State(const std::wstring& name);
    /// Brings a control into a state, as State words it, as a user would; a button is pressed, and a row of a
    /// list turned over.
    void Act(const std::wstring& name, const std::wstring& state);

    /// Act without recording.
    void Preset(const std::wstring& name, const std::wstring& state) {
        const TLoadingScope loading(Context);
        Act(name, state);
    }

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
