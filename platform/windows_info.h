// What kind of Windows and what program this is: version numbers, version resources, process, code page.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the program looks at of OSVERSIONINFOEXW.
struct TVersionNumbers {
    std::uint32_t PlatformId = 0;  ///< 2 = VER_PLATFORM_WIN32_NT
    std::uint32_t Major = 0;
    std::uint32_t Minor = 0;
    std::uint32_t Build = 0;
    bool IsServer = false;  ///< told from Windows 8 on only: before, a server goes by its numbers
};

/// The loaded version resource of a file (VerQueryValueW).
class TVersionResource {
  public:
    virtual ~TVersionResource() = default;

    /// The text at a path such as "\StringFileInfo\040904B0\FileVersion".
    [[nodiscard]] virtual std::optional<std::wstring> Text(const std::wstring& path) const = 0;
    /// The bytes at a path such as "\" or "\VarFileInfo\Translation".
    [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>> Block(const std::wstring& path) const = 0;
};

class TWindowsInfo {
  public:
    virtual ~TWindowsInfo() = default;

    /// The numbers of GetVersionExW, all zero when it fails. From Windows 8 on, where that tells of no Windows that is newer
    /// than the program, those of RtlGetVersion.
    [[nodiscard]] virtual TVersionNumbers Version() const = 0;

    /// Whether this is a 32-bit process on 64-bit Windows; false where Windows cannot tell.
    [[nodiscard]] virtual bool IsWow64() const = 0;

    /// Full path of the running program file.
    [[nodiscard]] virtual std::wstring ProgramFile() const = 0;

    /// The version resource of a file; null when it has none or cannot be read.
    [[nodiscard]] virtual std::unique_ptr<TVersionResource> OpenVersionResource(
        const std::wstring& file) const = 0;

    /// Text of the system's ANSI code page.
    [[nodiscard]] virtual std::wstring FromAnsi(std::span<const std::uint8_t> bytes) const = 0;

    /// The text in the system's ANSI code page; what the code page lacks becomes a similar character or "?".
    [[nodiscard]] virtual std::vector<std::uint8_t> ToAnsi(std::wstring_view text) const = 0;
};
