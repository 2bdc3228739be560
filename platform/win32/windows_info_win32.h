// What kind of Windows this is.
#pragma once

#include "platform/windows_info.h"

class TWin32WindowsInfo : public TWindowsInfo {
  public:
    [[nodiscard]] TVersionNumbers Version() const override;
    [[nodiscard]] bool IsWow64() const override;
    [[nodiscard]] std::wstring ProgramFile() const override;
    [[nodiscard]] std::unique_ptr<TVersionResource> OpenVersionResource(
        const std::wstring& file) const override;
    [[nodiscard]] std::wstring FromAnsi(std::span<const std::uint8_t> bytes) const override;
    [[nodiscard]] std::vector<std::uint8_t> ToAnsi(std::wstring_view text) const override;
};
