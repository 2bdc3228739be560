// Files in memory. A path is a folder, a backslash and a name; its case does not matter.
#pragma once

#include <string_view>

#include "platform/files.h"

class TFakeFiles : public TFiles {
  public:
    /// Puts a file there, and its folder with it.
    void Put(const std::wstring& path, std::vector<std::uint8_t> bytes);
    /// Put for text that is ASCII.
    void PutText(const std::wstring& path, std::string_view text) { Put(path, {text.begin(), text.end()}); }
    /// Makes an empty folder; files can only be replaced in a folder that exists.
    void PutFolder(const std::wstring& folder) { FFolders.push_back(folder); }
    void Remove(const std::wstring& path);
    /// The file's bytes as ASCII text, empty when there is no such file.
    [[nodiscard]] std::string Text(const std::wstring& path) const;

    /// Paths given to Replace, with or without success.
    [[nodiscard]] const std::vector<std::wstring>& Replaced() const { return FReplaced; }
    /// The n-th Replace from now fails; 1 is the next one.
    void FailReplace(int n) { FReplacesToFailure = n; }
    /// The file is there but cannot be read.
    void Lock(const std::wstring& path) { FLocked.push_back(path); }

    [[nodiscard]] bool Exists(const std::wstring& path) const override { return Find(path) != nullptr; }
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Read(const std::wstring& path) const override;
    [[nodiscard]] bool Replace(const std::wstring& path, const std::vector<std::uint8_t>& bytes) override;
    [[nodiscard]] std::vector<std::wstring> List(const std::wstring& folder,
                                                 const std::wstring& pattern) const override;
    /// The file must be ASCII.
    [[nodiscard]] std::wstring ProfileString(const std::wstring& path, const std::wstring& section,
                                             const std::wstring& key,
                                             const std::wstring& fallback) const override;

  private:
    struct TFile {
        std::wstring Path;
        std::vector<std::uint8_t> Bytes;
    };

    [[nodiscard]] const TFile* Find(std::wstring_view path) const;
    [[nodiscard]] bool HasFolder(std::wstring_view folder) const;

    std::vector<TFile> FFiles;
    std::vector<std::wstring> FFolders;
    std::vector<std::wstring> FLocked;
    std::vector<std::wstring> FReplaced;
    int FReplacesToFailure = 0;  ///< 0 = none will fail
};
