// A system with anything stored at the places of the settings, the same for the same seed.
#pragma once

#include <algorithm>
#include <random>

#include "engine/change_set.h"
#include "settings/page_table.h"
#include "settings/row_places.h"
#include "tests/fakes/fake_system.h"

class TRandomSystem {
  public:
    static constexpr const wchar_t* kUserFile = L"C:\\Data\\Mozilla\\Firefox\\p\\user.js";

    explicit TRandomSystem(unsigned seed) : FRandom(seed) {
        Fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Data");
        constexpr TVersionNumbers kVersions[] = {{2, 5, 0},         {2, 5, 1},        {2, 5, 2},
                                                 {2, 6, 0},         {2, 6, 1},        {2, 6, 3, 9600},
                                                 {2, 10, 0, 19045}, {2, 10, 0, 26100}};
        Fake.Windows.SetVersion(kVersions[Pick(8)]);
        for (const TPageDefinition* page : PageDefinitions())
            for (const TLoader& loader : page->Loaders)
                for (const TRow& row : loader)
                    for (const TTarget& target : TargetsOf(row)) Populate(target);
        if (Pick(2) == 0) return;
        Fake.Registry.PutKey(TRootKey::LocalMachine,
                             L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
        Fake.Files.PutText(L"C:\\Data\\Mozilla\\Firefox\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
        Fake.Files.PutText(kUserFile,
                           "// mine\nuser_pref(\"browser.urlbar.autoFill\",true);\n"
                           "user_pref( \"browser.blink_allowed\" , false ) ; // no\r\n");
    }

    int Pick(int count) { return static_cast<int>(FRandom() % static_cast<unsigned>(count)); }

    struct TSnapshot {
        std::vector<std::wstring> Registry;
        std::vector<TContent> Others;
        std::string UserFile;

        bool operator==(const TSnapshot&) const = default;
    };
    TSnapshot Snapshot() {
        TSnapshot snapshot{Fake.Registry.Lines(), {}, Fake.Files.Text(kUserFile)};
        for (const TTarget& target : FOthers)
            snapshot.Others.push_back(ContentOf(Fake.System, target, nullptr));
        return snapshot;
    }
    TFakeSystem Fake;

  private:
    void Populate(const TTarget& target) {
        if (const auto* registry = std::get_if<TRegistryTarget>(&target)) {
            const TRegistryPlace place{registry->Root, registry->Key, registry->ValueName};
            const TRawValue odd[] = {{7, {'a', 0, 0, 0, 0, 0}},
                                     {1, {'4', 0, '2'}},
                                     {11, {1, 2, 3, 4, 5, 6, 7, 8}},
                                     {0x1234, {}},
                                     {4, {1, 2}}};
            switch (Pick(5)) {
                case 0:
                    return Fake.Registry.PutRaw(place, odd[Pick(5)]);
                case 1:
                case 2:
                    return Fake.Registry.Put(place, {TRegDataType::Dword, Pick(4)});
                case 3:
                    return Fake.Registry.Put({place.Root, place.Key + L"\\below", L"beside"},
                                             {TRegDataType::String, std::wstring(L"kept")});
                default:
                    return;
            }
        }
        if (const auto* parameter = std::get_if<TParameterTarget>(&target)) {
            TBytes bytes(std::max<std::size_t>(parameter->BlockSize, 4));
            for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(Pick(3));
            Fake.Parameters.Put(parameter->Get, bytes);
            Fake.Parameters.Pair(
                parameter->Set, parameter->Get,
                parameter->InParam ? TFakeParameters::TCarrier::Param : TFakeParameters::TCarrier::Data);
            FOthers.push_back(target);
        }
        if (const auto* service = std::get_if<TServiceTarget>(&target)) {
            const TServiceState states[] = {TServiceState::Running, TServiceState::Stopped};
            Fake.Services.Put(service->Service, {.State = states[Pick(2)],
                                                 .StartType = static_cast<TServiceStartType>(2 + Pick(3))});
            FOthers.push_back(target);
        }
    }

    std::mt19937 FRandom;
    std::vector<TTarget> FOthers;  ///< what is not the registry
};
