#include <gmock/gmock.h>

#include "tests/contract/subject.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TFilesContract : public TContractTest {
  protected:
    TFiles& Files() { return System().Files; }
    std::wstring Path(const std::wstring& name) { return Folder() + L"\\" + name; }
    void Put(const std::wstring& name, std::string_view text) {
        ASSERT_TRUE(Files().Replace(Path(name), {text.begin(), text.end()}));
    }
};

TEST_F(TFilesContract, ReplaceCreatesAndOverwritesWhole) {
    TBytes large(1'000'000);
    for (std::size_t i = 0; i < large.size(); ++i) large[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
    for (const TBytes& bytes : {TBytes{0, 13, 10, 26, 255}, large, TBytes{}, TBytes{1}}) {
        ASSERT_TRUE(Files().Replace(Path(L"File \u03C0.dat"), bytes));
        EXPECT_EQ(Files().Read(Path(L"File \u03C0.dat")), bytes);
        EXPECT_TRUE(Files().Exists(Path(L"FILE \u03C0.DAT")));
    }
    // No trace of how it was done.
    EXPECT_THAT(Files().List(Folder(), L"*"), ElementsAre(L"File \u03C0.dat"));
}

TEST_F(TFilesContract, ANewFileTakesTheNameOfNothingElse) {
    EXPECT_FALSE(Files().CreateNew(Path(L"sub\\deeper\\a.reg"), {1}));
    for (const wchar_t* folder : {L"sub\\deeper", L"sub\\deeper", L"SUB", L"sub\\other"})
        EXPECT_TRUE(Files().CreateFolder(Path(folder))) << folder;
    for (const TBytes& bytes : {TBytes{1, 2}, TBytes{}, TBytes{3}}) {
        const bool isNew = Files().CreateNew(Path(L"sub\\deeper\\a.reg"), bytes);
        EXPECT_EQ(isNew, bytes.size() == 2);
        EXPECT_FALSE(Files().CreateNew(Path(L"sub\\deeper"), bytes));
        EXPECT_EQ(Files().Read(Path(L"sub\\deeper\\A.reg")), (TBytes{1, 2}));
    }
    EXPECT_FALSE(Files().CreateFolder(Path(L"sub\\deeper\\a.reg")));
    EXPECT_FALSE(Files().CreateFolder(Path(L"sub\\deeper\\a.reg\\below")));
    EXPECT_THAT(Files().List(Path(L"sub"), L"*"), IsEmpty());
    EXPECT_THAT(Files().List(Path(L"sub\\deeper"), L"*"), ElementsAre(L"a.reg"));

    EXPECT_TRUE(Files().Delete(Path(L"sub\\deeper\\A.REG")));
    for (const std::wstring& path : {Path(L"sub\\deeper\\a.reg"), Path(L"sub"), std::wstring()}) {
        EXPECT_FALSE(Files().Delete(path)) << path;
        EXPECT_EQ(Files().CreateFolder(path), !path.empty()) << path;
    }
}

TEST_F(TFilesContract, AppendContinuesWhatCanBeReadInParts) {
    EXPECT_EQ(Files().Size(Path(L"log")), std::nullopt);
    for (const char* part : {"", "one ", "two"})
        ASSERT_TRUE(Files().Append(Path(L"log"), {part, part + std::string_view(part).size()}));
    EXPECT_EQ(Files().Size(Path(L"log")), 7u);
    const auto text = [&](std::uint64_t offset, std::size_t count) {
        const auto bytes = Files().ReadPart(Path(L"log"), offset, count);
        return bytes ? std::string(bytes->begin(), bytes->end()) : "nothing";
    };
    EXPECT_EQ(text(0, 100), "one two");
    EXPECT_EQ(text(3, 2), " t");
    EXPECT_EQ(text(6, 2), "o");
    EXPECT_EQ(text(7, 2), "");
    EXPECT_EQ(text(8, 2), "");
}

TEST_F(TFilesContract, WhatCannotBeDoneLeavesNothingBehind) {
    MakeFolder(Path(L"sub"));
    Put(L"sub\\inner.txt", "x");
    EXPECT_FALSE(Files().Replace(Path(L"none\\file"), {1}));
    EXPECT_FALSE(Files().Replace(Path(L"sub"), {1}));
    EXPECT_FALSE(Files().Append(Path(L"none\\file"), {1}));
    EXPECT_FALSE(Files().Append(Path(L"sub"), {1}));
    Put(L"sub\\fixed.txt", "x");
    MakeReadOnly(Path(L"sub\\fixed.txt"));
    EXPECT_FALSE(Files().Replace(Path(L"sub\\fixed.txt"), {1}));
    EXPECT_FALSE(Files().Delete(Path(L"sub\\fixed.txt")));
    EXPECT_EQ(Files().Read(Path(L"sub\\fixed.txt")), TBytes{'x'});
    for (const std::wstring& path : {Path(L"missing"), Path(L"none\\file"), Path(L"sub"), std::wstring()}) {
        EXPECT_FALSE(Files().Exists(path)) << path;
        EXPECT_EQ(Files().Read(path), std::nullopt) << path;
        EXPECT_EQ(Files().ReadPart(path, 0, 1), std::nullopt) << path;
        EXPECT_EQ(Files().Size(path), std::nullopt) << path;
    }
    EXPECT_THAT(Files().List(Folder(), L"*"), IsEmpty());
    EXPECT_THAT(Files().List(Path(L"sub"), L"*"), UnorderedElementsAre(L"inner.txt", L"fixed.txt"));
}

TEST_F(TFilesContract, ListTakesThePatternAtItsWord) {
    for (const wchar_t* name :
         {L"English.lng", L"Deutsch.LNG", L"x.lngx", L"y.lng.bak", L"lng", L"two.parts.lng"})
        Put(name, "");
    EXPECT_THAT(Files().List(Folder(), L"*.lng"),
                UnorderedElementsAre(L"English.lng", L"Deutsch.LNG", L"two.parts.lng"));
    EXPECT_THAT(Files().List(Folder(), L"?.lng*"), UnorderedElementsAre(L"x.lngx", L"y.lng.bak"));
    EXPECT_THAT(Files().List(Folder(), L"LNG"), UnorderedElementsAre(L"lng"));
    EXPECT_THAT(Files().List(Folder(), L"*.txt"), IsEmpty());
    EXPECT_THAT(Files().List(Path(L"none"), L"*"), IsEmpty());
}

TEST_F(TFilesContract, ProfileStrings) {
    Put(L"profiles.ini",
        "Before=any section\r\n[General]\r\nStartWithLastProfile=1\r\n\r\n[Profile0]\r\nName=default\n"
        " Path = Profiles/ab c.default \r\nQuoted=\" x "
        "\"\r\nEmpty=\r\nName=second\r\n[Profile1]\r\nName=a=b");
    const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {
        {L"General", L"StartWithLastProfile", L"1"},
        {L"PROFILE0", L"name", L"default"},  // the first of its name counts
        {L"Profile0", L"Path", L"Profiles/ab c.default"},
        {L"Profile0", L"Quoted", L" x "},
        {L"Profile0", L"Empty", L""},
        {L"Profile1", L"Name", L"a=b"},
        {L"Profile1", L"Path", L"fallback"},
        {L"Profile2", L"Name", L"fallback"},
        {L"General", L"Before", L"fallback"},
    };
    for (const auto& [section, key, value] : cases)
        EXPECT_EQ(Files().ProfileString(Path(L"profiles.ini"), section, key, L"fallback"), value)
            << section << key;
    EXPECT_EQ(Files().ProfileString(Path(L"none.ini"), L"General", L"x", L""), L"");
}

TEST_F(TFilesContract, DrivesHaveLettersInTheirOrder) {
    const auto drives = Files().Drives();
    EXPECT_EQ(std::ranges::count(drives, L'C', &TDrive::Letter), 1);
    EXPECT_TRUE(std::ranges::is_sorted(drives, std::less_equal(), &TDrive::Letter));
    for (const TDrive& drive : drives) EXPECT_TRUE(drive.Kind == TDriveKind::Fixed || drive.Label.empty());
}

}  // namespace
