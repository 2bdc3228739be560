#include <gmock/gmock.h>

#include "tests/contract/subject.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TRegistryData Text(const wchar_t* text) { return {TRegDataType::String, std::wstring(text)}; }
TRegistryData Number(std::int32_t number) { return {TRegDataType::Dword, number}; }

class TRegistryContract : public TContractTest {
  protected:
    TRegistry& Registry() { return System().Registry; }

    /// A place below the test's key of the user.
    static TRegistryPlace Place(const std::wstring& key, const std::wstring& valueName = {}) {
        return {kUserKey.Root, kUserKey.Path + key, valueName};
    }
    void Put(const std::wstring& key, const std::wstring& valueName, const TRegistryData& data) {
        ASSERT_EQ(Registry().Write(Place(key, valueName), data), TWriteStatus::Done);
    }
    TWriteStatus Delete(const std::wstring& key) {
        return Registry().DeleteKey(kUserKey.Root, kUserKey.Path + key);
    }
    std::vector<std::wstring> Keys(const std::wstring& key = {}) {
        return Registry().SubKeys(kUserKey.Root, kUserKey.Path + key);
    }
    /// What is stored there; of type Unknown when there is nothing.
    TRegistryData Get(const TRegistryPlace& place) {
        TRegistryData data;
        (void)Registry().Read(place, data);
        return data;
    }
};

TEST_F(TRegistryContract, EveryTypeRoundTrips) {
    const TRegistryData values[] = {
        Text(L"text"),
        Text(L""),
        Text(L"\u00FC \u03C0 \u4E2D"),
        {TRegDataType::String, std::wstring(100'000, L'x')},
        {TRegDataType::ExpandString, L"%SystemRoot%\\x"},
        Number(0),
        Number(INT32_MIN),
        Number(INT32_MAX),
        {TRegDataType::Binary, TBytes{}},
        {TRegDataType::Binary, TBytes{0, 1, 0, 255}},
    };
    for (const TContractKey& key : kContractKeys) {
        for (const wchar_t* name : {L"", L"Value name"}) {
            // One over the other: the new type counts, nothing of a longer old value stays.
            for (const TRegistryData& data : values) {
                ASSERT_EQ(Registry().Write({key.Root, key.Path, name}, data), TWriteStatus::Done);
                EXPECT_EQ(Get({key.Root, key.Path, name}), data)
                    << key.Path << " type " << static_cast<int>(data.Type);
                TRawValue raw;
                EXPECT_EQ(Registry().ReadRaw({key.Root, key.Path, name}, raw), TReadStatus::Found);
                EXPECT_EQ(raw, RawValueOf(data));
            }
        }
    }
    Put(L"", L"v", {TRegDataType::String, std::wstring(L"front\0back", 10)});
    EXPECT_EQ(Get(Place(L"", L"v")), Text(L"front")) << "text ends at its first NUL";
}

TEST_F(TRegistryContract, AnyBytesOfAnyTypeAreStored) {
    using enum TRegDataType;
    const struct {
        const char* What;
        TRawValue Raw;
        TRegistryData Read;
    } cases[] = {
        {"text without NUL", {1, {'a', 0, 'b', 0}}, {String, L"ab"}},
        {"text with half a character", {1, {'a', 0, 'b', 0, 'c'}}, {String, L"ab"}},
        {"text with half a NUL", {1, {'a', 0, 'b', 0, 0}}, {String, L"ab"}},
        {"text of one byte", {1, {'a'}}, {String, L""}},
        {"text of no bytes", {1, {}}, {String, L""}},
        {"text that goes on after NUL", {2, {'a', 0, 0, 0, 'b', 0}}, {ExpandString, L"a"}},
        {"a surrogate pair", {1, {0x3D, 0xD8, 0, 0xDE, 0, 0}}, {String, L"\U0001F600"}},
        {"surrogates in the wrong order", {1, {0, 0xDE, 0x3D, 0xD8}}, {String, L"\xDE00\xD83D"}},
        {"short number", {4, {1, 0}}, {}},
        {"long number", {4, {1, 0, 0, 0, 0, 0, 0, 0}}, {}},
        {"number without bytes", {4, {}}, {}},
        {"big-endian number", {5, {0, 0, 0, 1}}, {}},
        {"number of 64 bits", {11, {1, 0, 0, 0, 0, 0, 0, 0}}, {}},
        {"several texts", {7, {'a', 0, 0, 0, 0, 0}}, {}},
        {"several texts without NUL", {7, {'a', 0}}, {}},
        {"no type", {0, {'a', 0}}, {}},
        {"no type and no bytes", {}, {}},
        {"a type of somebody's own", {0x12345, {1, 2, 3}}, {}},
        {"256 bytes", {3, TBytes(256, 7)}, {Binary, TBytes(256, 7)}},
        {"257 bytes", {3, TBytes(257, 7)}, {Binary, TBytes(257, 7)}},
        {"huge text", {1, TBytes(2'000'002, 'x')}, {String, std::wstring(1'000'001, L'\x7878')}},
        {"huge bytes", {3, TBytes(3'000'000, 7)}, {Binary, TBytes(3'000'000, 7)}},
    };
    const TRegistryPlace place = Place(L"\\New\\Key", L"v");
    for (const auto& each : cases) {
        ASSERT_EQ(Registry().WriteRaw(place, each.Raw), TWriteStatus::Done) << each.What;
        TRegistryData data{Binary, 1};
        ASSERT_EQ(Registry().Read(place, data), TReadStatus::Found) << each.What;
        EXPECT_TRUE(data == each.Read) << each.What;
        TRawValue raw{7, {1}};
        ASSERT_EQ(Registry().ReadRaw(place, raw), TReadStatus::Found) << each.What;
        EXPECT_TRUE(raw == each.Raw) << each.What;
        EXPECT_EQ(Registry().Check(place, TRegistryView::Native), TReadStatus::Found);
    }
}

TEST_F(TRegistryContract, ValuesAreListedAsTheyAreSpelt) {
    const auto names = [&](const wchar_t* key) {
        return Registry().ValueNames(kUserKey.Root, kUserKey.Path + std::wstring(key));
    };
    const std::wstring longest(16'383, L'x');
    Put(L"\\Key\\Sub", L"below", Number(1));
    EXPECT_THAT(names(L"\\Key"), IsEmpty());
    for (const wchar_t* name : {L"", L"b", L"Name \u03C0", longest.c_str()}) Put(L"\\Key", name, Number(1));
    EXPECT_THAT(names(L"\\KEY\\"), UnorderedElementsAre(L"", L"b", L"Name \u03C0", longest));
    EXPECT_EQ(Registry().DeleteValue(Place(L"\\Key", L"")), TWriteStatus::Done);
    EXPECT_THAT(names(L"\\Key"), UnorderedElementsAre(L"b", L"Name \u03C0", longest));
    EXPECT_THAT(names(L"\\None"), IsEmpty());
    EXPECT_THAT(Keys(), ElementsAre(L"Key")) << "listing creates nothing";
}

TEST_F(TRegistryContract, WhatIsMissingIsToldApartAndLeavesTheOutput) {
    using enum TReadStatus;
    Put(L"\\Key", L"There", Number(1));
    Put(L"\\Empty", L"v", {});  // creates the key alone
    const struct {
        TRegistryPlace Place;
        TReadStatus Read;
        TReadStatus Check;
    } cases[] = {
        {Place(L"\\None", L"There"), KeyUnavailable, KeyUnavailable},
        {Place(L"\\None"), KeyUnavailable, KeyUnavailable},
        {Place(L"\\Key", L"None"), ValueMissing, ValueMissing},
        {Place(L"\\Key"), ValueMissing, Found},
        {Place(L"\\Key", L"There"), Found, Found},
        {Place(L"\\Empty", L"v"), ValueMissing, ValueMissing},
    };
    for (const auto& each : cases) {
        TRegistryData data = Text(L"before");
        EXPECT_EQ(Registry().Read(each.Place, data), each.Read) << each.Place.Key << each.Place.ValueName;
        EXPECT_EQ(data, each.Read == Found ? Number(1) : Text(L"before"));
        TRawValue raw{7, {1}};
        EXPECT_EQ(Registry().ReadRaw(each.Place, raw), each.Read);
        EXPECT_EQ(raw, each.Read == Found ? (TRawValue{4, {1, 0, 0, 0}}) : (TRawValue{7, {1}}));
        for (const TRegistryView view : {TRegistryView::Native, TRegistryView::Process})
            EXPECT_EQ(Registry().Check(each.Place, view), each.Check);
    }
    EXPECT_THAT(Keys(), UnorderedElementsAre(L"Key", L"Empty")) << "reading creates nothing";
}

TEST_F(TRegistryContract, DataThatDoesNotFitItsTypeIsRefused) {
    using enum TRegDataType;
    const TRegistryData wrong[] = {
        {String, 1},
        {String, {}},
        {ExpandString, TBytes{1}},
        {Dword, L"1"},
        {Dword, TBytes{1, 0, 0, 0}},
        {Dword, {}},
        {Binary, L"b"},
        {Binary, 1},
    };
    Put(L"", L"v", Number(7));
    for (const TRegistryData& data : wrong)
        EXPECT_EQ(Registry().Write(Place(L"", L"v"), data), TWriteStatus::Refused);
    EXPECT_EQ(Get(Place(L"", L"v")), Number(7));
}

TEST_F(TRegistryContract, CaseAndSurplusBackslashesDoNotMatterAndSpellingStays) {
    const std::wstring bare = std::wstring(kUserKey.Path).substr(1);
    Put(L"\\Spelt", L"Value", Number(1));
    std::int32_t number = 1;
    for (const std::wstring& key :
         {bare + L"\\SPELT", L"\\" + bare + L"\\spelt\\", L"\\\\" + bare + L"\\\\Spelt\\\\"}) {
        const TRegistryPlace place{kUserKey.Root, key, L"vALUE"};
        EXPECT_EQ(Get(place), Number(number)) << key;
        EXPECT_EQ(Registry().Write(place, Number(++number)), TWriteStatus::Done) << key;
        EXPECT_EQ(Registry().Check(place, TRegistryView::Process), TReadStatus::Found) << key;
    }
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, L"\\" + bare + L"\\"), UnorderedElementsAre(L"Spelt"));
    EXPECT_EQ(Registry().DeleteValue(Place(L"\\spelt", L"vALUE")), TWriteStatus::Done);
    EXPECT_EQ(Get(Place(L"\\Spelt", L"Value")), TRegistryData{});
    EXPECT_EQ(Registry().DeleteKey(kUserKey.Root, L"\\" + bare + L"\\sPELT\\"), TWriteStatus::Done);
    EXPECT_THAT(Keys(), IsEmpty());
}

TEST_F(TRegistryContract, DeletingAValueLeavesTheOthers) {
    Put(L"", L"", Text(L"default"));
    Put(L"", L"a", Number(1));
    Put(L"", L"b", Number(2));
    for (const wchar_t* name : {L"", L"a", L"a", L"never there"}) {
        EXPECT_EQ(Registry().DeleteValue(Place(L"", name)), TWriteStatus::Done) << name;
        EXPECT_EQ(Get(Place(L"", name)), TRegistryData{});
    }
    EXPECT_EQ(Get(Place(L"", L"b")), Number(2));
    EXPECT_EQ(Registry().DeleteValue(Place(L"\\None", L"b")), TWriteStatus::KeyUnavailable);
}

TEST_F(TRegistryContract, DeletingAKeyTakesWhatIsBelowAndNothingElse) {
    Put(L"", L"v", Number(1));
    Put(L"\\Key", L"v", Number(2));
    Put(L"\\Key\\A\\Deep\\Deeper", L"v", Number(3));
    Put(L"\\Key\\B", L"v", Number(4));
    Put(L"\\Key2", L"v", Number(5));
    EXPECT_THAT(Keys(L"\\Key"), UnorderedElementsAre(L"A", L"B"));
    EXPECT_EQ(Delete(L"\\Key"), TWriteStatus::Done);
    EXPECT_EQ(Delete(L"\\Key"), TWriteStatus::KeyUnavailable);
    EXPECT_EQ(Registry().Check(Place(L"\\Key\\A\\Deep"), TRegistryView::Native), TReadStatus::KeyUnavailable);
    EXPECT_THAT(Keys(L"\\Key"), IsEmpty());
    EXPECT_THAT(Keys(), UnorderedElementsAre(L"Key2"));
    EXPECT_EQ(Get(Place(L"", L"v")), Number(1));
    EXPECT_EQ(Get(Place(L"\\Key2", L"v")), Number(5));

    for (const wchar_t* root : {L"", L"\\", L"\\\\"})
        EXPECT_EQ(Registry().DeleteKey(TRootKey::CurrentUser, root), TWriteStatus::Refused);
    EXPECT_EQ(Get(Place(L"", L"v")), Number(1)) << "a root is never deleted";
}

}  // namespace
