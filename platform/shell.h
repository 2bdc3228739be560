// The Windows shell and session: change notifications and broadcasts, special folders, restart, debugger output.
#pragma once

#include <cstdint>
#include <string>

/// Shell folders the program asks for, with their documented CSIDL_… numbers.
enum class TSpecialFolder : int {
    AppData = 0x1A,        ///< CSIDL_APPDATA: the user's roaming application data
    CommonAppData = 0x23,  ///< CSIDL_COMMON_APPDATA: application data of all users
};

// Shell notifications, as documented for SHChangeNotify.
inline constexpr std::uint32_t kAllEvents = 0x7FFFFFFF;            // SHCNE_ALLEVENTS
inline constexpr std::uint32_t kAssociationsChanged = 0x08000000;  // SHCNE_ASSOCCHANGED
inline constexpr std::uint32_t kFlush = 0x1000;                    // SHCNF_FLUSH
inline constexpr std::uint32_t kIdList = 0x0000;                   // SHCNF_IDLIST

class TShell {
  public:
    virtual ~TShell() = default;

    /// SHChangeNotify without items; `event` is an SHCNE_… mask, `flags` SHCNF_….
    virtual void NotifyChange(std::uint32_t event, std::uint32_t flags) = 0;

    /// Tells all top-level windows by WM_SETTINGCHANGE that settings of that area changed. A window that does not answer
    /// is soon passed over.
    virtual void BroadcastSettingChange(const std::wstring& area) = 0;

    /// Path of a shell folder without trailing delimiter and without creating it; empty when unknown.
    [[nodiscard]] virtual std::wstring FolderPath(TSpecialFolder folder) const = 0;

    /// Shows a folder to the user. False, and nothing is shown, when there is no such folder.
    [[nodiscard]] virtual bool OpenFolder(const std::wstring& path) = 0;

    /// Ends Explorer gently and starts it again, by the Restart Manager (since Vista). Windows without that, and an Explorer
    /// that does not want to end, are left as they are. A failure is not reported.
    virtual void RestartExplorer() = 0;

    /// Enables SeShutdownPrivilege and asks Windows to reboot. A refusal is not reported.
    virtual void RestartWindows() = 0;

    /// Clears the web browser's history of visited pages (IUrlHistoryStg2). A failure is not reported.
    virtual void ClearBrowsingHistory() = 0;

    /// OutputDebugStringW.
    virtual void DebugOutput(const std::wstring& text) = 0;
};
