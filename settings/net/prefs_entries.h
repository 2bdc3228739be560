// The entries of one of Firefox's preference files, found by the names of prefs.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

/// An entry lies in the text of the file, which must outlive the object, or is a string of its own. Entries keep their
/// places: one that was removed is empty.
class TPrefEntries {
  public:
    TPrefEntries() = default;
    TPrefEntries(TPrefEntries&&) = default;
    TPrefEntries& operator=(TPrefEntries&&) = default;

    [[nodiscard]] std::size_t Count() const { return FEntries.size(); }
    [[nodiscard]] std::string_view operator[](std::size_t place) const { return FEntries[place]; }

    /// Adds what lies in the text of the file.
    void Add(std::string_view entry) { FEntries.push_back(entry); }
    void Append(std::string entry);
    void Replace(std::size_t place, std::string entry);

    /// The places of all entries that have the quoted name in them, without regard to case, and perhaps of some others; the
    /// last one first.
    [[nodiscard]] std::vector<std::size_t> Quoting(std::string_view quotedName) const;

  private:
    /// A text between two neighbouring quotes of an entry, and the one before among those with a similar hash.
    struct TQuoted {
        std::uint32_t Place;
        std::uint32_t Before;
    };

    void Index(std::size_t place) const;

    std::vector<std::string_view> FEntries;
    std::deque<std::string> FOwn;
    // Made at the first look-up.
    mutable std::vector<std::uint32_t> FLast;  ///< of each hash, as a place in FQuoted
    mutable std::vector<TQuoted> FQuoted;
    mutable std::size_t FIndexed = 0;  ///< how many entries FQuoted has
};
