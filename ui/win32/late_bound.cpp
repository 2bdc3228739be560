#include "ui/win32/late_bound.h"

#include <bit>
#include <string>

#include "ui/win32/handle.h"

namespace {

/// A library of the system folder, loaded as long as the object lives.
class TSystemLibrary {
  public:
    explicit TSystemLibrary(const wchar_t* name) {
        wchar_t folder[MAX_PATH];
        const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
        if (length == 0 || length >= MAX_PATH) return;
        const std::wstring path = std::wstring(folder, length) + L'\\' + name;
        FLibrary = TLibraryHandle(LoadLibraryW(path.c_str()));
    }

    /// The function of that name; null when there is none.
    template <typename TFunction>
    [[nodiscard]] TFunction* Find(const char* name) const {
        return FLibrary.IsValid() ? std::bit_cast<TFunction*>(GetProcAddress(FLibrary.Get(), name)) : nullptr;
    }

  private:
    TLibraryHandle FLibrary;
};

}  // namespace

bool ProcessIsWow64() {
    const TSystemLibrary kernel(L"kernel32.dll");
    const auto isWow64Process = kernel.Find<BOOL WINAPI(HANDLE, BOOL*)>("IsWow64Process");
    BOOL wow64 = FALSE;
    return isWow64Process != nullptr && isWow64Process(GetCurrentProcess(), &wow64) && wow64;
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
