#include "ui/win32/late_bound.h"

#include <string>

FARPROC FindSystemFunction(const wchar_t* library, const char* function) {
    wchar_t folder[MAX_PATH];
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return nullptr;
    const HMODULE module = LoadLibraryW((std::wstring(folder, length) + L"\\" + library).c_str());
    return module == nullptr ? nullptr : GetProcAddress(module, function);
}

namespace {

/// The function as a pointer of its real type.
template <typename TFunction>
TFunction Find(const wchar_t* library, const char* function) {
    // By way of void (*)(): the type of FARPROC has nothing to do with the function's.
    return reinterpret_cast<TFunction>(reinterpret_cast<void (*)()>(FindSystemFunction(library, function)));
}

}  // namespace

void EnableThemeTabTexture(HWND dialog) {
    constexpr DWORD kEnableTab = 6;  // ETDT_ENABLETAB
    static const auto kFunction =
        Find<HRESULT(WINAPI*)(HWND, DWORD)>(L"uxtheme.dll", "EnableThemeDialogTexture");
    if (kFunction != nullptr) kFunction(dialog, kEnableTab);
}
