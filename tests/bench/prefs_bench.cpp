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
    char line[160];
    for (int i = 0; i < statements; ++i) {
        std::snprintf(line, sizeof line,
                      "user_pref(\"extensions.sample%05d.lastUpdate\", \"{\\\"when\\\": %d; \\\"from\\\": "
                      "\\\"https://mirror\\\"}\");\r\n",
                      i, 1'200'000'000 + i);
        text += line;
    }
    return text;
}

double LoadMilliseconds(TFirefoxPrefs& prefs) {
    const auto start = std::chrono::steady_clock::now();
    prefs.LoadFirefoxPrefs();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main() {
    std::vector<double> times[std::size(kSizes)];
    std::size_t bytes[std::size(kSizes)];
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < std::size(kSizes); ++i) {
            const std::string text = PrefsFile(kSizes[i]);
            bytes[i] = text.size();
            TFakeSystem fake;
            fake.Files.PutText(L"C:\\Firefox\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
            fake.Files.PutText(L"C:\\Firefox\\p\\user.js", text);
            TFirefoxPrefs prefs(fake.System, L"C:\\Firefox\\");
            times[i].push_back(LoadMilliseconds(prefs));
            if (prefs.FirefoxPrefLines().size() != static_cast<std::size_t>(kSizes[i])) {
                std::puts("statements were lost");
                return 1;
            }
        }
    }
    bool good = true;
    double before = 0;
    for (std::size_t i = 0; i < std::size(kSizes); ++i) {
        std::ranges::sort(times[i]);
        const double median = times[i][kRounds / 2];
        std::printf("%6d statements, %4.1f MB: %6.1f ms", kSizes[i], static_cast<double>(bytes[i]) / 1e6,
                    median);
        if (i > 0) std::printf(", %.2f times as long", median / before);
        std::puts("");
        good = good && (i == 0 || median <= kMostGrowth * before) && (i != 1 || median < kMostMilliseconds);
        before = median;
    }
    return good ? 0 : 1;
}
