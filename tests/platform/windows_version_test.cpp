#include "platform/windows_version.h"

#include <gtest/gtest.h>

#include "tests/fakes/fake_system.h"

namespace {

TEST(TWindowsVersion, HasNameAndLevel) {
    const struct {
        TVersionNumbers Version;
        const wchar_t* Name;
        int Level;
    } cases[] = {
        {{2, 4, 0}, L"Windows NT", 0},    {{2, 5, 0}, L"Windows 2000", 4},
        {{2, 5, 1}, L"Windows XP", 5},    {{2, 5, 2}, L"Windows 2003 Server", 0},
        {{2, 6, 0}, L"Windows Vista", 6}, {{2, 6, 1}, L"Windows 7", 7},
        {{2, 6, 2}, L"before", 0},  // unknown ones leave the name as it was
        {{1, 4, 10}, L"before", 0},
    };
    TFakeSystem fake;
    for (const auto& each : cases) {
        fake.Windows.SetVersion(each.Version);
        std::wstring name = L"before";
        GetOSName(fake.System, name);
        EXPECT_EQ(name, each.Name);
        EXPECT_EQ(WindowsLevel(name), each.Level);
    }
}

}  // namespace
