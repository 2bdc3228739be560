#include "platform/win32/files_win32.h"

#include "base/win32/handle.h"
#include "base/win32/late_bound.h"
#include "platform/name_pattern.h"

namespace {

/// The largest file that is read; settings and languages are far smaller.
constexpr LONGLONG kLargestFile = 64 * 1024 * 1024;

/// Those that a new file can be created with.
constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Gives the file its new size: where there is no room for it, nothing is lost yet.
bool MakeRoom(HANDLE file, const std::vector<std::uint8_t>& bytes) {
    return SetFilePointer(file, static_cast<LONG>(bytes.size()), nullptr, FILE_BEGIN) !=
               INVALID_SET_FILE_POINTER &&
           SetEndOfFile(file) && SetFilePointer(file, 0, nullptr, FILE_BEGIN) == 0;
}

/// Writes the bytes through to the disk.
bool WriteAll(HANDLE file, const std::vector<std::uint8_t>& bytes) {
    const auto size = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    return WriteFile(file, bytes.data(), size, &written, nullptr) && written == size &&
           FlushFileBuffers(file);
}

/// The new content of a file, beside it under a name of its own until it takes its place; deleted at the end of its scope.
/// What was left of one after the program was killed makes room for it.
class TNewContent {
  public:
    explicit TNewContent(std::wstring target)
        : FTarget(std::move(target)), FPath(FTarget + L".quilltune-new") {}
    ~TNewContent() {
        if (FExists) DeleteFileW(FPath.c_str());
    }
    TNewContent(const TNewContent&) = delete;
    TNewContent& operator=(const TNewContent&) = delete;

    /// Writes the bytes through to the disk, into a file with these attributes.
    [[nodiscard]] bool Fill(const std::vector<std::uint8_t>& bytes, DWORD attributes) {
        DeleteFileW(FPath.c_str());
        const TFileHandle file(
            CreateFileW(FPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, attributes, nullptr));
        FExists = file.IsValid();
        return FExists && MakeRoom(file.Get(), bytes) && WriteAll(file.Get(), bytes);
    }

    /// Where nothing is.
    [[nodiscard]] bool MoveToTarget() { return Move(0); }

    /// In a single step; ReplaceFileW would leave a moment without a file.
    [[nodiscard]] bool ReplaceTarget() { return Move(MOVEFILE_REPLACE_EXISTING); }

    /// Leaves it where it is.
    void Keep() { FExists = false; }

    [[nodiscard]] const std::wstring& Path() const { return FPath; }

  private:
    bool Move(DWORD flags) {
        FExists = !MoveFileExW(FPath.c_str(), FTarget.c_str(), flags | MOVEFILE_WRITE_THROUGH);
        return !FExists;
    }

    std::wstring FTarget;
    std::wstring FPath;
    bool FExists = false;
};

/// Where symbolic links lead to; the path itself when it leads nowhere.
std::wstring FinalPath(const std::wstring& path) {
    const TFileHandle file(CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    std::wstring target = file.IsValid() ? FinalPathOf(file.Get()) : std::wstring();
    return target.empty() ? path : target;
}

/// Whether the file may be moved away and no hard link gives it another name.
bool CanMoveAway(const std::wstring& path) {
    const TFileHandle file(
        CreateFileW(path.c_str(), GENERIC_READ | DELETE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    return file.IsValid() && GetFileInformationByHandle(file.Get(), &information) &&
           information.nNumberOfLinks == 1;
}

/// But for what every file that is written gets.
bool SameAttributes(DWORD one, DWORD other) {
    return ((one ^ other) & ~DWORD{FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NORMAL}) == 0;
}

/// Who may do what to the file, as Windows describes it; nothing on disks without rights.
std::vector<std::uint8_t> Rights(const std::wstring& path) {
    constexpr SECURITY_INFORMATION kParts =
        OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), kParts, nullptr, 0, &size);
    std::vector<std::uint8_t> rights(size);
    if (!GetFileSecurityW(path.c_str(), kParts, rights.data(), size, &size)) return {};
    return rights;
}

/// Not in a single step, but the file stays the same one. Its new content lies beside it meanwhile; should the writing stop
/// half-way, another file is better than half of one, and where that cannot be the content stays where it is.
bool WriteInPlace(const std::wstring& path, const std::vector<std::uint8_t>& bytes, TNewContent& content) {
    {
        const TFileHandle file(
            CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        if (!file.IsValid() || !MakeRoom(file.Get(), bytes)) return false;
        if (WriteAll(file.Get(), bytes)) return true;
    }
    if (content.ReplaceTarget()) return true;
    content.Keep();
    return false;
}

TFileHandle OpenToRead(const std::wstring& path) {
    return TFileHandle(CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
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
    const std::wstring target = FinalPath(path);
    const DWORD attributes = GetFileAttributesW(target.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) return false;
    TNewContent content(target);
    if (!content.Fill(bytes, exists ? attributes & kKeptAttributes : FILE_ATTRIBUTE_NORMAL)) return false;
    if (!exists) return content.MoveToTarget();
    // Another file in its place would be one without the other names, and with what a new file gets for the rest.
    const bool canBeAnother = SameAttributes(attributes, GetFileAttributesW(content.Path().c_str())) &&
                              CanMoveAway(target) && Rights(target) == Rights(content.Path());
    return (canBeAnother && content.ReplaceTarget()) || WriteInPlace(target, bytes, content);
}

bool TWin32Files::CreateNew(const std::wstring& path, const std::vector<std::uint8_t>& bytes) {
    if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) return false;
    TNewContent content(path);
    return content.Fill(bytes, FILE_ATTRIBUTE_NORMAL) && content.MoveToTarget();
}

bool TWin32Files::Delete(const std::wstring& path) { return DeleteFileW(path.c_str()); }

bool TWin32Files::CreateFolder(const std::wstring& path) {
    for (std::size_t end = 0; end != std::wstring::npos;) {
        end = path.find(L'\\', end + 1);
        CreateDirectoryW(path.substr(0, end).c_str(), nullptr);  // fails where it is there already
    }
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && IsFolder(attributes);
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

std::vector<TDrive> TWin32Files::Drives() const {
    std::vector<TDrive> drives;
    const DWORD letters = GetLogicalDrives();
    for (int i = 0; i < 26; ++i) {
        if ((letters >> i & 1) == 0) continue;
        TDrive drive{static_cast<wchar_t>(L'A' + i), TDriveKind::Fixed, {}};
        const std::wstring root{drive.Letter, L':', L'\\'};
        const UINT type = GetDriveTypeW(root.c_str());
        std::wstring label(MAX_PATH + 1, L'\0');
        if (type == DRIVE_REMOVABLE)
            drive.Kind = TDriveKind::Removable;
        else if (type == DRIVE_REMOTE)
            drive.Kind = TDriveKind::Network;
        else if (type == DRIVE_CDROM)
            drive.Kind = TDriveKind::Disc;
        else if (GetVolumeInformationW(root.c_str(), label.data(), static_cast<DWORD>(label.size()), nullptr,
                                       nullptr, nullptr, nullptr, 0))
            drive.Label = label.c_str();
        drives.push_back(std::move(drive));
    }
    return drives;
}
