#include "platform/win32/shell_win32.h"

#include <windows.h>
#include <shlobj.h>
#include <urlhist.h>

#include "base/win32/handle.h"
#include "base/win32/late_bound.h"

namespace {

void EnableShutdownPrivilege() {
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &opened)) return;
    const TTokenHandle token(opened);
    TOKEN_PRIVILEGES privileges{};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    if (LookupPrivilegeValueW(nullptr, SE_SHUTDOWN_NAME, &privileges.Privileges[0].Luid))
        AdjustTokenPrivileges(token.Get(), FALSE, &privileges, 0, nullptr, nullptr);
}

}  // namespace

void TWin32Shell::NotifyChange(std::uint32_t event, std::uint32_t flags) {
    SHChangeNotify(static_cast<LONG>(event), flags, nullptr, nullptr);
}

void TWin32Shell::BroadcastSettingChange(const std::wstring& area) {
    constexpr UINT kMilliseconds = 200;  // for each window
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(area.c_str()),
                        SMTO_ABORTIFHUNG, kMilliseconds, &answer);
}

std::wstring TWin32Shell::FolderPath(TSpecialFolder folder) const {
    wchar_t buffer[MAX_PATH + 1]{};
    if (!SHGetSpecialFolderPathW(nullptr, buffer, static_cast<int>(folder), FALSE)) return {};
    std::wstring path = buffer;
    while (path.ends_with(L'\\')) path.pop_back();
    return path;
}

bool TWin32Shell::OpenFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return false;
    const std::wstring folder = path + L'\\';  // Windows would run a program of that name
    SHELLEXECUTEINFOW what{};
    what.cbSize = sizeof what;
    what.fMask = SEE_MASK_FLAG_NO_UI;
    what.lpVerb = L"open";
    what.lpFile = folder.c_str();
    what.nShow = SW_SHOWNORMAL;
    const HRESULT initialised = CoInitialize(nullptr);
    const bool isOpen = ShellExecuteExW(&what) != FALSE;
    if (SUCCEEDED(initialised)) CoUninitialize();
    return isOpen;
}

void TWin32Shell::RestartExplorer() {
    DWORD explorer = 0;
    if (const HWND desktop = GetShellWindow()) GetWindowThreadProcessId(desktop, &explorer);
    if (explorer != 0) RestartProcess(explorer);
}

void TWin32Shell::RestartWindows() {
    EnableShutdownPrivilege();
    ExitWindowsEx(EWX_REBOOT, 0);
}

void TWin32Shell::ClearBrowsingHistory() {
    constexpr CLSID kUrlHistory{// CLSID_CUrlHistory
                                0x3C374A40,
                                0xBAE4,
                                0x11CF,
                                {0xBF, 0x7D, 0x00, 0xAA, 0x00, 0x69, 0x46, 0xEE}};
    const HRESULT initialised = CoInitialize(nullptr);
    IUrlHistoryStg2* history = nullptr;
    if (SUCCEEDED(CoCreateInstance(kUrlHistory, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IUrlHistoryStg2),
                                   reinterpret_cast<void**>(&history)))) {
        history->ClearHistory();
        history->Release();
    }
    if (SUCCEEDED(initialised)) CoUninitialize();
}

void TWin32Shell::DebugOutput(const std::wstring& text) { OutputDebugStringW(text.c_str()); }
