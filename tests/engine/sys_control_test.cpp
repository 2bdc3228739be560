#include "engine/sys_control.h"

#include <gtest/gtest.h>

#include "tests/fakes/fake_system.h"

namespace {

constexpr const wchar_t* kKey = L"\\Software\\Test\\";

TRegRecor Number(const wchar_t* name, const wchar_t* valueName, std::int32_t number) {
    TRegRecor record;
    record.Name = name;
    record.Key = kKey;
    record.ValueName = valueName;
    record.DataType = TRegDataType::Dword;
    record.Value = number;
    return record;
}

TRegRecor Deletion(const wchar_t* name, const wchar_t* valueName, TRegAction action) {
    TRegRecor record = Number(name, valueName, 0);
    record.Action = action;
    return record;
}

TRegRecor Parameter(const wchar_t* name, std::uint32_t action, TSpiData data) {
    TRegRecor record;
    record.Name = name;
    record.IsSystemParameter = true;
    record.SpiAction = action;
    record.SpiData = std::move(data);
    record.SpiWinIni = 1;
    return record;
}

class TSysControlTest : public testing::Test {
  protected:
    void Store(const wchar_t* valueName, std::int32_t number) {
        Fake.Registry.Put({TRootKey::CurrentUser, kKey, valueName}, {TRegDataType::Dword, number});
    }
    std::optional<std::int32_t> Stored(const wchar_t* valueName) const {
        const TRegistryData* data = Fake.Registry.Find({TRootKey::CurrentUser, kKey, valueName});
        if (data == nullptr) return std::nullopt;
        return std::get<std::int32_t>(data->Value);
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

    ASSERT_EQ(Control.Pending().size(), 3u);
    const TRegRecor& first = Control.Pending()[0];
    EXPECT_EQ(first.ValueName, L"a");
    EXPECT_EQ(first.Action, TRegAction::Write);
    EXPECT_EQ(std::get<std::int32_t>(first.Value), 5);

    Control.Add(Parameter(L"P", 0x4B, 1u));
    Control.Add(Parameter(L"P", 0x49, std::vector<std::uint8_t>{8, 0}));
    EXPECT_EQ(Control.Pending().back().SpiAction, 0x49u);
    EXPECT_EQ(std::get<1>(Control.Pending().back().SpiData).size(), 2u);
}

TEST_F(TSysControlTest, ReadsTheStoredValueAndNeverThePendingOne) {
    Store(L"a", 7);
    Control.Add(Number(L"A", L"a", 1));
    TRegRecor record = Number(L"", L"A", 0);
    Control.ReadCurrent(record);
    EXPECT_EQ(record.ReadResult, TReadStatus::Found);
    EXPECT_EQ(std::get<std::int32_t>(record.Value), 7);

    record = Number(L"", L"missing", 3);
    Control.ReadCurrent(record);
    EXPECT_EQ(record.ReadResult, TReadStatus::ValueMissing);
    EXPECT_EQ(std::get<std::int32_t>(record.Value), 3) << "left as it was";

    record.Key = L"\\Software\\Nowhere";
    Control.ReadCurrent(record);
    EXPECT_EQ(record.ReadResult, TReadStatus::KeyUnavailable);
    EXPECT_EQ(Control.CheckExists(record), TReadStatus::KeyUnavailable);
}

TEST_F(TSysControlTest, ThePendingReadAsksTheLastChangeOfThePlaceFirst) {
    Store(L"a", 7);
    const auto read = [&](const wchar_t* key, const wchar_t* valueName) {
        TRegRecor record = Number(L"", valueName, -1);
        record.Key = key;
        Control.ReadPending(record);
        return record;
    };
    EXPECT_EQ(std::get<std::int32_t>(read(kKey, L"a").Value), 7) << "no change: the stored value";

    Control.Add(Number(L"First", L"a", 1));
    Control.Add(Number(L"Second", L"a", 2));
    EXPECT_EQ(std::get<std::int32_t>(read(L"software\\TEST", L"A").Value), 2)
        << "case and backslashes do not count";

    Control.Add(Deletion(L"Third", L"a", TRegAction::DeleteValue));
    EXPECT_EQ(read(kKey, L"a").ReadResult, TReadStatus::ValueMissing);

    Control.Add(Number(L"Fourth", L"b", 4));
    Control.Add(Deletion(L"Fifth", L"", TRegAction::DeleteKey));
    EXPECT_EQ(read(kKey, L"b").ReadResult, TReadStatus::ValueMissing);
}

TEST_F(TSysControlTest, WritesInTheOrderOfFirstRecordingAndEmptiesTheList) {
    Store(L"gone", 1);
    Control.Add(Number(L"A", L"x", 1));
    Control.Add(Number(L"B", L"x", 2));
    Control.Add(Deletion(L"C", L"gone", TRegAction::DeleteValue));
    Control.Add(Deletion(L"D", L"never there", TRegAction::DeleteValue));
    Control.Add(Parameter(L"P", 0x4B, 1u));
    Control.Add(Number(L"A", L"x", 3));
    TRegRecor created;
    created.Name = L"E";
    created.Key = L"\\Software\\Created";
    created.DataType = TRegDataType::String;
    Control.Add(created);
    TRegRecor noKey = Deletion(L"F", L"", TRegAction::DeleteKey);
    noKey.Key = L"\\Software\\Nowhere";
    Control.Add(noKey);

    Control.WriteAll();
    EXPECT_TRUE(Control.Pending().empty());
    EXPECT_EQ(Stored(L"x"), 2) << "B was first recorded after A";
    EXPECT_EQ(Stored(L"gone"), std::nullopt);
    EXPECT_EQ(Fake.Parameters.Log().size(), 1u);
    EXPECT_EQ(
        std::get<std::wstring>(Fake.Registry.Find({TRootKey::CurrentUser, L"Software\\Created", L""})->Value),
        L"");

    Fake.Registry.ClearLog();
    Control.WriteAll();
    EXPECT_TRUE(Fake.Registry.Log().empty());
}

TEST_F(TSysControlTest, KeysWithoutAccessAndRefusedParametersHoldNothingBack) {
    Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    TRegRecor machine = Number(L"M", L"m", 1);
    machine.RootKey = TRootKey::LocalMachine;
    Control.Add(machine);
    Control.Add(Parameter(L"P", 0x4B, 1u));
    Fake.Parameters.RefuseAction(0x4B);
    Control.Add(Number(L"A", L"a", 1));
    Control.WriteAll();
    EXPECT_EQ(Stored(L"a"), 1);
    EXPECT_TRUE(Control.Pending().empty());
}

TEST_F(TSysControlTest, ARefusedWriteKeepsTheWholeListForTheNextPass) {
    Control.Add(Number(L"A", L"a", 1));
    Control.Add(Parameter(L"P", 0x49, std::vector<std::uint8_t>{8, 0, 0, 0}));
    Control.Add(Number(L"B", L"b", 2));
    Control.Add(Number(L"C", L"c", 3));
    Fake.Registry.FailChange(2);
    Control.WriteAll();
    EXPECT_EQ(Stored(L"a"), 1);
    EXPECT_EQ(Stored(L"c"), std::nullopt) << "the pass ended";
    EXPECT_EQ(Control.Pending().size(), 4u);

    Fake.Registry.ClearFaults();
    Control.WriteAll();
    EXPECT_EQ(Stored(L"c"), 3);
    ASSERT_EQ(Fake.Parameters.Log().size(), 2u);
    EXPECT_EQ(std::get<1>(Fake.Parameters.Log()[1].Data).size(), 4u) << "the block is still there";
    EXPECT_TRUE(Control.Pending().empty());
}

TEST_F(TSysControlTest, WritesAValueInTheTypeOfItsEntry) {
    struct TCase {
        TRegDataType Type;
        TRegValue Value;
        TRegValue Written;
    };
    const TCase cases[] = {
        {TRegDataType::String, std::int32_t{-1}, std::wstring(L"-1")},
        {TRegDataType::ExpandString, TRegValue{}, std::wstring()},
        {TRegDataType::Dword, std::wstring(L" 12 "), std::int32_t{12}},
        {TRegDataType::Dword, TRegValue{}, std::int32_t{0}},
        {TRegDataType::Binary, std::wstring(L"\x01\xFF"), TBytes{0x01, 0xFF}},
        {TRegDataType::Binary, std::int32_t{0x0102}, TBytes{0x02, 0x01, 0x00, 0x00}},
    };
    for (const TCase& c : cases) {
        TRegRecor record = Number(L"A", L"v", 0);
        record.DataType = c.Type;
        record.Value = c.Value;
        Control.Add(record);
        Control.WriteAll();
        const TRegistryData* data = Fake.Registry.Find({TRootKey::CurrentUser, kKey, L"v"});
        ASSERT_NE(data, nullptr);
        EXPECT_EQ(*data, (TRegistryData{c.Type, c.Written}));
    }

    TRegRecor untyped = Number(L"U", L"untyped", 1);
    untyped.Key = L"\\Software\\Untyped";
    untyped.DataType = TRegDataType::Unknown;
    Control.Add(untyped);
    Control.WriteAll();
    EXPECT_TRUE(Fake.Registry.HasKey(TRootKey::CurrentUser, L"Software\\Untyped"));
    EXPECT_EQ(Fake.Registry.Find({TRootKey::CurrentUser, L"Software\\Untyped", L"untyped"}), nullptr);

    TRegRecor noNumber = Number(L"N", L"n", 0);
    noNumber.Value = std::wstring(L"many");
    Control.Add(noNumber);
    Control.WriteAll();
    EXPECT_EQ(Control.Pending().size(), 1u) << "counts as a refused write";
}

}  // namespace
