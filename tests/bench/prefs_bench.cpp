// How long preference files take to load: three sizes, each twice the one before, measured in turn. Fails when the time
// grows faster than the text, or when 50,000 statements take half a second.
#include <algorithm>
#include <chrono>
#include <cstdio>

#include "settings/net/firefox_prefs.h"
#include "tests/fakes/fake_system.h"

namespace {

constexpr int kRounds = 9;
constexpr int kSizes[] = {25'000, 50'000, 100'000};
constexpr double kMostMilliseconds = 500;  ///< for the second size
constexpr double kMostGrowth = 3;          ///< from one size to the next

/// Statements of about a hundred bytes, as Firefox writes them.
std::string PrefsFile(int statements) {
    std::string text = "# Mozilla User Preferences\r\n\r\n";
    for (int i = 0; i < statements; ++i)
        text += "user_pref(\"extensions.sample" + std::to_string(i) +
                ".lastUpdate\", \"{\\\"when\\\": 1200000000; \\\"from\\\": \\\"https://mirror\\\"}\");\r\n";
    return text;
}

/// How long it takes to load so many statements; nothing when some were lost.
std::optional<double> LoadMilliseconds(int statements) {
    TFakeSystem fake;
    fake.Files.PutText(L"C:\\Firefox\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
    fake.Files.PutText(L"C:\\Firefox\\p\\user.js", PrefsFile(statements));
    TFirefoxPrefs prefs(fake.System, L"C:\\Firefox\\");
    const auto start = std::chrono::steady_clock::now();
    prefs.LoadFirefoxPrefs();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    if (prefs.FirefoxPrefLines().size() != static_cast<std::size_t>(statements)) return std::nullopt;
    return time.count();
}

}  // namespace

int main() {
    std::vector<double> times[std::size(kSizes)];
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < std::size(kSizes); ++i) {
            const auto time = LoadMilliseconds(kSizes[i]);
            if (!time) return std::puts("statements were lost"), 1;
            times[i].push_back(*time);
        }
    }
    bool good = true;
    double before = 0;
    for (std::size_t i = 0; i < std::size(kSizes); ++i) {
        std::ranges::sort(times[i]);
        const double median = times[i][kRounds / 2];
        std::printf("%6d statements: %6.1f ms\n", kSizes[i], median);
        good = good && (i == 0 || median <= kMostGrowth * before) && (i != 1 || median < kMostMilliseconds);
        before = median;
    }
    return good ? 0 : 1;
}
