#include "platform/win32/windows_info_win32.h"

#include <windows.h>

#include <algorithm>
#include <bit>
#include <cstring>

#include "base/win32/late_bound.h"

namespace {

class TWin32VersionResource : public TVersionResource {
  public:
    explicit TWin32VersionResource(std::vector<std::uint8_t> bytes) : FBytes(std::move(bytes)) {}

    [[nodiscard]] std::optional<std::wstring> Text(const std::wstring& path) const override {
        const auto found = Query(path, sizeof(wchar_t));
        if (!found) return std::nullopt;
        std::wstring text(found->size() / sizeof(wchar_t), L'\0');
        std::memcpy(text.data(), found->data(), text.size() * sizeof(wchar_t));
        text.resize(std::min(text.find(L'\0'), text.size()));
        return text;
    }

    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Block(const std::wstring& path) const override {
        const auto found = Query(path, 1);
        if (!found) return std::nullopt;
        return std::vector<std::uint8_t>(found->begin(), found->end());
    }

  private:
    /// What is at the path, which Windows measures in units of `unit` bytes. A resource may lie about its lengths, so
    /// nothing beyond its end is given out.
    [[nodiscard]] std::optional<std::span<const std::uint8_t>> Query(const std::wstring& path,
                                                                     std::size_t unit) const {
        void* data = nullptr;
        UINT length = 0;
        if (!VerQueryValueW(FBytes.data(), path.c_str(), &data, &length) || data == nullptr)
            return std::nullopt;
        const std::uintptr_t offset =
            std::bit_cast<std::uintptr_t>(data) - std::bit_cast<std::uintptr_t>(FBytes.data());
        const std::span<const std::uint8_t> all(FBytes);
        if (offset > all.size()) return std::nullopt;
        return all.subspan(offset, std::min<std::size_t>(length * unit, all.size() - offset));
    }

    std::vector<std::uint8_t> FBytes;
};

}  // namespace

TVersionNumbers TWin32WindowsInfo::Version() const {
    OSVERSIONINFOW info{};
    static_assert(sizeof(info) == 276);
    info.dwOSVersionInfoSize = sizeof(info);
    if (!GetVersionExW(&info)) return {};
    TVersionNumbers version{.PlatformId = info.dwPlatformId,
                            .Major = info.dwMajorVersion,
                            .Minor = info.dwMinorVersion,
                            .Build = info.dwBuildNumber};
    const bool isSinceWindows8 = version.Major > 6 || (version.Major == 6 && version.Minor >= 2);
    if (OSVERSIONINFOEXW actual{}; isSinceWindows8 && GetTrueVersion(actual)) {
        version.Major = actual.dwMajorVersion;
        version.Minor = actual.dwMinorVersion;
        version.Build = actual.dwBuildNumber;
        version.IsServer = actual.wProductType != VER_NT_WORKSTATION;
    }
    return version;
}

bool TWin32WindowsInfo::IsWow64() const { return ProcessIsWow64(); }

std::wstring TWin32WindowsInfo::ProgramFile() const {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);  // it was cut
    }
}

std::unique_ptr<TVersionResource> TWin32WindowsInfo::OpenVersionResource(const std::wstring& file) const {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(file.c_str(), &ignored);
    if (size == 0) return nullptr;
    std::vector<std::uint8_t> bytes(size);
    if (!GetFileVersionInfoW(file.c_str(), 0, size, bytes.data())) return nullptr;
    return std::make_unique<TWin32VersionResource>(std::move(bytes));
}

std::wstring TWin32WindowsInfo::FromAnsi(std::span<const std::uint8_t> bytes) const {
    const std::string source(bytes.begin(), bytes.end());
    const int length = static_cast<int>(source.size());
    // No character set of Windows has fewer bytes than characters.
    std::wstring text(source.size(), L'\0');
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, source.data(), length, text.data(), length)));
    return text;
}

std::vector<std::uint8_t> TWin32WindowsInfo::ToAnsi(std::wstring_view text) const {
    const auto convert = [&](char* bytes, int size) {
        return WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes, size,
                                   nullptr, nullptr);
    };
    std::string bytes(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(bytes.data(), static_cast<int>(bytes.size()));
    return {bytes.begin(), bytes.end()};
}
