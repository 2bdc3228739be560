#include "platform/windows_version.h"

namespace {

constexpr std::uint32_t kPlatformNt = 2;  // VER_PLATFORM_WIN32_NT

enum class TEdition : std::uint8_t { Any, Client, Server };

struct TKnownWindows {
    std::uint32_t Major;
    std::uint32_t Minor;
    std::uint32_t Build;  ///< the first one
    TEdition Edition;
    const wchar_t* Name;
    int Level;
};

/// Of those that a version fits the last one is meant. Before Windows 8 a server is called by the Windows of its number.
constexpr TKnownWindows kKnownWindows[] = {
    {5, 0, 0, TEdition::Any, L"Windows 2000", 4},
    {5, 1, 0, TEdition::Any, L"Windows XP", 5},
    {5, 2, 0, TEdition::Any, L"Windows 2003 Server", 0},
    {6, 0, 0, TEdition::Any, L"Windows Vista", 6},
    {6, 1, 0, TEdition::Any, L"Windows 7", 7},
    {6, 2, 0, TEdition::Client, L"Windows 8", 8},
    {6, 2, 0, TEdition::Server, L"Windows Server 2012", 8},
    {6, 3, 0, TEdition::Client, L"Windows 8.1", 9},
    {6, 3, 0, TEdition::Server, L"Windows Server 2012 R2", 9},
    {10, 0, 0, TEdition::Client, L"Windows 10", 10},
    {10, 0, 22000, TEdition::Client, L"Windows 11", 11},
    {10, 0, 0, TEdition::Server, L"Windows Server 2016", 10},
    {10, 0, 17763, TEdition::Server, L"Windows Server 2019", 10},
    {10, 0, 20348, TEdition::Server, L"Windows Server 2022", 10},
    {10, 0, 26100, TEdition::Server, L"Windows Server 2025", 11},
};

bool Fits(const TVersionNumbers& version, const TKnownWindows& known) {
    return version.Major == known.Major && version.Minor == known.Minor && version.Build >= known.Build &&
           (known.Edition == TEdition::Any || version.IsServer == (known.Edition == TEdition::Server));
}

}  // namespace

void GetOSName(const TSystem& system, std::wstring& name) {
    const TVersionNumbers version = system.Windows.Version();
    if (version.PlatformId != kPlatformNt) return;
    if (version.Major == 3 || version.Major == 4) name = L"Windows NT";
    for (const TKnownWindows& known : kKnownWindows)
        if (Fits(version, known)) name = known.Name;
}

int WindowsLevel(std::wstring_view osName) {
    for (const TKnownWindows& known : kKnownWindows) {
        if (osName == known.Name) return known.Level;
    }
    return 0;
}
