#include "platform/name_pattern.h"

#include "platform/text.h"

bool MatchesPattern(std::wstring_view name, std::wstring_view pattern) {
    std::size_t n = 0;
    std::size_t p = 0;
    // Where to go on when the characters after the last "*" do not match: that star takes one character more.
    std::size_t star = std::wstring_view::npos;
    std::size_t resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size() &&
                   (pattern[p] == L'?' || SameText(name.substr(n, 1), pattern.substr(p, 1)))) {
            ++n;
            ++p;
        } else if (star != std::wstring_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(L'*', p) == std::wstring_view::npos;
}
