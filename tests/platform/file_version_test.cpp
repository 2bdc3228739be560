#include "platform/file_version.h"

#include <gtest/gtest.h>

#include "tests/fakes/fake_system.h"

namespace {

const std::wstring kFile = L"C:\\a.exe";
const std::wstring kTexts = L"\\StringFileInfo\\040904E4\\";
const std::wstring kTranslation = L"\\VarFileInfo\\Translation";

constexpr const wchar_t* kNames[] = {L"Comments",        L"CompanyName",      L"FileDescription",
                                     L"FileVersion",     L"InternalName",     L"LegalCopyright",
                                     L"LegalTrademarks", L"OriginalFileName", L"ProductName",
                                     L"ProductVersion",  L"WOW Version"};

/// A resource in two languages in which every text is its name.
TFakeVersionResource Resource() {
    TFakeVersionResource resource;
    resource.Blocks[kTranslation] = {0x09, 0x04, 0xE4, 0x04, 0x07, 0x04, 0xB0, 0x04};
    for (const wchar_t* name : kNames) resource.Texts[kTexts + name] = name;
    for (std::uint8_t i = 0; i < 52; ++i) resource.Blocks[L"\\"].push_back(i);
    return resource;
}

TEST(TFileVersion, FieldsByIndex) {
    TFakeSystem fake;
    fake.Windows.PutVersionResource(kFile, Resource());
    for (int i = 0; i < 11; ++i) EXPECT_EQ(GetFileVersionField(fake.System, kFile, i), kNames[i]);
    for (const int i : {-1, 11}) {
        EXPECT_EQ(GetFileVersionField(fake.System, kFile, i), L"");
        EXPECT_EQ(GetFileVersionField(fake.System, L"C:\\none.exe", i), L"Unknown");
    }
}

TEST(TFileVersion, RecordHoldsFixedInformationAndExtraText) {
    TFakeSystem fake;
    TFakeVersionResource resource = Resource();
    fake.Windows.PutVersionResource(kFile, resource);
    TFileVersionRecord record;
    ASSERT_TRUE(GetFileVersionInfoRecord(fake.System, kFile, record, L"WOW Version"));
    EXPECT_EQ(record.Extra, L"WOW Version");
    EXPECT_EQ(record.CompanyName, L"CompanyName");
    EXPECT_EQ(record.FixedFileInfo.front(), 0x03020100U);
    EXPECT_EQ(record.FixedFileInfo.back(), 0x33323130U);
    EXPECT_FALSE(GetFileVersionInfoRecord(fake.System, L"C:\\none.exe", record, L""));
    EXPECT_EQ(record.Extra, L"WOW Version") << "as it was";
    ASSERT_TRUE(GetFileVersionInfoRecord(fake.System, kFile, record, L""));
    EXPECT_EQ(record.Extra, L"");

    // A damaged resource.
    resource.Blocks[kTranslation] = {9, 4, 0xE4};
    resource.Blocks[L"\\"].pop_back();
    fake.Windows.PutVersionResource(kFile, resource);
    ASSERT_TRUE(GetFileVersionInfoRecord(fake.System, kFile, record, L"WOW Version"));
    EXPECT_EQ(record.CompanyName + record.Extra, L"");
    EXPECT_EQ(record.FixedFileInfo, decltype(record.FixedFileInfo){});
}

}  // namespace
