#include "platform/named_lines.h"

std::wstring_view TNamedLines::Line(std::size_t index) const {
    const std::wstring_view text = FText;
    const std::size_t start = FStarts[index];
    const std::size_t end = index + 1 < FStarts.size() ? FStarts[index + 1] : text.size();
    return text.substr(start, end - start);
}

std::optional<std::wstring_view> TNamedLines::Name(std::size_t index) const {
    const std::wstring_view line = Line(index);
    const std::size_t equals = line.find(L'=');
    if (equals == std::wstring_view::npos) return std::nullopt;
    return line.substr(0, equals);
}

std::optional<std::size_t> TNamedLines::Find(std::wstring_view name) const {
    if (!FPlaces) {
        FPlaces.emplace();
        for (std::size_t i = 0; i < Count(); ++i) {
            if (const auto key = Name(i)) FPlaces->insert_or_assign(std::wstring(*key), i);
        }
    }
    const auto found = FPlaces->find(name);
    if (found == FPlaces->end()) return std::nullopt;
    return found->second;
}

void TNamedLines::Append(std::wstring_view line) {
    FStarts.push_back(FText.size());
    FText += line;
    if (!FPlaces) return;
    if (const auto key = Name(Count() - 1)) FPlaces->insert_or_assign(std::wstring(*key), Count() - 1);
}

void TNamedLines::Replace(std::size_t index, std::wstring_view line) {
    Rewrite(index, line);
    FPlaces.reset();
}

void TNamedLines::Erase(std::size_t index) {
    Rewrite(index, {});
    FStarts.erase(FStarts.begin() + static_cast<std::ptrdiff_t>(index));
    FPlaces.reset();
}

void TNamedLines::Rewrite(std::size_t index, std::wstring_view line) {
    const std::size_t length = Line(index).size();
    FText.replace(FStarts[index], length, line);
    for (std::size_t i = index + 1; i < Count(); ++i) FStarts[i] += line.size() - length;
}
