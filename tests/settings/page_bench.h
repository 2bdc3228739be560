// A page on a form of its own, over fakes: what the page tests stand on.
#pragma once

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
        FPage =
            std::make_unique<TPage>(definition, Context, *FForm.Find(L"Notebook"), [this] { ++Recorded; });
    }

    void Load() { FPage->Load(); }
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

    /// The pending changes as "name: key [value name] = number", one line each.
    std::vector<std::wstring> Pending() const {
        std::vector<std::wstring> lines;
        for (const TRegRecor& record : FChanges.Pending()) {
            const auto* number = std::get_if<std::int32_t>(&record.Value);
            const wchar_t* root = record.RootKey == TRootKey::LocalMachine ? L"HKLM" : L"HKCU";
            lines.push_back(record.Name + L": " + root + record.Key + L"[" + record.ValueName + L"] = " +
                            (number != nullptr && record.DataType == TRegDataType::Dword
                                 ? std::to_wstring(*number)
                                 : L"no DWORD"));
        }
        return lines;
    }
};
