#include "engine/sys_control.h"

#include <gtest/gtest.h>

#include "tests/fakes/fake_system.h"

namespace {

constexpr const wchar_t* kKey = L"\\Software\\Test\\";

TRegRecor Number(const wchar_t* name, const wchar_t* valueName, std::int32_t number) {
    return {
        .Name = name, .Key = kKey, .ValueName = valueName, .DataType = TRegDataType::Dword, .Value = number};
}

TRegRecor Deletion(const wchar_t* name, const wchar_t* valueName, TRegAction action) {
    TRegRecor record = Number(name, valueName, 0);
    record.Action = action;
    return record;
}

TRegRecor Parameter(const wchar_t* name, std::uint32_t action, std::uint32_t param, TSpiData data) {
    TRegRecor record{.Name = name, .IsSystemParameter = true};
    record.SpiAction = action;
    record.SpiParam = param;
    record.SpiData = std::move(data);
    return record;
}

class TSysControlTest : public testing::Test {
  protected:
    void Store(const wchar_t* valueName, std::int32_t number) {
        Fake.Registry.Put({TRootKey::CurrentUser, kKey, valueName}, {TRegDataType::Dword, number});
    }
    /// The stored number; -1 = none.
    std::int32_t Stored(const wchar_t* valueName) const {
        const TRegistryData* data = Fake.Registry.Find({TRootKey::CurrentUser, kKey, valueName});
        return data == nullptr ? -1 : std::get<std::int32_t>(data->Value);
    }
    std::uint8_t ParameterByte(std::uint32_t getAction) const {
        std::uint8_t byte = 0xFF;
        EXPECT_TRUE(Fake.Parameters.Get(getAction, 0, {&byte, 1}));
        return byte;
    }

    TFakeSystem Fake;
    TSysControl Control{Fake.System};
};

TEST_F(TSysControlTest, ASecondChangeOfOneNameReplacesOnlyTheValue) {
    Control.Add(Number(L"A", L"a", 1));
    Control.Add(Number(L"B", L"b", 1));
    TRegRecor again = Deletion(L"A", L"other", TRegAction::DeleteValue);
    again.Value = 5;
    Control.Add(again);
    Control.Add(Number(L"a", L"c", 1));  // names are case-sensitive
    Control.Add(Parameter(L"P", 0x4B, 0, 1U));
    Control.Add(Parameter(L"P", 0x49, 7, TBytes{8, 0}));

    ASSERT_EQ(Control.Pending().size(), 4u);
    const TRegRecor& first = Control.Pending()[0];
    EXPECT_EQ(first.ValueName, L"a");
    EXPECT_EQ(first.Action, TRegAction::Write);
    EXPECT_EQ(std::get<std::int32_t>(first.Value), 5);
    EXPECT_EQ(Control.Pending()[3].SpiAction, 0x49u);
    EXPECT_EQ(Control.Pending()[3].SpiParam, 7u);
    EXPECT_EQ(std::get<TBytes>(Control.Pending()[3].SpiData).size(), 2u);
}

TEST_F(TSysControlTest, ReadsTheStoredValueOrThePendingOne) {
    using enum TReadStatus;
    /// What a read answers: the number, or -1 for the one left as it was, with the reason.
    using TAnswer = std::pair<std::int32_t, TReadStatus>;
    const auto expectRead = [&](const wchar_t* key, const wchar_t* name, TAnswer current, TAnswer pending) {
        TRegRecor stored = Number(L"", name, -1);
        stored.Key = key;
        TRegRecor next = stored;
        Control.ReadCurrent(stored);
        EXPECT_EQ(TAnswer(std::get<std::int32_t>(stored.Value), stored.ReadResult), current);
        Control.ReadPending(next);
        EXPECT_EQ(TAnswer(std::get<std::int32_t>(next.Value), next.ReadResult), pending);
        EXPECT_EQ(Control.CheckExists(stored), current.second);
    };
    Store(L"a", 7);
    expectRead(kKey, L"A", {7, Found}, {7, Found});
    Control.Add(Number(L"First", L"a", 1));
    Control.Add(Number(L"Second", L"a", 2));
    TRegRecor machine = Number(L"Machine", L"a", 3);
    machine.RootKey = TRootKey::LocalMachine;
    Control.Add(machine);
    expectRead(kKey, L"missing", {-1, ValueMissing}, {-1, ValueMissing});
    expectRead(L"\\Software\\Nowhere", L"a", {-1, KeyUnavailable}, {-1, KeyUnavailable});
    // Case and backslashes do not count, the last change does.
    expectRead(L"software\\TEST", L"A", {7, Found}, {2, Found});
    Control.Add(Deletion(L"Third", L"a", TRegAction::DeleteValue));
    expectRead(kKey, L"a", {7, Found}, {-1, ValueMissing});
    Control.Add(Number(L"Fourth", L"b", 4));
    Control.Add(Deletion(L"Fifth", L"", TRegAction::DeleteKey));
    expectRead(kKey, L"b", {-1, ValueMissing}, {-1, ValueMissing});
}

TEST_F(TSysControlTest, WritesInTheOrderOfFirstRecordingAndEmptiesTheList) {
    Store(L"gone", 1);
    Fake.Registry.PutKey(TRootKey::CurrentUser, L"Software\\Old\\Deep");
    Fake.Parameters.Pair(0x4B, 0x4A, TFakeParameters::TCarrier::Param);
    Control.Add(Number(L"A", L"x", 1));
    Control.Add(Number(L"B", L"x", 2));
    Control.Add(Deletion(L"C", L"gone", TRegAction::DeleteValue));
    Control.Add(Parameter(L"P", 0x4B, 9, 1U));
    Control.Add(Number(L"A", L"x", 3));
    Control.Add({.Name = L"E", .Key = L"\\Software\\Created", .DataType = TRegDataType::String});
    for (const wchar_t* key : {L"\\Software\\Nowhere", L"\\Software\\Old"})
        Control.Add({.Name = key, .Key = key, .Action = TRegAction::DeleteKey});

    Control.WriteAll();
    EXPECT_TRUE(Control.Pending().empty());
    EXPECT_EQ(Stored(L"x"), 2) << "B was first recorded after A";
    EXPECT_EQ(Stored(L"gone"), -1);
    EXPECT_EQ(ParameterByte(0x4A), 9);
    EXPECT_NE(Fake.Registry.Find({TRootKey::CurrentUser, L"Software\\Created", L""}), nullptr);
    EXPECT_FALSE(Fake.Registry.HasKey(TRootKey::CurrentUser, L"Software\\Old"));
}

TEST_F(TSysControlTest, KeysWithoutAccessAndRefusedParametersHoldNothingBack) {
    Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    TRegRecor machine = Number(L"M", L"m", 1);
    machine.RootKey = TRootKey::LocalMachine;
    Control.Add(machine);
    Control.Add(Parameter(L"P", 0x4B, 0, 1U));
    Fake.Parameters.RefuseAction(0x4B);
    Control.Add(Number(L"A", L"a", 1));
    Control.WriteAll();
    EXPECT_EQ(Stored(L"a"), 1);
    EXPECT_TRUE(Control.Pending().empty());
}

TEST_F(TSysControlTest, ARefusedWriteKeepsTheWholeListForTheNextPass) {
    Control.Add(Number(L"A", L"a", 1));
    Control.Add(Parameter(L"P", 0x49, 0, TBytes{8, 0, 0, 0}));
    Control.Add(Number(L"B", L"b", 2));
    Control.Add(Number(L"C", L"c", 3));
    Fake.Registry.FailChange(2);
    Control.WriteAll();
    EXPECT_EQ(Stored(L"a"), 1);
    EXPECT_EQ(Stored(L"c"), -1) << "the pass ended";
    EXPECT_EQ(Control.Pending().size(), 4u);

    Control.WriteAll();
    EXPECT_EQ(Stored(L"c"), 3);
    EXPECT_EQ(Fake.Parameters.Log(), std::vector<TSpiData>(2, TBytes{8, 0, 0, 0}))
        << "the block is still there";
    EXPECT_TRUE(Control.Pending().empty());
}

TEST_F(TSysControlTest, WritesAValueInTheTypeOfItsEntry) {
    const struct {
        TRegDataType Type;
        TRegValue Value;
        TRegValue Written;
    } cases[] = {
        {TRegDataType::String, std::int32_t{-1}, L"-1"},
        {TRegDataType::ExpandString, TRegValue{}, L""},
        {TRegDataType::Dword, L" 12 ", std::int32_t{12}},
        {TRegDataType::Dword, TRegValue{}, std::int32_t{0}},
        {TRegDataType::Binary, L"\x01\xFF", TBytes{0x01, 0xFF}},
        {TRegDataType::Binary, std::int32_t{0x0102}, TBytes{0x02, 0x01, 0x00, 0x00}},
    };
    TRegRecor record = Number(L"A", L"v", 0);
    for (const auto& each : cases) {
        record.DataType = each.Type;
        record.Value = each.Value;
        Control.Add(record);
        Control.WriteAll();
        const TRegistryData* data = Fake.Registry.Find({TRootKey::CurrentUser, kKey, L"v"});
        ASSERT_NE(data, nullptr);
        EXPECT_EQ(*data, (TRegistryData{each.Type, each.Written}));
    }

    Control.Add({.Name = L"U", .Key = L"Software\\Untyped", .ValueName = L"v", .Value = 1});
    Control.WriteAll();
    EXPECT_TRUE(Fake.Registry.HasKey(TRootKey::CurrentUser, L"Software\\Untyped"));
    EXPECT_EQ(Fake.Registry.Find({TRootKey::CurrentUser, L"Software\\Untyped", L"v"}), nullptr);

    TRegRecor noNumber = Number(L"N", L"n", 0);
    noNumber.Value = L"many";
    Control.Add(noNumber);
    Control.WriteAll();
    EXPECT_EQ(Control.Pending().size(), 1u) << "counts as a refused write";
}

}  // namespace
