#include "settings/net/prefs_entries.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

#include "platform/text.h"

namespace {

constexpr char kQuote = '"';
constexpr std::size_t kHashes = 0x10000;
constexpr auto kNone = std::numeric_limits<std::uint32_t>::max();

std::size_t Hash(std::string_view text) { return TTextHash()(text) % kHashes; }

}  // namespace

void TPrefEntries::Append(std::string entry) { Add(FOwn.emplace_back(std::move(entry))); }

void TPrefEntries::Replace(std::size_t place, std::string entry) {
    FEntries[place] = FOwn.emplace_back(std::move(entry));
    if (place < FIndexed) Index(place);
}

void TPrefEntries::Index(std::size_t place) const {
    const std::string_view entry = FEntries[place];
    std::size_t begin = entry.find(kQuote);
    while (begin != std::string_view::npos) {
        const std::size_t end = entry.find(kQuote, ++begin);
        if (end == std::string_view::npos) return;
        std::uint32_t& last = FLast[Hash(entry.substr(begin, end - begin))];
        FQuoted.push_back({.Place = static_cast<std::uint32_t>(place), .Before = last});
        last = static_cast<std::uint32_t>(FQuoted.size() - 1);
        begin = end;
    }
}

std::vector<std::size_t> TPrefEntries::Quoting(std::string_view quotedName) const {
    FLast.resize(kHashes, kNone);
    for (; FIndexed < Count(); ++FIndexed) Index(FIndexed);
    std::vector<std::size_t> places;
    const std::string_view name = quotedName.substr(1, quotedName.find(kQuote, 1) - 1);
    for (std::uint32_t at = FLast[Hash(name)]; at != kNone; at = FQuoted[at].Before)
        places.push_back(FQuoted[at].Place);
    std::ranges::sort(places, std::greater());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}
