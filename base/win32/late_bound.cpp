#include "base/win32/late_bound.h"

#include <delayimp.h>
#include <restartmanager.h>

#include <algorithm>
#include <bit>
#include <cwchar>
#include <string>

#include "base/win32/handle.h"

namespace {

/// Loads a library of the system folder, and what it imports from there as well; null when there is none.
HMODULE LoadSystemLibrary(const wchar_t* name) {
    wchar_t path[2 * MAX_PATH];  // asks for no memory, which could fail
    const UINT length = GetSystemDirectoryW(path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return nullptr;
    path[length] = L'\\';
    std::copy_n(name, std::wcslen(name) + 1, path + length + 1);
    return LoadLibraryExW(path, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

/// A library of the system folder, loaded as long as the object lives.
class TSystemLibrary {
  public:
    explicit TSystemLibrary(const wchar_t* name) : FLibrary(LoadSystemLibrary(name)) {}

    /// The function of that name; null when there is none.
    template <typename TFunction>
    [[nodiscard]] TFunction* Find(const char* name) const {
        return FLibrary.IsValid() ? std::bit_cast<TFunction*>(GetProcAddress(FLibrary.Get(), name)) : nullptr;
    }

  private:
    TLibraryHandle FLibrary;
};

/// Called by the binding of late libraries, before it loads one. Where SetDefaultDllDirectories is missing, and sometimes
/// where it is not (Wine, for what its libraries bind late), the program's folder is still searched for what Windows' own
/// libraries ask for. A library that is loaded is not searched for again, so those are loaded here, for good. The registry's
/// asks for none.
FARPROC WINAPI BeforeLoading(unsigned event, DelayLoadInfo* library) {
    static bool loaded = false;
    if (event != dliNotePreLoadLibrary || loaded || lstrcmpiA(library->szDll, "advapi32.dll") == 0)
        return nullptr;
    loaded = true;
    for (const wchar_t* name : {L"ole32.dll", L"uxtheme.dll", L"msimg32.dll", L"imm32.dll", L"version.dll"})
        LoadSystemLibrary(name);
    return nullptr;
}

}  // namespace

void SearchSystemFolderOnly() {
    constexpr DWORD kSystemFolder = 0x800;  // LOAD_LIBRARY_SEARCH_SYSTEM32
    const TSystemLibrary kernel(L"kernel32.dll");
    const auto setFolders = kernel.Find<BOOL WINAPI(DWORD)>("SetDefaultDllDirectories");
    const auto setFolder = kernel.Find<BOOL WINAPI(const wchar_t*)>("SetDllDirectoryW");
    if (setFolders != nullptr)
        setFolders(kSystemFolder);
    else if (setFolder != nullptr)
        setFolder(L"");  // no more than the current folder
    __pfnDliNotifyHook2 = BeforeLoading;
}

void LoadForCommonDialogs() { LoadSystemLibrary(L"winspool.drv"); }

bool ProcessIsWow64() {
    const TSystemLibrary kernel(L"kernel32.dll");
    const auto isWow64Process = kernel.Find<BOOL WINAPI(HANDLE, BOOL*)>("IsWow64Process");
    BOOL wow64 = FALSE;
    return isWow64Process != nullptr && isWow64Process(GetCurrentProcess(), &wow64) && wow64;
}

bool GetTrueVersion(OSVERSIONINFOEXW& version) {
    const TSystemLibrary native(L"ntdll.dll");
    const auto getVersion = native.Find<LONG WINAPI(OSVERSIONINFOEXW*)>("RtlGetVersion");
    version = {};
    version.dwOSVersionInfoSize = sizeof(version);
    return getVersion != nullptr && getVersion(&version) == 0;
}

LONG DeleteKeyInView(HKEY parent, const wchar_t* name, REGSAM view) {
    const TSystemLibrary advapi(L"advapi32.dll");
    const auto deleteKeyEx = advapi.Find<LONG WINAPI(HKEY, const wchar_t*, REGSAM, DWORD)>("RegDeleteKeyExW");
    return deleteKeyEx != nullptr ? deleteKeyEx(parent, name, view, 0) : RegDeleteKeyW(parent, name);
}

void EnableThemeTabTexture(HWND dialog) {
    constexpr DWORD kEnableTab = 6;  // ETDT_ENABLETAB
    const TSystemLibrary theme(L"uxtheme.dll");
    const auto enableTexture = theme.Find<HRESULT WINAPI(HWND, DWORD)>("EnableThemeDialogTexture");
    if (enableTexture != nullptr) enableTexture(dialog, kEnableTab);
}

int DotsPerInchOf(HWND window) {
    const TSystemLibrary user(L"user32.dll");
    const auto getDpi = user.Find<UINT WINAPI(HWND)>("GetDpiForWindow");
    const UINT dotsPerInch = getDpi != nullptr && window != nullptr ? getDpi(window) : 0;
    if (dotsPerInch != 0) return static_cast<int>(dotsPerInch);
    const HDC screen = GetDC(nullptr);
    const int ofAll = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return ofAll;
}

NONCLIENTMETRICSW WindowMetricsFor(int dotsPerInch) {
    const TSystemLibrary user(L"user32.dll");
    const auto getFor = user.Find<BOOL WINAPI(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    const bool known = getFor != nullptr && getFor(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                                                   static_cast<UINT>(dotsPerInch));
    if (!known) SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics;
}

void AddFrame(RECT& area, HWND window, int dotsPerInch) {
    const TSystemLibrary user(L"user32.dll");
    const auto adjust = user.Find<BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
    const auto extendedStyle = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE));
    if (adjust == nullptr || !adjust(&area, style, FALSE, extendedStyle, static_cast<UINT>(dotsPerInch)))
        AdjustWindowRectEx(&area, style, FALSE, extendedStyle);
}

void RestartProcess(DWORD processId) {
    const TWaitableHandle process(OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, processId));
    RM_UNIQUE_PROCESS unique{processId, {}};
    FILETIME other{};
    if (!process.IsValid() ||
        !GetProcessTimes(process.Get(), &unique.ProcessStartTime, &other, &other, &other))
        return;
    const TSystemLibrary manager(L"rstrtmgr.dll");
    const auto start = manager.Find<DWORD WINAPI(DWORD*, DWORD, wchar_t*)>("RmStartSession");
    const auto add = manager.Find<DWORD WINAPI(DWORD, UINT, const wchar_t**, UINT, RM_UNIQUE_PROCESS*, UINT,
                                               const wchar_t**)>("RmRegisterResources");
    const auto end = manager.Find<DWORD WINAPI(DWORD, ULONG, RM_WRITE_STATUS_CALLBACK)>("RmShutdown");
    const auto again = manager.Find<DWORD WINAPI(DWORD, DWORD, RM_WRITE_STATUS_CALLBACK)>("RmRestart");
    const auto finish = manager.Find<DWORD WINAPI(DWORD)>("RmEndSession");
    if (start == nullptr || add == nullptr || end == nullptr || again == nullptr || finish == nullptr) return;
    DWORD session = 0;
    wchar_t key[CCH_RM_SESSION_KEY + 1]{};
    if (start(&session, 0, key) != ERROR_SUCCESS) return;
    if (add(session, 0, nullptr, 1, &unique, 0, nullptr) == ERROR_SUCCESS) {
        // Whatever has ended comes back, even if not all did.
        (void)end(session, 0, nullptr);
        (void)again(session, 0, nullptr);
    }
    finish(session);
}

std::wstring FinalPathOf(HANDLE file) {
    const TSystemLibrary kernel(L"kernel32.dll");
    const auto getFinalPath =
        kernel.Find<DWORD WINAPI(HANDLE, wchar_t*, DWORD, DWORD)>("GetFinalPathNameByHandleW");
    if (getFinalPath == nullptr) return {};
    constexpr DWORD kLongest = 0x8000;
    std::wstring path(kLongest, L'\0');
    const DWORD length = getFinalPath(file, path.data(), kLongest, 0);
    path.resize(length < kLongest ? length : 0);
    return path;
}

PVOID AddFirstHandler(PVECTORED_EXCEPTION_HANDLER handler) {
    const TSystemLibrary kernel(L"kernel32.dll");
    const auto add =
        kernel.Find<PVOID WINAPI(ULONG, PVECTORED_EXCEPTION_HANDLER)>("AddVectoredExceptionHandler");
    return add != nullptr ? add(1, handler) : nullptr;
}

void RemoveFirstHandler(PVOID added) {
    const TSystemLibrary kernel(L"kernel32.dll");
    const auto remove = kernel.Find<ULONG WINAPI(PVOID)>("RemoveVectoredExceptionHandler");
    if (added != nullptr && remove != nullptr) remove(added);
}
