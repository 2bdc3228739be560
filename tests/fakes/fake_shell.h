// A shell that writes down what it is told.
#pragma once

#include <map>
#include <vector>

#include "platform/shell.h"

struct TShellNotification {
    std::uint32_t Event = 0;
    std::uint32_t Flags = 0;

    bool operator==(const TShellNotification&) const = default;
};

class TFakeShell : public TShell {
  public:
    void PutFolder(TSpecialFolder folder, const std::wstring& path) { FFolders[folder] = path; }

    [[nodiscard]] const std::vector<TShellNotification>& Notifications() const { return FNotifications; }
    /// The areas of the broadcasts.
    [[nodiscard]] const std::vector<std::wstring>& SettingChanges() const { return FSettingChanges; }
    std::vector<std::wstring> OpenedFolders;
    std::wstring MissingFolder;

    [[nodiscard]] int Restarts() const { return FRestarts; }
    int ExplorerRestarts = 0;
    [[nodiscard]] int HistoryClearings() const { return FHistoryClearings; }
    [[nodiscard]] const std::vector<std::wstring>& DebugTexts() const { return FDebugTexts; }

    void NotifyChange(std::uint32_t event, std::uint32_t flags) override {
        FNotifications.push_back({event, flags});
    }
    void BroadcastSettingChange(const std::wstring& area) override { FSettingChanges.push_back(area); }
    [[nodiscard]] std::wstring FolderPath(TSpecialFolder folder) const override {
        const auto path = FFolders.find(folder);
        return path == FFolders.end() ? std::wstring() : path->second;
    }
    [[nodiscard]] bool OpenFolder(const std::wstring& path) override {
        OpenedFolders.push_back(path);
        return path != MissingFolder;
    }
    void RestartExplorer() override { ++ExplorerRestarts; }
    void RestartWindows() override { ++FRestarts; }
    void ClearBrowsingHistory() override { ++FHistoryClearings; }
    void DebugOutput(const std::wstring& text) override { FDebugTexts.push_back(text); }

  private:
    std::map<TSpecialFolder, std::wstring> FFolders;
    std::vector<TShellNotification> FNotifications;
    std::vector<std::wstring> FSettingChanges;
    std::vector<std::wstring> FDebugTexts;
    int FRestarts = 0;
    int FHistoryClearings = 0;
};
