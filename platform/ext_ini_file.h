// A file in INI form, read whole into memory.
#pragma once

#include <deque>

#include "platform/named_lines.h"
#include "platform/system.h"

/// Names of sections and keys are compared without regard to case. A section header or a key that is repeated
/// does not replace the earlier one, but look-ups find the last. Nothing is ever written to the disk.
class TExtIniFile {
  public:
    /// A file of more bytes is not read: no real one is nearly as long, and parsing it would hold up the start.
    static constexpr std::size_t kMaxFileSize = std::size_t{16} << 20;

    /// Replaces the content by that of a text file. False, and nothing changed, when the file cannot be read.
    [[nodiscard]] bool LoadFromFile(const TSystem& system, const std::wstring& fileName);

    /// Replaces the content by these lines. White space around a line, a section name, a key and a value does not
    /// count; empty lines, lines that begin with ";" and lines before the first "[section]" are dropped. Other
    /// lines without "=" are kept as they are, but no look-up finds them.
    void SetStrings(TLineReader lines);

    void Clear();

    /// Opens a new, empty section after the others. The answer is valid until a section is erased.
    TNamedLines& AddSection(std::wstring_view section);

    [[nodiscard]] std::wstring ReadString(std::wstring_view section, std::wstring_view key,
                                          std::wstring_view fallback) const;
    [[nodiscard]] bool ValueExists(std::wstring_view section, std::wstring_view key) const;
    /// Sets a value, in memory only; adds the section and the key when they are missing.
    void WriteString(std::wstring_view section, std::wstring_view key, std::wstring_view value);

    /// The keys of a section in their order.
    [[nodiscard]] std::vector<std::wstring> ReadSection(std::wstring_view section) const;
    /// The names of all sections in their order.
    [[nodiscard]] std::vector<std::wstring> ReadSections() const;
    /// All lines of a section; none when it is missing.
    [[nodiscard]] TNamedLines ReadSectionValues(std::wstring_view section) const;

    void EraseSection(std::wstring_view section);
    void DeleteKey(std::wstring_view section, std::wstring_view key);

    /// Does nothing: a language file is never written back.
    void UpdateFile() {}

  private:
    /// The lines of the last section of that name, or null.
    [[nodiscard]] const TNamedLines* Find(std::wstring_view section) const;
    [[nodiscard]] TNamedLines* Find(std::wstring_view section);

    struct TSection {
        std::wstring Name;
        TNamedLines Lines;
    };
    std::deque<TSection> FSections;
    std::unordered_map<std::wstring, std::size_t, TTextHash, TTextEqual>
        FPlaces;  ///< last section of each name
};
