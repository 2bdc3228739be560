// Files as the program uses them: read whole, replaced whole, continued at the end, listed by pattern.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

enum class TDriveKind : std::uint8_t {
    Fixed,
    Removable,
    Network,
    Disc,  ///< a CD or DVD drive
};

struct TDrive {
    wchar_t Letter;  ///< in upper case
    TDriveKind Kind;
    std::wstring Label;  ///< of a fixed drive; asking others could mean waiting for them

    bool operator==(const TDrive&) const = default;
};

/// Nothing throws. Paths are Windows paths in UTF-16 (UTF-32 on other hosts).
class TFiles {
  public:
    virtual ~TFiles() = default;

    [[nodiscard]] virtual bool Exists(const std::wstring& path) const = 0;

    /// The file's bytes, or nothing when it cannot be read whole.
    [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> Read(const std::wstring& path) const = 0;

    /// The file's length in bytes; nothing when there is no such file.
    [[nodiscard]] virtual std::optional<std::uint64_t> Size(const std::wstring& path) const = 0;

    /// The bytes from `offset` on, `count` of them or as many as there are, of a file of any length; nothing when they
    /// cannot be read.
    [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> ReadPart(const std::wstring& path,
                                                                            std::uint64_t offset,
                                                                            std::size_t count) const = 0;

    /// Puts `bytes` at the end of the file, all or none. A missing file is created.
    [[nodiscard]] virtual bool Append(const std::wstring& path, const std::vector<std::uint8_t>& bytes) = 0;

    /// Puts `bytes` in the file's place: whatever interrupts it, the old or the new content is there whole. Attributes,
    /// rights and links remain. A read-only file is not replaced. Meanwhile the new content has a name of its own beside
    /// the file; a name that was left behind is taken over the next time.
    [[nodiscard]] virtual bool Replace(const std::wstring& path, const std::vector<std::uint8_t>& bytes) = 0;

    /// Creates a file with these bytes where nothing is: it is there whole, and on the disk, or not at all.
    [[nodiscard]] virtual bool CreateNew(const std::wstring& path,
                                         const std::vector<std::uint8_t>& bytes) = 0;

    /// Deletes a file; a read-only one and a folder are not deleted. False also when there is none.
    [[nodiscard]] virtual bool Delete(const std::wstring& path) = 0;

    /// Creates the folder (no trailing delimiter) and those above it, as far as they are missing. True when it is there
    /// afterwards.
    [[nodiscard]] virtual bool CreateFolder(const std::wstring& path) = 0;

    /// Names (without folder) of the files in `folder` (no trailing delimiter) that match `pattern`, such as
    /// "*.lng", whatever their attributes, in the order of the file system. Folders are not listed.
    [[nodiscard]] virtual std::vector<std::wstring> List(const std::wstring& folder,
                                                         const std::wstring& pattern) const = 0;

    /// GetPrivateProfileStringW: a value of a Windows INI file, or `fallback`.
    [[nodiscard]] virtual std::wstring ProfileString(const std::wstring& path, const std::wstring& section,
                                                     const std::wstring& key,
                                                     const std::wstring& fallback) const = 0;

    /// The drives that there are, in the order of their letters.
    [[nodiscard]] virtual std::vector<TDrive> Drives() const = 0;
};
