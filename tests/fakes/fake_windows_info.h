// A Windows of any kind.
#pragma once

#include <map>
#include <unordered_map>

#include "platform/text.h"
#include "platform/windows_info.h"

/// What the version resource of a file holds, by path ("\VarFileInfo\Translation").
struct TFakeVersionResource : TVersionResource {
    std::map<std::wstring, std::wstring> Texts;
    std::map<std::wstring, std::vector<std::uint8_t>> Blocks;

    [[nodiscard]] std::optional<std::wstring> Text(const std::wstring& path) const override {
        return Texts.contains(path) ? std::optional(Texts.at(path)) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Block(const std::wstring& path) const override {
        return Blocks.contains(path) ? std::optional(Blocks.at(path)) : std::nullopt;
    }
};

class TFakeWindowsInfo : public TWindowsInfo {
  public:
    void SetVersion(const TVersionNumbers& version) { FVersion = version; }
    void SetWow64(bool wow64) { FWow64 = wow64; }
    void SetProgramFile(const std::wstring& file) { FProgramFile = file; }
    void PutVersionResource(const std::wstring& file, const TFakeVersionResource& resource) {
        FResources[file] = resource;
    }

    [[nodiscard]] TVersionNumbers Version() const override { return FVersion; }
    [[nodiscard]] bool IsWow64() const override { return FWow64; }
    [[nodiscard]] std::wstring ProgramFile() const override { return FProgramFile; }
    [[nodiscard]] std::unique_ptr<TVersionResource> OpenVersionResource(
        const std::wstring& file) const override {
        if (!FResources.contains(file)) return nullptr;
        return std::make_unique<TFakeVersionResource>(FResources.at(file));
    }
    /// The code page is Latin-1.
    [[nodiscard]] std::wstring FromAnsi(std::span<const std::uint8_t> bytes) const override {
        return {bytes.begin(), bytes.end()};
    }
    [[nodiscard]] std::vector<std::uint8_t> ToAnsi(std::wstring_view text) const override {
        std::vector<std::uint8_t> bytes;
        for (const wchar_t c : text)
            bytes.push_back(static_cast<std::uint32_t>(c) < 0x100 ? static_cast<std::uint8_t>(c) : '?');
        return bytes;
    }

  private:
    TVersionNumbers FVersion{.PlatformId = 2, .Major = 6, .Minor = 1, .Build = 7601};
    bool FWow64 = false;
    std::wstring FProgramFile = L"C:\\Program Files\\Quilltune\\Quilltune.exe";
    std::unordered_map<std::wstring, TFakeVersionResource, TTextHash, TTextEqual> FResources;
};
