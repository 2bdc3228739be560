#include "engine/change_set.h"

#include <algorithm>
#include <cctype>
#include <random>

#include <gtest/gtest.h>

#include "engine/carry_out.h"
#include "engine/way_back.h"
#include "tests/fakes/fake_system.h"

namespace {

constexpr const wchar_t* kService = L"service";
constexpr std::uint32_t kFirstParameter = 0x100;  // each is set by its code, and told by the next one

/// Changes of all kinds to few places, so that they meet.
class TRandomChanges {
  public:
    explicit TRandomChanges(unsigned seed) : FRandom(seed) {}

    int Pick(int count) { return static_cast<int>(FRandom() % static_cast<unsigned>(count)); }

    void Populate(TFakeSystem& fake) {
        using enum TFakeParameters::TCarrier;
        for (int i = 0; i < 6; ++i) {
            const TRegistryPlace place{TRootKey::CurrentUser, Key(), Name()};
            i == 0 ? fake.Registry.PutRaw(place, {7, {'a', 0, 0, 0}})
                   : fake.Registry.Put(place, {TRegDataType::Dword, i});
        }
        for (const std::uint32_t set : {0u, 2u, 4u}) {
            if (Pick(3) != 0) fake.Parameters.Put(kFirstParameter + set + 1, {8, 0, 0, 0, 1, 2, 3, 4});
            fake.Parameters.Pair(kFirstParameter + set, kFirstParameter + set + 1, set == 0 ? Param : Data);
        }
        if (Pick(3) != 0)
            fake.Services.Put(kService,
                              {.State = Pick(2) == 0 ? TServiceState::Running : TServiceState::Stopped});
    }

    void Record(TSysControl& changes) {
        const std::wstring name = std::to_wstring(Pick(1000));
        if (Pick(12) == 0) return changes.Switch({.Service = kService, .On = Pick(2) == 0, .Setting = name});
        TRegRecor record{.Name = name, .Setting = name, .RestartNeeded = static_cast<TRestart>(Pick(3))};
        if (Pick(5) == 0) {
            const auto set = 2 * static_cast<std::uint32_t>(Pick(3));
            const auto number = static_cast<std::uint32_t>(Pick(9));
            record.IsSystemParameter = true;
            record.SpiAction = kFirstParameter + set;
            record.SpiGet = record.SpiAction + 1;
            record.SpiInParam = set == 0;
            record.SpiParam = set == 0 ? number : 0;
            record.SpiData = set == 2 ? number : 0;
            if (set == 4) record.SpiData = TBytes{8, 0, 0, 0, static_cast<std::uint8_t>(number), 0, 0, 0};
        } else {
            const TRegValue values[] = {
                {}, Pick(9), std::wstring(L"7"), std::wstring(L"a\x1F600"), TBytes{1, 2}};
            record.Key = Key();
            record.ValueName = Name();
            record.DataType = static_cast<TRegDataType>(Pick(5));
            record.Value = values[Pick(5)];
            record.Action = static_cast<TRegAction>(std::max(0, Pick(5) - 2));
        }
        changes.Add(record);
    }

  private:
    std::wstring Key() {
        return std::wstring(Pick(2) == 0 ? L"\\" : L"") + (Pick(2) == 0 ? L"Software\\K" : L"software\\k") +
               (Pick(3) == 0   ? L""
                : Pick(2) == 0 ? L"\\Below"
                               : L"2") +
               (Pick(2) == 0 ? L"\\" : L"");
    }
    std::wstring Name() { return Pick(3) == 0 ? L"" : Pick(2) == 0 ? L"V" : L"v"; }

    std::mt19937 FRandom;
};

TEST(TChangeSet, SaysWhatIsThereAndWhatApplyLeavesThere) {
    int overwritten = 0;
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        TFakeSystem fake;
        TSysControl changes(fake.System);
        TRandomChanges random(seed);
        random.Populate(fake);
        for (int count = 1 + random.Pick(6); count > 0; --count) random.Record(changes);

        const auto before = fake.Registry.Lines();
        const auto list = PendingChanges(fake.System, changes, nullptr);
        EXPECT_TRUE(fake.Registry.Lines() == before && fake.Parameters.Log().empty())
            << "asking touches nothing";
        ASSERT_EQ(list.size(), changes.Pending().size() + changes.Services().size());
        for (std::size_t i = 0; i < changes.Pending().size(); ++i) {
            EXPECT_EQ(list[i].Setting, changes.Pending()[i].Setting);
            EXPECT_EQ(list[i].Restart, changes.Pending()[i].RestartNeeded);
        }
        for (const TChange& change : list)
            EXPECT_EQ(change.Before, ContentOf(fake.System, change.Target, nullptr));
        CarryOut(changes);
        for (const TChange& change : list) {
            EXPECT_EQ(change.After, ContentOf(fake.System, change.Target, nullptr));
            overwritten += change.IsOverwritten ? 1 : 0;
        }
        EXPECT_FALSE(list.back().IsOverwritten) << "nothing comes later";
    }
    EXPECT_GT(overwritten, 20);
}

/// Everything that the random changes may touch.
struct TSnapshot {
    std::vector<std::wstring> Registry;
    std::vector<TContent> Others;

    explicit TSnapshot(TFakeSystem& fake) : Registry(fake.Registry.Lines()) {
        // What is deleted and then written is spelt as in the write.
        for (std::wstring& line : Registry)
            for (wchar_t& c : line)
                if (c < 0x80) c = static_cast<wchar_t>(std::tolower(static_cast<int>(c)));
        std::ranges::sort(Registry);
        for (const std::uint32_t set : {0U, 2U, 4U})
            Others.push_back(ContentOf(fake.System,
                                       TParameterTarget{.Set = kFirstParameter + set,
                                                        .Get = kFirstParameter + set + 1,
                                                        .BlockSize = set == 4 ? 8U : 0U},
                                       nullptr));
        Others.push_back(ContentOf(fake.System, TServiceTarget{kService}, nullptr));
    }
    bool operator==(const TSnapshot&) const = default;
};

TEST(TChangeSet, TheWayBackRestoresEverythingWhereverApplyStopped) {
    int stopped = 0;
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        TFakeSystem fake;
        TSysControl changes(fake.System);
        TRandomChanges random(seed);
        random.Populate(fake);
        for (int count = 1 + random.Pick(8); count > 0; --count) random.Record(changes);
        // What Windows does not tell cannot be restored.
        const TSnapshot before(fake);
        if (std::ranges::count(before.Others, TContent(TParameterContent())) != 0) continue;

        const TChangeSet operations = OperationsOf(changes, nullptr);
        const TChangeSet back = WayBack(fake.System, operations, nullptr);
        EXPECT_EQ(TSnapshot(fake), before) << "asking touches nothing";
        EXPECT_TRUE(ChangesNothing(fake.System, back, nullptr));
        const bool changesNothing = ChangesNothing(fake.System, operations, nullptr);
        if (random.Pick(3) == 0) fake.Registry.FailChange(1 + random.Pick(4));
        CarryOut(changes);
        stopped += changes.IsEmpty() ? 0 : 1;
        if (changes.IsEmpty())
            for (const TOperation& operation : back)
                EXPECT_EQ(operation.Left, ContentOf(fake.System, operation.Target, nullptr));
        EXPECT_EQ(TSnapshot(fake) == before, ChangesNothing(fake.System, back, nullptr));
        if (changesNothing) EXPECT_EQ(TSnapshot(fake), before);

        fake.Registry.FailChange(0);
        const TChangeSet forward = WayBack(fake.System, back, nullptr);
        const TSnapshot after(fake);
        EXPECT_TRUE(CarryOut(fake.System, back, nullptr).Failed.empty());
        EXPECT_EQ(TSnapshot(fake).Registry, before.Registry);
        EXPECT_EQ(TSnapshot(fake), before);
        if (HasFailure()) return;
        EXPECT_TRUE(CarryOut(fake.System, forward, nullptr).Failed.empty());
        EXPECT_EQ(TSnapshot(fake), after) << "taking back can be taken back";
    }
    EXPECT_GT(stopped, 10);
}

TEST(TChangeSet, TheWayBackReadsTheNamesOfAKeyOnce) {
    TFakeSystem fake;
    TChangeSet operations;
    for (const wchar_t* key : {L"K", L"k", L"K2", L"K"})
        for (const wchar_t* name : {L"Spelt", L"spelt", L"new"}) {
            if (operations.size() % 3 == 0)
                fake.Registry.Put({TRootKey::CurrentUser, key, name}, {TRegDataType::Dword, 1});
            operations.push_back({{},
                                  TRegistryTarget{TRootKey::CurrentUser, key, name},
                                  TRegistryEffect{.Action = TRegAction::DeleteValue}});
        }
    const TChangeSet back = WayBack(fake.System, operations, nullptr);
    EXPECT_EQ(std::get<TRegistryTarget>(back.at(1).Target).ValueName, L"Spelt");
    EXPECT_EQ(fake.Registry.Enumerations, 2U);
}

TEST(TChangeSet, AParameterThatIsNotToldHasNoBefore) {
    TFakeSystem fake;
    TSysControl changes(fake.System);
    TRegRecor record{.Name = L"P", .IsSystemParameter = true};
    record.SpiAction = 0x1D;
    record.SpiParam = 4;
    record.SpiInParam = true;
    changes.Add(record);
    const TChange change = PendingChanges(fake.System, changes, nullptr).at(0);
    EXPECT_EQ(change.Before, TContent(TParameterContent()));
    EXPECT_EQ(change.After, TContent(TParameterContent(4U)));
}

TEST(TChangeSet, ServicesAreSwitchedInTheirOrderAndOnceEach) {
    TFakeSystem fake;
    TSysControl changes(fake.System);
    for (const wchar_t* name : {L"first", L"second", L"third"}) fake.Services.Put(name, {});
    changes.Switch({.Service = L"third", .Order = 2, .On = false});
    changes.Switch({.Service = L"second", .Order = 1, .On = true});
    changes.Switch({.Service = L"third", .Order = 2, .On = true});
    bool handled = false;
    fake.Clock.OnProcessMessages = [&] {
        if (std::exchange(handled, true)) return;
        EXPECT_EQ(changes.Services().size(), 1U) << "what is being switched is not pending any more";
        changes.Switch({.Service = L"first", .Order = 0, .On = true});
        changes.SwitchServices();  // as another Apply does meanwhile
        changes.Switch({.Service = L"first", .Order = 0, .On = false});
    };
    changes.SwitchServices();
    std::erase_if(fake.Services.Calls, [](const std::string& call) { return !call.starts_with("open"); });
    EXPECT_EQ(fake.Services.Calls,
              (std::vector<std::string>{"open second F01FF", "open first F01FF", "open third F01FF"}));
    EXPECT_EQ(changes.Services().size(), 1U) << "its turn is over";
}

}  // namespace
