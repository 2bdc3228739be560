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
    ASSERT_TRUE(fixed);
    ASSERT_EQ(fixed->size(), 52U);
    EXPECT_THAT(std::vector(fixed->begin(), fixed->begin() + 4),
                testing::ElementsAre(0xBD, 0x04, 0xEF, 0xFE));
    const auto translation = resource->Block(L"\\VarFileInfo\\Translation");
    ASSERT_TRUE(translation);
    ASSERT_GE(translation->size(), 4U);
    wchar_t language[9];
    std::swprintf(language, 9, L"%02X%02X%02X%02X", (*translation)[1], (*translation)[0], (*translation)[3],
                  (*translation)[2]);
    const std::wstring prefix = std::wstring(L"\\StringFileInfo\\") + language + L"\\";
    const auto text = resource->Text(prefix + L"FileVersion");
    ASSERT_TRUE(text) << prefix;
    EXPECT_THAT(*text, testing::Not(testing::IsEmpty()));
    EXPECT_EQ(text->find(L'\0'), std::wstring::npos);
    EXPECT_EQ(resource->Text(prefix + L"No such name"), std::nullopt);
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

TEST_F(TWindowsContract, TimePassesInSleep) {
    constexpr int kDay = 24 * 60 * 60 * 1000;
    const auto now = [&] {
        const TTimeOfDay time = System().Clock.TimeOfDay();
        EXPECT_TRUE(time.Hour < 24 && time.Minute < 60 && time.Second < 60 && time.Millisecond < 1000);
        return ((time.Hour * 60 + time.Minute) * 60 + time.Second) * 1000 + time.Millisecond;
    };
    const int before = now();
    System().Clock.Sleep(200);
    const int passed = (now() - before + kDay) % kDay;
    EXPECT_GE(passed, 180);  // the clock of Windows advances in steps of up to 16 milliseconds
    EXPECT_LT(passed, 60'000);
}

TEST_F(TWindowsContract, WritesDateAndTime) {
    const std::wstring text = System().Clock.DateTimeText();
    const std::size_t blank = text.find(L' ');
    ASSERT_NE(blank, std::wstring::npos) << text;
    EXPECT_THAT(text.substr(0, blank), testing::Not(testing::IsEmpty()));
    EXPECT_NE(text.find(L':', blank), std::wstring::npos) << text;
}

}  // namespace
