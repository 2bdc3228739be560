#include "ui/cut_text.h"

#include <algorithm>
#include <vector>

std::wstring CutAtWord(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits) {
    if (fits(text)) return text;
    std::vector<std::wstring> cuts;
    for (std::size_t end = text.find(L' '); end != std::wstring::npos; end = text.find(L' ', end + 1))
        cuts.push_back(text.substr(0, end) + kEllipsis);
    const auto first = std::partition_point(cuts.begin(), cuts.end(), fits);
    return first == cuts.begin() ? std::wstring(1, kEllipsis) : *(first - 1);
}
