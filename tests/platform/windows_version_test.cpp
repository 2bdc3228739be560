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
        {{2, 4, 0}, L"Windows NT", 0},
        {{2, 5, 0}, L"Windows 2000", 4},
        {{2, 5, 1}, L"Windows XP", 5},
        {{2, 5, 2}, L"Windows 2003 Server", 0},
        {{2, 6, 0}, L"Windows Vista", 6},
        {{2, 6, 1}, L"Windows 7", 7},
        {{2, 6, 2, 9200}, L"Windows 8", 8},
        {{2, 6, 3, 9600}, L"Windows 8.1", 9},
        {{2, 10, 0, 19045}, L"Windows 10", 10},
        {{2, 10, 0, 21999}, L"Windows 10", 10},
        {{2, 10, 0, 22000}, L"Windows 11", 11},
        {{2, 10, 0, 26100}, L"Windows 11", 11},
        {{2, 6, 1, 7601, true}, L"Windows 7", 7},
        {{2, 6, 2, 9200, true}, L"Windows Server 2012", 8},
        {{2, 6, 3, 9600, true}, L"Windows Server 2012 R2", 9},
        {{2, 10, 0, 14393, true}, L"Windows Server 2016", 10},
        {{2, 10, 0, 17763, true}, L"Windows Server 2019", 10},
        {{2, 10, 0, 20348, true}, L"Windows Server 2022", 10},
        {{2, 10, 0, 26100, true}, L"Windows Server 2025", 11},
        {{2, 6, 4, 9800}, L"before", 0},  // unknown ones leave the name as it was
        {{2, 11, 0, 30000}, L"before", 0},
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
