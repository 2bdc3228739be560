#include "settings/levels.h"

#include "base/decimal.h"
#include "platform/windows_version.h"

namespace {

bool IsFirstOfLevel(std::size_t i) { return i == 0 || kReleases[i - 1].Level != kReleases[i].Level; }
bool IsLastOfLevel(std::size_t i) {
    return i + 1 == kReleaseCount || kReleases[i + 1].Level != kReleases[i].Level;
}

std::wstring NameOf(std::size_t i) {
    constexpr const wchar_t* kNames[] = {L"2000", L"XP", L"Vista"};
    const int level = kReleases[i].Level;
    if (level == 9) return L"8.1";
    return level < 4 || level > 6 ? DecimalText(level) : kNames[level - 4];
}

std::wstring SinceWords(std::size_t i) {
    return IsFirstOfLevel(i) ? std::wstring() : L" since build " + DecimalText(kReleases[i].Build);
}
std::wstring UntilWords(std::size_t i) {
    return IsLastOfLevel(i) ? std::wstring() : L" until build " + DecimalText(kReleases[i + 1].Build - 1);
}

/// Calls `add` with the first and the last release of each run of the set in which `goesOn` holds of every one but the first.
template <typename TGoesOn, typename TAdd>
void ForRuns(TLevels levels, TGoesOn goesOn, TAdd add) {
    for (std::size_t first = 0; first < kReleaseCount; ++first) {
        if (!levels.Include(TRelease::At(first))) continue;
        std::size_t last = first;
        while (last + 1 < kReleaseCount && levels.Include(TRelease::At(last + 1)) && goesOn(last + 1)) ++last;
        add(first, last);
        first = last;
    }
}

}  // namespace

TRelease RunningRelease(const TSystem& system) {
    std::wstring name;
    GetOSName(system, name);
    return {WindowsLevel(name), system.Windows.Version().Build};
}

std::wstring WordsOf(TLevels levels) {
    if (levels == kEveryLevel) return L"all";
    if (levels == kNotWindows2000) return L"all but 2000";
    std::wstring words;
    ForRuns(
        levels, [](std::size_t) { return true; },
        [&](std::size_t first, std::size_t last) {
            words += words.empty() ? L"" : L", ";
            if (first == 0 && last != 0)
                words += L"up to " + NameOf(last) + UntilWords(last);
            else if (last + 1 == kReleaseCount && kReleases[first].Level != kReleases[last].Level)
                words += NameOf(first) + SinceWords(first) + L" and later";
            else if (kReleases[first].Level == kReleases[last].Level)
                words += NameOf(first) + SinceWords(first) + UntilWords(last);
            else
                words += NameOf(first) + SinceWords(first) + L" to " + NameOf(last) + UntilWords(last);
        });
    return words;
}

std::vector<std::wstring> NamesOf(TLevels levels) {
    std::vector<std::wstring> names;
    ForRuns(
        levels, [](std::size_t i) { return !IsFirstOfLevel(i); },
        [&](std::size_t first, std::size_t last) {
            names.push_back(first == 0 ? std::wstring(L"other")
                                       : L"Windows " + NameOf(first) + SinceWords(first) + UntilWords(last));
        });
    return names;
}
