#include <gmock/gmock.h>

#include "tests/contract/subject.h"

namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

TRegistryData Text(const wchar_t* text) { return {TRegDataType::String, std::wstring(text)}; }
TRegistryData Number(std::int32_t number) { return {TRegDataType::Dword, number}; }

class TRegistryContract : public TContractTest {
  protected:
    TRegistry& Registry() { return System().Registry; }

    /// A place below the test's key of the user.
    static TRegistryPlace Place(const std::wstring& key, const std::wstring& valueName) {
        return {kUserKey.Root, kUserKey.Path + key, valueName};
    }
    void Put(const std::wstring& key, const std::wstring& valueName, const TRegistryData& data) {
        ASSERT_EQ(Registry().Write(Place(key, valueName), data), TWriteStatus::Done);
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
        Number(-1),
        Number(INT32_MIN),
        Number(INT32_MAX),
        {TRegDataType::Binary, TBytes{}},
        {TRegDataType::Binary, TBytes{0, 1, 0, 255}},
    };
    for (const TContractKey& key : kContractKeys) {
        for (const wchar_t* name : {L"", L"Value name"}) {
            const TRegistryPlace place{key.Root, key.Path, name};
            // One over the other: the new type counts, nothing of a longer old value stays.
            for (const TRegistryData& data : values) {
                ASSERT_EQ(Registry().Write(place, data), TWriteStatus::Done);
                TRegistryData stored;
                ASSERT_EQ(Registry().Read(place, stored), TReadStatus::Found);
                EXPECT_EQ(stored, data) << key.Path << " type " << static_cast<int>(data.Type);
            }
        }
    }
}

TEST_F(TRegistryContract, TextEndsAtItsFirstNul) {
    Put(L"", L"v", {TRegDataType::String, std::wstring(L"front\0back", 10)});
    EXPECT_EQ(Get(Place(L"", L"v")), Text(L"front"));
}

TEST_F(TRegistryContract, WhatIsMissingIsToldApartAndLeavesTheOutput) {
    Put(L"\\Key", L"There", Number(1));
    const struct {
        TRegistryPlace Place;
        TReadStatus Read;
        TReadStatus Check;
    } cases[] = {
        {Place(L"\\None", L"There"), TReadStatus::KeyUnavailable, TReadStatus::KeyUnavailable},
        {Place(L"\\None", L""), TReadStatus::KeyUnavailable, TReadStatus::KeyUnavailable},
        {Place(L"\\Key", L"None"), TReadStatus::ValueMissing, TReadStatus::ValueMissing},
        {Place(L"\\Key", L""), TReadStatus::ValueMissing, TReadStatus::Found},
        {Place(L"\\Key", L"There"), TReadStatus::Found, TReadStatus::Found},
    };
    for (const auto& each : cases) {
        TRegistryData data = Text(L"before");
        EXPECT_EQ(Registry().Read(each.Place, data), each.Read) << each.Place.Key << each.Place.ValueName;
        EXPECT_EQ(data, each.Read == TReadStatus::Found ? Number(1) : Text(L"before"));
        EXPECT_EQ(Registry().Check(each.Place, TRegistryView::Native), each.Check);
        EXPECT_EQ(Registry().Check(each.Place, TRegistryView::Process), each.Check);
    }
    // Reading creates nothing.
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, kUserKey.Path), UnorderedElementsAre(L"Key"));
}

TEST_F(TRegistryContract, UnknownTypeCreatesTheKeyAlone) {
    Put(L"\\Empty", L"v", {});
    EXPECT_EQ(Registry().Check(Place(L"\\Empty", L""), TRegistryView::Native), TReadStatus::Found);
    EXPECT_EQ(Registry().Check(Place(L"\\Empty", L"v"), TRegistryView::Native), TReadStatus::ValueMissing);
}

TEST_F(TRegistryContract, DataThatDoesNotFitItsTypeIsRefused) {
    const TRegistryData wrong[] = {
        {TRegDataType::String, 1},
        {TRegDataType::String, {}},
        {TRegDataType::ExpandString, TBytes{1}},
        {TRegDataType::Dword, L"1"},
        {TRegDataType::Dword, TBytes{1, 0, 0, 0}},
        {TRegDataType::Dword, {}},
        {TRegDataType::Binary, L"bytes"},
        {TRegDataType::Binary, 1},
    };
    Put(L"", L"v", Number(7));
    for (const TRegistryData& data : wrong)
        EXPECT_EQ(Registry().Write(Place(L"", L"v"), data), TWriteStatus::Refused);
    EXPECT_EQ(Get(Place(L"", L"v")), Number(7));
}

TEST_F(TRegistryContract, CaseDoesNotMatterAndSpellingStays) {
    Put(L"\\Spelt", L"Value", Number(1));
    Put(L"\\SPELT", L"VALUE", Number(2));
    EXPECT_EQ(Get(Place(L"\\spelt", L"value")), Number(2));
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, kUserKey.Path), UnorderedElementsAre(L"Spelt"));
    EXPECT_EQ(Registry().DeleteValue(Place(L"\\spelt", L"vALUE")), TWriteStatus::Done);
    EXPECT_EQ(Registry().Check(Place(L"\\Spelt", L"Value"), TRegistryView::Native),
              TReadStatus::ValueMissing);
    EXPECT_EQ(Registry().DeleteKey(kUserKey.Root, kUserKey.Path + std::wstring(L"\\sPELT")),
              TWriteStatus::Done);
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, kUserKey.Path), IsEmpty());
}

TEST_F(TRegistryContract, SurplusBackslashesDoNotMatter) {
    const std::wstring bare = std::wstring(kUserKey.Path).substr(1);
    Put(L"\\Key", L"v", Number(1));
    for (const std::wstring& key :
         {bare + L"\\Key", L"\\" + bare + L"\\Key\\", L"\\\\" + bare + L"\\\\Key\\\\"}) {
        EXPECT_EQ(Get({kUserKey.Root, key, L"v"}), Number(1)) << key;
        EXPECT_EQ(Registry().Write({kUserKey.Root, key, L"v"}, Number(1)), TWriteStatus::Done) << key;
        EXPECT_EQ(Registry().Check({kUserKey.Root, key, L""}, TRegistryView::Process), TReadStatus::Found)
            << key;
    }
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, L"\\" + bare + L"\\"), UnorderedElementsAre(L"Key"));
    EXPECT_EQ(Registry().DeleteKey(kUserKey.Root, L"\\" + bare + L"\\Key\\"), TWriteStatus::Done);
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, bare), IsEmpty());
}

TEST_F(TRegistryContract, DeletingAValueLeavesTheOthers) {
    Put(L"", L"", Text(L"default"));
    Put(L"", L"a", Number(1));
    Put(L"", L"b", Number(2));
    for (const wchar_t* name : {L"", L"a", L"a", L"never there"})
        EXPECT_EQ(Registry().DeleteValue(Place(L"", name)), TWriteStatus::Done) << name;
    TRegistryData data;
    EXPECT_EQ(Registry().Read(Place(L"", L""), data), TReadStatus::ValueMissing);
    EXPECT_EQ(Registry().Read(Place(L"", L"a"), data), TReadStatus::ValueMissing);
    EXPECT_EQ(Get(Place(L"", L"b")), Number(2));
    EXPECT_EQ(Registry().DeleteValue(Place(L"\\None", L"b")), TWriteStatus::KeyUnavailable);
}

TEST_F(TRegistryContract, DeletingAKeyTakesWhatIsBelowAndNothingElse) {
    const std::wstring path = kUserKey.Path;
    Put(L"", L"v", Number(1));
    Put(L"\\Key", L"v", Number(2));
    Put(L"\\Key\\A", L"", Text(L"a"));
    Put(L"\\Key\\A\\Deep\\Deeper", L"v", Number(3));
    Put(L"\\Key\\B", L"v", Number(4));
    Put(L"\\Key2", L"v", Number(5));
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, path + L"\\Key"), UnorderedElementsAre(L"A", L"B"));

    EXPECT_EQ(Registry().DeleteKey(kUserKey.Root, path + L"\\Key"), TWriteStatus::Done);
    EXPECT_EQ(Registry().DeleteKey(kUserKey.Root, path + L"\\Key"), TWriteStatus::KeyUnavailable);
    EXPECT_EQ(Registry().Check(Place(L"\\Key\\A\\Deep", L""), TRegistryView::Native),
              TReadStatus::KeyUnavailable);
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, path), UnorderedElementsAre(L"Key2"));
    EXPECT_EQ(Get(Place(L"", L"v")), Number(1));
    EXPECT_EQ(Get(Place(L"\\Key2", L"v")), Number(5));
    EXPECT_THAT(Registry().SubKeys(kUserKey.Root, path + L"\\Key"), IsEmpty());
}

TEST_F(TRegistryContract, ARootIsNeverDeleted) {
    Put(L"", L"v", Number(1));
    for (const wchar_t* key : {L"", L"\\", L"\\\\"})
        EXPECT_EQ(Registry().DeleteKey(TRootKey::CurrentUser, key), TWriteStatus::Refused);
    EXPECT_EQ(Get(Place(L"", L"v")), Number(1));
    EXPECT_EQ(Registry().Check({TRootKey::CurrentUser, L"\\", L""}, TRegistryView::Native),
              TReadStatus::Found);
}

}  // namespace
