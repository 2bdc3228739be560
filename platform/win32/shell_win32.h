// The shell and the session of Windows.
#pragma once

#include "platform/shell.h"

class TWin32Shell : public TShell {
  public:
    void NotifyChange(std::uint32_t event, std::uint32_t flags) override;
    void BroadcastSettingChange(const std::wstring& area) override;
    [[nodiscard]] std::wstring FolderPath(TSpecialFolder folder) const override;
    [[nodiscard]] bool OpenFolder(const std::wstring& path) override;
    void RestartExplorer() override;
    void RestartWindows() override;
    void ClearBrowsingHistory() override;
    void DebugOutput(const std::wstring& text) override;
};
