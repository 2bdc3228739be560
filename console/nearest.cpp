#include "console/nearest.h"

#include <algorithm>
#include <tuple>

#include "platform/text.h"

namespace {

constexpr std::size_t kMostWords = 3;
constexpr std::size_t kLongestTyped = 200;

/// How many characters of `typed` must be changed, left out or put in until it is a part of the word.
std::size_t DistanceToPart(std::wstring_view typed, std::wstring_view word) {
    std::vector<std::size_t> row(word.size() + 1, 0);  // a part may begin anywhere
    for (std::size_t i = 0; i < typed.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < word.size(); ++j) {
            const bool same = SameText(typed.substr(i, 1), word.substr(j, 1));
            const std::size_t replaced = diagonal + (same ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return *std::ranges::min_element(row);  // and end anywhere
}

}  // namespace

std::vector<std::wstring> NearestWords(std::wstring_view typed, const std::vector<std::wstring>& known) {
    typed = typed.substr(0, kLongestTyped);
    constexpr std::size_t kShortest = 3;  // less is nearly a part of anything
    if (typed.size() < kShortest) return {};
    const std::size_t farthest = (typed.size() + 2) / 3;
    std::vector<std::tuple<std::size_t, std::size_t, std::wstring>> ranked;
    for (const std::wstring& word : known)
        if (const std::size_t distance = DistanceToPart(typed, word); distance <= farthest)
            ranked.emplace_back(distance, word.size(), word);
    std::ranges::sort(ranked);
    std::vector<std::wstring> nearest;
    for (const auto& [distance, size, word] : ranked)
        if (nearest.size() < kMostWords) nearest.push_back(word);
    return nearest;
}
