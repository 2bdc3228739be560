// Files in memory. A path is a folder, a backslash and a name; its case does not matter.
#pragma once

#include <algorithm>
#include <string_view>

#include "platform/files.h"
#include "platform/name_pattern.h"
#include "platform/text.h"

class TFakeFiles : public TFiles {
  public:
    /// Puts a file there, and its folder with it.
    void Put(const std::wstring& path, std::vector<std::uint8_t> bytes) {
        Remove(path);
        FFiles.emplace_back(path, std::move(bytes));
        PutFolder(FolderOf(path));
    }
    /// Put for text that is ASCII.
    void PutText(const std::wstring& path, std::string_view text) { Put(path, {text.begin(), text.end()}); }
    /// Makes a folder; files can only be replaced in a folder that exists.
    void PutFolder(const std::wstring& folder) { FFolders.push_back(folder + L'\\'); }
    void Remove(const std::wstring& path) {
        std::erase_if(FFiles, [&](const TFile& file) { return SameText(file.first, path); });
    }
    /// The file's bytes as ASCII text, empty when there is no such file.
    [[nodiscard]] std::string Text(const std::wstring& path) const {
        const TFile* file = Find(path);
        return file == nullptr ? std::string() : std::string(file->second.begin(), file->second.end());
    }

    void PutDrives(std::vector<TDrive> drives) { FDrives = std::move(drives); }

    /// Paths given to Replace, with or without success.
    [[nodiscard]] const std::vector<std::wstring>& Replaced() const { return FReplaced; }
    /// The n-th Replace, Append or CreateNew from now fails; 1 is the next one.
    void FailReplace(int n) { FReplacesToFailure = n; }
    /// The file is there but cannot be read.
    void Lock(const std::wstring& path) { FLocked.push_back(path); }
    void Unlock() { FLocked.clear(); }
    void MakeReadOnly(const std::wstring& path) { FReadOnly.push_back(path); }

    [[nodiscard]] bool Exists(const std::wstring& path) const override { return Find(path) != nullptr; }
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Read(const std::wstring& path) const override {
        const TFile* file = Find(path);
        return file == nullptr || IsAmong(FLocked, path) ? std::nullopt : std::optional(file->second);
    }
    [[nodiscard]] std::optional<std::uint64_t> Size(const std::wstring& path) const override {
        const TFile* file = Find(path);
        return file == nullptr ? std::nullopt : std::optional<std::uint64_t>(file->second.size());
    }
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> ReadPart(const std::wstring& path,
                                                                    std::uint64_t offset,
                                                                    std::size_t count) const override {
        auto bytes = Read(path);
        if (!bytes) return bytes;
        const auto begin =
            bytes->begin() + static_cast<std::ptrdiff_t>(std::min<std::uint64_t>(offset, bytes->size()));
        const auto rest = static_cast<std::size_t>(bytes->end() - begin);
        return std::vector(begin, begin + static_cast<std::ptrdiff_t>(std::min(count, rest)));
    }
    [[nodiscard]] bool Append(const std::wstring& path, const std::vector<std::uint8_t>& bytes) override {
        const TFile* file = Find(path);
        std::vector<std::uint8_t> all = file == nullptr ? std::vector<std::uint8_t>() : file->second;
        all.insert(all.end(), bytes.begin(), bytes.end());
        return Write(path, all);
    }
    [[nodiscard]] bool Replace(const std::wstring& path, const std::vector<std::uint8_t>& bytes) override {
        FReplaced.push_back(path);
        return Write(path, bytes);
    }
    [[nodiscard]] bool CreateNew(const std::wstring& path, const std::vector<std::uint8_t>& bytes) override {
        return !Exists(path) && Write(path, bytes);
    }
    [[nodiscard]] bool Delete(const std::wstring& path) override {
        if (!Exists(path) || IsAmong(FLocked, path) || IsAmong(FReadOnly, path)) return false;
        Remove(path);
        return true;
    }
    [[nodiscard]] bool CreateFolder(const std::wstring& path) override {
        for (std::wstring above = path; above.find(L'\\') != std::wstring::npos; above = FolderOf(above))
            if (Exists(above)) return false;
        if (!path.empty()) PutFolder(path);
        return !path.empty();
    }
    [[nodiscard]] std::vector<std::wstring> List(const std::wstring& folder,
                                                 const std::wstring& pattern) const override {
        std::vector<std::wstring> names;
        for (const auto& [path, bytes] : FFiles) {
            const std::wstring name = path.substr(path.rfind(L'\\') + 1);
            if (SameText(FolderOf(path), folder) && MatchesPattern(name, pattern)) names.push_back(name);
        }
        return names;
    }
    /// The file must be ASCII.
    [[nodiscard]] std::wstring ProfileString(const std::wstring& path, const std::wstring& section,
                                             const std::wstring& key,
                                             const std::wstring& fallback) const override {
        const std::string ascii = Text(path);
        const std::wstring text(ascii.begin(), ascii.end());
        TLineReader lines(text);
        bool inSection = false;
        for (std::wstring_view line; lines.Next(line);) {
            line = Trim(line);
            const std::size_t equals = std::min(line.find(L'='), line.size());
            if (line.starts_with(L'[')) {
                inSection = SameText(Trim(line.substr(1, line.find(L']') - 1)), section);
            } else if (inSection && equals < line.size() && SameText(Trim(line.substr(0, equals)), key)) {
                const std::wstring_view value = Trim(line.substr(equals + 1));
                // Windows takes a pair of quotes off.
                const bool quoted = value.size() > 1 && value.front() == L'"' && value.back() == L'"';
                return std::wstring(quoted ? value.substr(1, value.size() - 2) : value);
            }
        }
        return fallback;
    }

    [[nodiscard]] std::vector<TDrive> Drives() const override { return FDrives; }

  private:
    using TFile = std::pair<std::wstring, std::vector<std::uint8_t>>;

    static bool IsAmong(const std::vector<std::wstring>& paths, const std::wstring& path) {
        return std::ranges::any_of(paths, [&](const std::wstring& each) { return SameText(each, path); });
    }
    static std::wstring FolderOf(const std::wstring& path) {
        return path.substr(0, std::min(path.rfind(L'\\'), path.size()));
    }
    bool Write(const std::wstring& path, const std::vector<std::uint8_t>& bytes) {
        const bool fails = FReplacesToFailure > 0 && --FReplacesToFailure == 0;
        if (fails || !HasFolder(FolderOf(path)) || HasFolder(path) || IsAmong(FReadOnly, path)) return false;
        Put(path, bytes);
        return true;
    }
    [[nodiscard]] const TFile* Find(const std::wstring& path) const {
        const auto file =
            std::ranges::find_if(FFiles, [&](const TFile& each) { return SameText(each.first, path); });
        return file == FFiles.end() ? nullptr : &*file;
    }
    /// A folder has the folders above it too.
    [[nodiscard]] bool HasFolder(const std::wstring& folder) const {
        return std::ranges::any_of(FFolders, [head = folder + L'\\'](const std::wstring& each) {
            return SameText(each.substr(0, head.size()), head);
        });
    }

    std::vector<TDrive> FDrives{{L'C', TDriveKind::Fixed, L"System"}};
    std::vector<TFile> FFiles;
    std::vector<std::wstring> FFolders;  ///< each with a backslash at its end
    std::vector<std::wstring> FLocked;
    std::vector<std::wstring> FReadOnly;
    std::vector<std::wstring> FReplaced;
    int FReplacesToFailure = 0;  ///< 0 = none will fail
};
