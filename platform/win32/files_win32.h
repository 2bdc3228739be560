// The file system of Windows.
#pragma once

#include "platform/files.h"

class TWin32Files : public TFiles {
  public:
    [[nodiscard]] bool Exists(const std::wstring& path) const override;
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Read(const std::wstring& path) const override;
    [[nodiscard]] std::optional<std::uint64_t> Size(const std::wstring& path) const override;
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> ReadPart(const std::wstring& path,
                                                                    std::uint64_t offset,
                                                                    std::size_t count) const override;
    [[nodiscard]] bool Append(const std::wstring& path, const std::vector<std::uint8_t>& bytes) override;
    [[nodiscard]] bool Replace(const std::wstring& path, const std::vector<std::uint8_t>& bytes) override;
    [[nodiscard]] bool CreateNew(const std::wstring& path, const std::vector<std::uint8_t>& bytes) override;
    [[nodiscard]] bool Delete(const std::wstring& path) override;
    [[nodiscard]] bool CreateFolder(const std::wstring& path) override;
    [[nodiscard]] std::vector<std::wstring> List(const std::wstring& folder,
                                                 const std::wstring& pattern) const override;
    [[nodiscard]] std::wstring ProfileString(const std::wstring& path, const std::wstring& section,
                                             const std::wstring& key,
                                             const std::wstring& fallback) const override;
    [[nodiscard]] std::vector<TDrive> Drives() const override;
};
