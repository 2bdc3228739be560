// Lines of the form name=value, in order, found by their names.
#pragma once

#include <unordered_map>

#include "platform/text.h"

/// Names are compared without regard to case; of several lines of one name the last is found. Lines without "="
/// are kept like the others and have no name. The lines lie in one block, so that a file of millions of short
/// lines costs little more than its text.
class TNamedLines {
  public:
    [[nodiscard]] std::size_t Count() const { return FStarts.size(); }
    /// Valid until the lines change.
    [[nodiscard]] std::wstring_view Line(std::size_t index) const;
    /// The text before the first "="; nothing for a line without one.
    [[nodiscard]] std::optional<std::wstring_view> Name(std::size_t index) const;

    /// The place of the last line of that name.
    [[nodiscard]] std::optional<std::size_t> Find(std::wstring_view name) const;

    void Append(std::wstring_view line);
    /// Exchanges the line for another one.
    void Replace(std::size_t index, std::wstring_view line);
    void Erase(std::size_t index);

  private:
    using TPlaces = std::unordered_map<std::wstring, std::size_t, TTextHash, TTextEqual>;

    /// Exchanges the characters of a line and leaves the names to the caller.
    void Rewrite(std::size_t index, std::wstring_view line);

    std::wstring FText;                      ///< the lines, one after the other
    std::vector<std::size_t> FStarts;        ///< where in FText each begins
    mutable std::optional<TPlaces> FPlaces;  ///< the last line of each name; made by the first look-up
};
