#include "ui/cut_text.h"

#include <algorithm>
#include <vector>

namespace {

/// Where the part begins that is never cut.
std::size_t EndOf(const std::wstring& text) {
    if (text.starts_with(L"HKEY_")) return std::min(text.rfind(L'\\'), text.size());
    std::size_t end = text.size();
    while (end != 0 && text[end - 1] == L')') {
        const std::size_t open = text.rfind(L" (", end - 1);
        if (open == std::wstring::npos) break;
        end = open;
    }
    return end;
}

}  // namespace

std::wstring CutAtWord(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits) {
    if (fits(text)) return text;
    std::vector<std::wstring> cuts;
    for (std::size_t end = text.find(L' '); end != std::wstring::npos; end = text.find(L' ', end + 1))
        cuts.push_back(text.substr(0, end) + kEllipsis);
    const auto first = std::partition_point(cuts.begin(), cuts.end(), fits);
    return first == cuts.begin() ? std::wstring(1, kEllipsis) : *(first - 1);
}

std::wstring CutInside(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits) {
    if (fits(text)) return text;
    const std::size_t end = EndOf(text);
    const auto cut = [&](std::size_t length) {
        return text.substr(0, text.find_last_not_of(L' ', length - 1) + 1) + kEllipsis + text.substr(end);
    };
    std::size_t length = 0;
    for (std::size_t most = end; length < most;) {
        const std::size_t middle = (length + most + 1) / 2;
        if (fits(cut(middle)))
            length = middle;
        else
            most = middle - 1;
    }
    return length == 0 ? kEllipsis + text.substr(end) : cut(length);
}
