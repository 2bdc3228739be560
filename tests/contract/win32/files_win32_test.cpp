// Files with attributes, sizes and locks.
#include <windows.h>

#include <gmock/gmock.h>

#include "base/win32/handle.h"
#include "tests/contract/subject.h"

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class TFilesWin32 : public TContractTest {
  protected:
    TFiles& Files() { return System().Files; }
    std::wstring Path(const std::wstring& name) { return Folder() + L"\\" + name; }
};

TEST_F(TFilesWin32, HiddenAndSystemFilesAreListed) {
    for (const auto& [name, attribute] :
         {std::pair(L"hidden.lng", FILE_ATTRIBUTE_HIDDEN), {L"system.lng", FILE_ATTRIBUTE_SYSTEM}}) {
        ASSERT_TRUE(Files().Replace(Path(name), {}));
        ASSERT_TRUE(SetFileAttributesW(Path(name).c_str(), static_cast<DWORD>(attribute)));
    }
    EXPECT_THAT(Files().List(Folder(), L"*.lng"), UnorderedElementsAre(L"hidden.lng", L"system.lng"));
}

TEST_F(TFilesWin32, LockedAndHugeFilesAreNotRead) {
    ASSERT_TRUE(Files().Replace(Path(L"a"), {1}));
    TFileHandle file(
        CreateFileW(Path(L"a").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(file.IsValid());
    EXPECT_EQ(Files().Read(Path(L"a")), std::nullopt);
    EXPECT_FALSE(Files().Replace(Path(L"a"), {2}));
    EXPECT_FALSE(Files().Append(Path(L"a"), {2}));
    EXPECT_EQ(Files().ReadPart(Path(L"a"), 0, 1), std::nullopt);

    constexpr LONG kLimit = 64 * 1024 * 1024;
    for (const LONG size : {kLimit, kLimit + 1}) {
        SetFilePointer(file.Get(), size, nullptr, FILE_BEGIN);
        ASSERT_TRUE(SetEndOfFile(file.Get()));
        file.Close();
        EXPECT_EQ(Files().Read(Path(L"a")).has_value(), size <= kLimit) << size;
        file = TFileHandle(
            CreateFileW(Path(L"a").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    }
    file.Close();
    ASSERT_TRUE(Files().Append(Path(L"a"), {2}));
    EXPECT_EQ(Files().ReadPart(Path(L"a"), kLimit, 9), (std::vector<std::uint8_t>{0, 2}));
    ASSERT_TRUE(SetFileAttributesW(Path(L"a").c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(Files().Append(Path(L"a"), {3}));
    EXPECT_EQ(Files().Size(Path(L"a")), kLimit + 2u);
    SetFileAttributesW(Path(L"a").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_THAT(Files().List(Folder(), L"*"), ElementsAre(L"a"));
}

TEST_F(TFilesWin32, LongProfileStringsAreReadWhole) {
    for (const std::size_t length : {254U, 255U, 256U, 5000U}) {
        const std::string text = "[s]\r\nk=" + std::string(length, 'x');
        const std::wstring name = std::to_wstring(length);
        ASSERT_TRUE(Files().Replace(Path(name), {text.begin(), text.end()}));
        EXPECT_EQ(Files().ProfileString(Path(name), L"s", L"k", L""), std::wstring(length, L'x'));
    }
}

}  // namespace
