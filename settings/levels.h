// The Windows that settings tell apart, and sets of them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

struct TSystem;

/// A level is 11 Windows 11, 10 Windows 10, 9 Windows 8.1, 8, 7, 6 Vista, 5 XP, 4 Windows 2000, 0 any other (Server 2003 is
/// one); servers have the level of the Windows that they were made of.
struct TReleaseStart {
    int Level;
    std::uint32_t Build;  ///< the first one
};

/// In the order in which they came. Those that some setting came or went with; one between two of them counts as the earlier.
inline constexpr TReleaseStart kReleases[] = {
    {0, 0},      {4, 2195},   {5, 2600},   {6, 6000},   {7, 7600},   {8, 9200},   {9, 9600},
    {10, 10240}, {10, 14393}, {10, 15063}, {10, 16299}, {10, 17134}, {10, 17763}, {10, 18362},
    {10, 19041}, {10, 19044}, {11, 22000}, {11, 22621}, {11, 22631}, {11, 26100},
};
inline constexpr std::size_t kReleaseCount = std::size(kReleases);

/// One of kReleases.
class TRelease {
  public:
    /// A level stands for its newest build. A level that there is none of is 0.
    // NOLINTNEXTLINE(google-explicit-constructor): most of what asks knows levels alone
    constexpr TRelease(int level = 0, std::uint32_t build = std::numeric_limits<std::uint32_t>::max()) {
        for (std::size_t i = kReleaseCount; i-- > 1;) {
            if (kReleases[i].Level != level) continue;
            FIndex = i;
            if (kReleases[i].Build <= build) return;
        }
    }
    [[nodiscard]] static constexpr TRelease At(std::size_t index) {
        return {kReleases[index].Level, kReleases[index].Build};
    }

    [[nodiscard]] constexpr int Level() const { return kReleases[FIndex].Level; }
    [[nodiscard]] constexpr std::size_t Index() const { return FIndex; }

  private:
    std::size_t FIndex = 0;
};

/// The running one.
[[nodiscard]] TRelease RunningRelease(const TSystem& system);

/// A set of releases.
class TLevels {
  public:
    constexpr TLevels() = default;

    /// Those for which `is` says so.
    template <typename TIs>
    [[nodiscard]] static constexpr TLevels Where(TIs is) {
        TLevels levels;
        for (std::size_t i = 0; i < kReleaseCount; ++i)
            if (is(kReleases[i])) levels.FBits |= std::uint32_t{1} << i;
        return levels;
    }

    [[nodiscard]] constexpr bool Include(TRelease release) const {
        return (FBits >> release.Index() & 1) != 0;
    }
    [[nodiscard]] constexpr bool IsEmpty() const { return FBits == 0; }

    [[nodiscard]] friend constexpr TLevels operator&(TLevels a, TLevels b) {
        return TLevels(a.FBits & b.FBits);
    }
    [[nodiscard]] friend constexpr TLevels operator|(TLevels a, TLevels b) {
        return TLevels(a.FBits | b.FBits);
    }
    [[nodiscard]] friend constexpr TLevels operator~(TLevels a) { return TLevels(~a.FBits & kAll); }
    friend constexpr bool operator==(TLevels a, TLevels b) = default;

  private:
    static constexpr std::uint32_t kAll = (std::uint32_t{1} << kReleaseCount) - 1;

    explicit constexpr TLevels(std::uint32_t bits) : FBits(bits) {}

    std::uint32_t FBits = 0;
};
static_assert(kReleaseCount < 32);

[[nodiscard]] constexpr TLevels Since(int level) {
    return TLevels::Where([=](const TReleaseStart& release) { return release.Level >= level; });
}
/// With all that has no level of its own.
[[nodiscard]] constexpr TLevels Until(int level) {
    return TLevels::Where([=](const TReleaseStart& release) { return release.Level <= level; });
}
/// From the build on that some release begins with.
[[nodiscard]] consteval TLevels SinceBuild(std::uint32_t build) {
    if (std::ranges::count(kReleases, build, &TReleaseStart::Build) == 0) throw "no release begins with it";
    return TLevels::Where([=](const TReleaseStart& release) { return release.Build >= build; });
}
/// All up to the build before that which some release begins with.
[[nodiscard]] consteval TLevels UntilBuild(std::uint32_t build) { return ~SinceBuild(build + 1); }

inline constexpr TLevels kNoLevel{};
inline constexpr TLevels kEveryLevel = ~kNoLevel;
inline constexpr TLevels kUntil2000 = Until(4);
inline constexpr TLevels kUntilXp = Until(5);
inline constexpr TLevels kUntilVista = Until(6);
inline constexpr TLevels kUntilWindows7 = Until(7);
inline constexpr TLevels kUntilWindows8 = Until(9);  ///< and 8.1
inline constexpr TLevels kUntilWindows10 = Until(10);
inline constexpr TLevels kSinceXp = Since(5);
inline constexpr TLevels kSinceVista = Since(6);
inline constexpr TLevels kSinceWindows7 = Since(7);
inline constexpr TLevels kSinceWindows8 = Since(8);
inline constexpr TLevels kSinceWindows10 = Since(10);
inline constexpr TLevels kSinceWindows11 = Since(11);
inline constexpr TLevels kOnlyWindows2000 = Since(4) & kUntil2000;
inline constexpr TLevels kNotWindows2000 = ~kOnlyWindows2000;
inline constexpr TLevels kOnlyXp = kSinceXp & kUntilXp;
inline constexpr TLevels kXpAndVista = kSinceXp & kUntilVista;
inline constexpr TLevels kXpToWindows7 = kSinceXp & kUntilWindows7;
inline constexpr TLevels kOnlyVista = kSinceVista & kUntilVista;
inline constexpr TLevels kVistaAndWindows7 = kSinceVista & kUntilWindows7;
inline constexpr TLevels kOnlyWindows7 = kSinceWindows7 & kUntilWindows7;
inline constexpr TLevels kWindows8And81 = kSinceWindows8 & kUntilWindows8;
inline constexpr TLevels kOnlyWindows10 = kSinceWindows10 & kUntilWindows10;

/// The releases of the set in words, those that follow each other as one: "2000 to XP", "11 since build 22621".
[[nodiscard]] std::wstring WordsOf(TLevels levels);

/// The names of the Windows in the set, one for each level: "Windows XP", "Windows 11 since build 22621".
[[nodiscard]] std::vector<std::wstring> NamesOf(TLevels levels);
