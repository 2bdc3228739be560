// The contracts of the small interfaces: what kind of Windows this is, the shell, the clock.
#include <cstdio>

#include <gmock/gmock.h>

#include "tests/contract/subject.h"

namespace {

using TWindowsContract = TContractTest;

TEST_F(TWindowsContract, KnowsItsVersionAndItsProgram) {
    const TVersionNumbers version = System().Windows.Version();
    EXPECT_EQ(version.PlatformId, 2U);
    EXPECT_GE(version.Major, 5U);
    EXPECT_GE(version.Build, 2195U);
    const std::wstring program = System().Windows.ProgramFile();
    EXPECT_TRUE(System().Files.Exists(program)) << program;
    EXPECT_TRUE(program.ends_with(L".exe")) << program;
    EXPECT_EQ(program.substr(1, 2), L":\\");
}

TEST_F(TWindowsContract, ReadsAVersionResource) {
    EXPECT_EQ(System().Windows.OpenVersionResource(Folder() + L"\\none.exe"), nullptr);
    ASSERT_TRUE(System().Files.Replace(Folder() + L"\\plain.exe", {'M', 'Z'}));
    EXPECT_EQ(System().Windows.OpenVersionResource(Folder() + L"\\plain.exe"), nullptr);

    const auto resource = System().Windows.OpenVersionResource(VersionedFile());
    ASSERT_NE(resource, nullptr);
    const auto fixed = resource->Block(L"\\");
    ASSERT_TRUE(fixed && fixed->size() == 52);
    EXPECT_EQ(TBytes(fixed->begin(), fixed->begin() + 4), (TBytes{0xBD, 0x04, 0xEF, 0xFE}));
    const auto translation = resource->Block(L"\\VarFileInfo\\Translation");
    ASSERT_TRUE(translation && translation->size() >= 4);
    const TBytes& ids = *translation;
    wchar_t prefix[30];
    std::swprintf(prefix, 30, L"\\StringFileInfo\\%02X%02X%02X%02X\\", ids[1], ids[0], ids[3], ids[2]);
    const auto text = resource->Text(std::wstring(prefix) + L"FileVersion");
    ASSERT_TRUE(text) << prefix;
    EXPECT_THAT(*text, testing::Not(testing::IsEmpty()));
    EXPECT_EQ(text->find(L'\0'), std::wstring::npos);
    EXPECT_EQ(resource->Text(std::wstring(prefix) + L"No such name"), std::nullopt);
    EXPECT_EQ(resource->Block(L"\\NoSuchBlock"), std::nullopt);
}

TEST_F(TWindowsContract, ConvertsAnsiText) {
    const TWindowsInfo& info = System().Windows;
    const std::vector<std::uint8_t> bytes = {'A', ' ', 'z', 0, '~', '\n'};
    const std::wstring text(L"A z\0~\n", 6);
    EXPECT_EQ(info.FromAnsi(bytes), text);
    EXPECT_EQ(info.ToAnsi(text), bytes);
    EXPECT_EQ(info.FromAnsi({}), L"");
    EXPECT_EQ(info.ToAnsi({}), std::vector<std::uint8_t>());
    const std::wstring own = info.FromAnsi(std::vector<std::uint8_t>{0xE9, 'x'});
    EXPECT_EQ(info.FromAnsi(info.ToAnsi(own)), own);
    // A sign of no code page but UTF-8.
    EXPECT_THAT(info.FromAnsi(info.ToAnsi(L"\u4DC0")), testing::AnyOf(L"?", L"\u4DC0"));
}

TEST_F(TWindowsContract, NamesTheApplicationDataFolders) {
    for (const TSpecialFolder folder : {TSpecialFolder::AppData, TSpecialFolder::CommonAppData}) {
        const std::wstring path = System().Shell.FolderPath(folder);
        ASSERT_GT(path.size(), 3U);
        EXPECT_EQ(path.substr(1, 2), L":\\") << path;
        EXPECT_NE(path.back(), L'\\') << path;
    }
    EXPECT_EQ(System().Shell.FolderPath(TSpecialFolder{0x7E}), L"");
}

TEST_F(TWindowsContract, TimePassesInSleepAndIsWrittenWithTheDate) {
    constexpr int kDay = 24 * 60 * 60 * 1000;
    const auto now = [&] {
        const TLocalTime time = System().Clock.LocalTime();
        EXPECT_TRUE(time.Year > 2009 && time.Month > 0 && time.Month < 13 && time.Day > 0 && time.Day < 32);
        EXPECT_TRUE(time.Hour < 24 && time.Minute < 60 && time.Second < 60 && time.Millisecond < 1000);
        return ((time.Hour * 60 + time.Minute) * 60 + time.Second) * 1000 + time.Millisecond;
    };
    const int before = now();
    System().Clock.Sleep(200);
    const int passed = (now() - before + kDay) % kDay;
    EXPECT_GE(passed, 180);  // the clock of Windows advances in steps of up to 16 milliseconds
    EXPECT_LT(passed, 60'000);

    const std::wstring text = System().Clock.DateTimeText();
    EXPECT_THAT(text.find(L' '), testing::AllOf(testing::Gt(0U), testing::Lt(text.find(L':')))) << text;
    EXPECT_NE(text.find(L':'), std::wstring::npos) << text;
}

}  // namespace
