#include "platform/windows_version.h"

namespace {

constexpr std::uint32_t kPlatformNt = 2;  // VER_PLATFORM_WIN32_NT

struct TKnownWindows {
    std::uint32_t Major;
    std::uint32_t Minor;
    const wchar_t* Name;
    int Level;
};

constexpr TKnownWindows kKnownWindows[] = {
    {5, 0, L"Windows 2000", 4},  {5, 1, L"Windows XP", 5}, {5, 2, L"Windows 2003 Server", 0},
    {6, 0, L"Windows Vista", 6}, {6, 1, L"Windows 7", 7},
};

}  // namespace

void GetOSName(const TSystem& system, std::wstring& name) {
    const TVersionNumbers version = system.Windows.Version();
    if (version.PlatformId != kPlatformNt) return;
    if (version.Major == 3 || version.Major == 4) name = L"Windows NT";
    for (const TKnownWindows& known : kKnownWindows) {
        if (version.Major == known.Major && version.Minor == known.Minor) name = known.Name;
    }
}

int WindowsLevel(std::wstring_view osName) {
    for (const TKnownWindows& known : kKnownWindows) {
        if (osName == known.Name) return known.Level;
    }
    return 0;
}
