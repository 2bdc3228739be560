#include "platform/ext_ini_file.h"

#include <gmock/gmock.h>

#include "tests/fakes/fake_system.h"

namespace {

using testing::ElementsAre;

TExtIniFile Parsed(std::wstring_view text) {
    TExtIniFile ini;
    ini.SetStrings(TLineReader(text));
    return ini;
}

std::vector<std::wstring> LinesOf(const TExtIniFile& ini, std::wstring_view section) {
    const TNamedLines lines = ini.ReadSectionValues(section);
    std::vector<std::wstring> all;
    for (std::size_t i = 0; i < lines.Count(); ++i) all.emplace_back(lines.Line(i));
    return all;
}

TEST(TExtIniFile, ParsesLinesOfEveryForm) {
    const TExtIniFile ini = Parsed(
        L"dropped=1\r\n  [ Main ]  \r\n\t Key \t=  a = b;c  \r\n; comment=1\r\n   ;comment\r\n\r\n"
        L"  no value \r\n[open\r\n=nameless\r\nempty=\r\n[a=b]\r\n[]\r\nx=1");
    EXPECT_THAT(ini.ReadSections(), ElementsAre(L"Main", L"a=b", L""));
    EXPECT_THAT(LinesOf(ini, L"MAIN"),
                ElementsAre(L"Key=a = b;c", L"no value", L"[open", L"=nameless", L"empty="));
    EXPECT_THAT(ini.ReadSection(L"main"), ElementsAre(L"Key", L"", L"empty"));
    EXPECT_TRUE(LinesOf(ini, L"missing").empty() && ini.ReadSection(L"missing").empty());

    EXPECT_EQ(ini.ReadString(L"mAIN", L"kEY", L"d"), L"a = b;c");
    EXPECT_EQ(ini.ReadString(L"Main", L"empty", L"d"), L"");
    EXPECT_EQ(ini.ReadString(L"", L"x", L"d"), L"1");
    EXPECT_TRUE(ini.ValueExists(L"Main", L"empty"));
    for (const auto& [section, key] :
         {std::pair(L"Main", L"no value"), {L"Main", L"dropped"}, {L"missing", L"Key"}}) {
        EXPECT_EQ(ini.ReadString(section, key, L"d"), L"d");
        EXPECT_FALSE(ini.ValueExists(section, key));
    }
}

TEST(TExtIniFile, FindsAndChangesTheLastOfEqualNames) {
    TExtIniFile ini = Parsed(L"[S]\nk=1\nonly=first\n[T]\n[s]\nK=2\nk=3\nend=4");
    EXPECT_THAT(ini.ReadSections(), ElementsAre(L"S", L"T", L"s"));
    ini.WriteString(L"S", L"K", L"a longer value");
    ini.WriteString(L"S", L"new", L"5");
    EXPECT_THAT(LinesOf(ini, L"S"), ElementsAre(L"K=2", L"K=a longer value", L"end=4", L"new=5"));
    ini.DeleteKey(L"S", L"k");
    EXPECT_EQ(ini.ReadString(L"S", L"k", L""), L"2");
    EXPECT_EQ(ini.ReadString(L"S", L"only", L"d"), L"d");
    ini.EraseSection(L"S");
    for (const wchar_t* section : {L"missing", L"S"}) ini.DeleteKey(section, L"missing");
    ini.EraseSection(L"missing");
    EXPECT_THAT(ini.ReadSections(), ElementsAre(L"S", L"T"));
    EXPECT_THAT(LinesOf(ini, L"S"), ElementsAre(L"k=1", L"only=first"));
    ini.WriteString(L"later", L"k", L"v");
    EXPECT_EQ(ini.ReadString(L"LATER", L"k", L""), L"v");
    ini.Clear();
    EXPECT_TRUE(ini.ReadSections().empty() && !ini.ValueExists(L"S", L"k"));
}

TEST(TExtIniFile, LoadsAFileOrKeepsWhatItHas) {
    TFakeSystem fake;
    TExtIniFile ini = Parsed(L"[old]\n");
    EXPECT_FALSE(ini.LoadFromFile(fake.System, L"C:\\missing.lng"));
    fake.Files.Put(L"C:\\a.lng", std::vector<std::uint8_t>(TExtIniFile::kMaxFileSize + 1, '\n'));
    EXPECT_FALSE(ini.LoadFromFile(fake.System, L"C:\\a.lng"));
    EXPECT_THAT(ini.ReadSections(), ElementsAre(L"old"));
    fake.Files.PutText(L"C:\\a.lng", "[full]\n" + std::string(TExtIniFile::kMaxFileSize - 7, 'x'));
    EXPECT_TRUE(ini.LoadFromFile(fake.System, L"C:\\a.lng"));
    EXPECT_THAT(ini.ReadSections(), ElementsAre(L"full"));

    fake.Files.Put(L"C:\\a.lng",
                   {0xFF, 0xFE, '[', 0, 's', 0, ']', 0, '\n', 0, 'k', 0, 0, 0, '=', 0, 0xAC, 0x20, 7});
    ASSERT_TRUE(ini.LoadFromFile(fake.System, L"C:\\A.lng"));
    EXPECT_THAT(ini.ReadSections(), ElementsAre(L"s"));
    EXPECT_EQ(ini.ReadString(L"s", L"k", L""), L"\u20AC");  // the NUL after the key is white space
}

/// Loading and looking up take as long per line in a huge file as in a small one; anything quadratic would take
/// minutes here.
TEST(TExtIniFile, FindsEverythingInAHugeFile) {
    constexpr int kCount = 30'000;
    std::wstring text;
    for (int i = 0; i < kCount; ++i) text += L"[s" + std::to_wstring(i) + L"]\n";
    text += L"[keys]\n";
    for (int i = 0; i < kCount; ++i)
        text += L"key" + std::to_wstring(i) + L"=" + std::wstring(90, L'v') + L"\n";

    TExtIniFile ini = Parsed(text);
    for (int i = 0; i < kCount; ++i) {
        const std::wstring number = std::to_wstring(i);
        ASSERT_TRUE(ini.ValueExists(L"keys", L"KEY" + number));
        ASSERT_FALSE(ini.ValueExists(L"S" + number, L"key"));
        ini.WriteString(L"keys", L"new" + number, L"");
    }
    EXPECT_EQ(ini.ReadSection(L"keys").size(), 2U * kCount);
}

}  // namespace
