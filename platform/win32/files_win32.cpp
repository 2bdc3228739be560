#include "platform/win32/files_win32.h"

#include "platform/name_pattern.h"
#include "ui/win32/handle.h"

namespace {

/// The largest file that is read; settings and languages are far smaller.
constexpr LONGLONG kLargestFile = 64 * 1024 * 1024;

/// A new file of a unique name, deleted at the end of its scope unless it was moved away.
class TTemporaryFile {
  public:
    explicit TTemporaryFile(const std::wstring& folder) {
        wchar_t path[MAX_PATH + 1]{};
        if (GetTempFileNameW(folder.c_str(), L"qlt", 0, path) != 0) FPath = path;
    }
    ~TTemporaryFile() {
        if (!FPath.empty()) DeleteFileW(FPath.c_str());
    }
    TTemporaryFile(const TTemporaryFile&) = delete;
    TTemporaryFile& operator=(const TTemporaryFile&) = delete;

    /// Writes the bytes through to the disk.
    [[nodiscard]] bool Fill(const std::vector<std::uint8_t>& bytes) const {
        if (FPath.empty()) return false;
        const TFileHandle file(CreateFileW(FPath.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                           FILE_ATTRIBUTE_NORMAL, nullptr));
        const auto size = static_cast<DWORD>(bytes.size());
        DWORD written = 0;
        return file.IsValid() && WriteFile(file.Get(), bytes.data(), size, &written, nullptr) &&
               written == size && FlushFileBuffers(file.Get());
    }

    [[nodiscard]] bool MoveTo(const std::wstring& path) {
        if (!MoveFileExW(FPath.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return false;
        FPath.clear();
        return true;
    }

  private:
    std::wstring FPath;  ///< empty when there is no such file
};

TFileHandle OpenToRead(const std::wstring& path) {
    return TFileHandle(CreateFileW(path.c_str(), GENERIC_READ,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

/// `count` bytes, or as many as there are; nothing after a failure.
std::optional<std::vector<std::uint8_t>> ReadFrom(const TFileHandle& file, std::size_t count) {
    std::vector<std::uint8_t> bytes(count);
    DWORD read = 0;
    if (!ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(count), &read, nullptr)) return std::nullopt;
    bytes.resize(read);
    return bytes;
}

bool IsFolder(DWORD attributes) { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }

}  // namespace

bool TWin32Files::Exists(const std::wstring& path) const {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !IsFolder(attributes);
}

std::optional<std::vector<std::uint8_t>> TWin32Files::Read(const std::wstring& path) const {
    const TFileHandle file = OpenToRead(path);
    LARGE_INTEGER size{};
    if (!file.IsValid() || !GetFileSizeEx(file.Get(), &size) || size.QuadPart > kLargestFile)
        return std::nullopt;
    auto bytes = ReadFrom(file, static_cast<std::size_t>(size.QuadPart));
    return bytes && bytes->size() == static_cast<std::size_t>(size.QuadPart) ? bytes : std::nullopt;
}

std::optional<std::uint64_t> TWin32Files::Size(const std::wstring& path) const {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) || IsFolder(data.dwFileAttributes))
        return std::nullopt;
    return std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow;
}

std::optional<std::vector<std::uint8_t>> TWin32Files::ReadPart(const std::wstring& path, std::uint64_t offset,
                                                               std::size_t count) const {
    const TFileHandle file = OpenToRead(path);
    LARGE_INTEGER start{};
    start.QuadPart = static_cast<LONGLONG>(offset);
    if (!file.IsValid() || !SetFilePointerEx(file.Get(), start, nullptr, FILE_BEGIN)) return std::nullopt;
    return ReadFrom(file, count);
}

bool TWin32Files::Append(const std::wstring& path, const std::vector<std::uint8_t>& bytes) {
    // Asked for here: Wine leaves it to the host, where the administrator may write into everything.
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) return false;
    const TFileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER end{};
    if (!file.IsValid() || !SetFilePointerEx(file.Get(), {}, &end, FILE_END)) return false;
    const auto size = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    if (WriteFile(file.Get(), bytes.data(), size, &written, nullptr) && written == size)
        return FlushFileBuffers(file.Get());
    // The disk may be full.
    SetFilePointerEx(file.Get(), end, nullptr, FILE_BEGIN);
    SetEndOfFile(file.Get());
    return false;
}

bool TWin32Files::Replace(const std::wstring& path, const std::vector<std::uint8_t>& bytes) {
    // In the same folder: only within a volume is a move a single step.
    const std::size_t delimiter = path.find_last_of(L"\\/");
    TTemporaryFile file(delimiter == std::wstring::npos ? L"." : path.substr(0, delimiter + 1));
    return file.Fill(bytes) && file.MoveTo(path);
}

std::vector<std::wstring> TWin32Files::List(const std::wstring& folder, const std::wstring& pattern) const {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    // Windows would match short names too, so it is asked for everything.
    const TSearchHandle search(FindFirstFileW((folder + L"\\*").c_str(), &found));
    if (!search.IsValid()) return names;
    do {
        if (!IsFolder(found.dwFileAttributes) && MatchesPattern(found.cFileName, pattern))
            names.emplace_back(found.cFileName);
    } while (FindNextFileW(search.Get(), &found));
    return names;
}

std::wstring TWin32Files::ProfileString(const std::wstring& path, const std::wstring& section,
                                        const std::wstring& key, const std::wstring& fallback) const {
    constexpr std::size_t kLongest = 0x10000;
    std::wstring value(256, L'\0');
    for (;;) {
        const DWORD length =
            GetPrivateProfileStringW(section.c_str(), key.c_str(), fallback.c_str(), value.data(),
                                     static_cast<DWORD>(value.size()), path.c_str());
        const bool whole = length + 1 < value.size();
        if (whole || value.size() >= kLongest) {
            value.resize(length);
            return value;
        }
        value.resize(value.size() * 2);
    }
}
