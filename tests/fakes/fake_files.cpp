#include "tests/fakes/fake_files.h"

#include <algorithm>

#include "platform/name_pattern.h"
#include "platform/text.h"

namespace {

bool Contains(const std::vector<std::wstring>& paths, std::wstring_view path) {
    return std::ranges::any_of(paths, [&](const std::wstring& each) { return SameText(each, path); });
}

std::wstring_view FolderOf(std::wstring_view path) {
    return path.substr(0, std::min(path.rfind(L'\\'), path.size()));
}

std::wstring_view NameOf(std::wstring_view path) { return path.substr(path.rfind(L'\\') + 1); }

/// Windows takes a pair of quotes off a profile's value.
std::wstring_view Unquoted(std::wstring_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == L'"' || value.front() == L'\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

void TFakeFiles::Put(const std::wstring& path, std::vector<std::uint8_t> bytes) {
    Remove(path);
    FFiles.push_back({path, std::move(bytes)});
    FFolders.emplace_back(FolderOf(path));
}

void TFakeFiles::Remove(const std::wstring& path) {
    std::erase_if(FFiles, [&](const TFile& file) { return SameText(file.Path, path); });
}

std::string TFakeFiles::Text(const std::wstring& path) const {
    const TFile* file = Find(path);
    return file == nullptr ? std::string() : std::string(file->Bytes.begin(), file->Bytes.end());
}

std::optional<std::vector<std::uint8_t>> TFakeFiles::Read(const std::wstring& path) const {
    const TFile* file = Find(path);
    if (file == nullptr || Contains(FLocked, path)) return std::nullopt;
    return file->Bytes;
}

bool TFakeFiles::Replace(const std::wstring& path, const std::vector<std::uint8_t>& bytes) {
    FReplaced.push_back(path);
    const bool fails = FReplacesToFailure == 1;
    if (FReplacesToFailure > 0) --FReplacesToFailure;
    if (fails || !HasFolder(FolderOf(path)) || HasFolder(path)) return false;
    Put(path, bytes);
    return true;
}

std::vector<std::wstring> TFakeFiles::List(const std::wstring& folder, const std::wstring& pattern) const {
    std::vector<std::wstring> names;
    for (const TFile& file : FFiles)
        if (SameText(FolderOf(file.Path), folder) && MatchesPattern(NameOf(file.Path), pattern))
            names.emplace_back(NameOf(file.Path));
    return names;
}

std::wstring TFakeFiles::ProfileString(const std::wstring& path, const std::wstring& section,
                                       const std::wstring& key, const std::wstring& fallback) const {
    const std::string ascii = Text(path);
    const std::wstring text(ascii.begin(), ascii.end());
    TLineReader lines(text);
    bool inSection = false;
    for (std::wstring_view line; lines.Next(line);) {
        line = Trim(line);
        if (line.starts_with(L'[')) {
            inSection = SameText(Trim(line.substr(1, line.find(L']') - 1)), section);
        } else if (const std::size_t equals = line.find(L'=');
                   inSection && equals != std::wstring_view::npos) {
            if (SameText(Trim(line.substr(0, equals)), key))
                return std::wstring(Unquoted(Trim(line.substr(equals + 1))));
        }
    }
    return fallback;
}

const TFakeFiles::TFile* TFakeFiles::Find(std::wstring_view path) const {
    const auto file =
        std::ranges::find_if(FFiles, [&](const TFile& each) { return SameText(each.Path, path); });
    return file == FFiles.end() ? nullptr : &*file;
}

bool TFakeFiles::HasFolder(std::wstring_view folder) const {
    // A folder has the folders above it too.
    return std::ranges::any_of(FFolders, [&](std::wstring_view each) {
        const std::wstring_view head = each.substr(0, folder.size());
        return SameText(head, folder) && (each.size() == folder.size() || each[folder.size()] == L'\\');
    });
}
