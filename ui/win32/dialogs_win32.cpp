#include "ui/win32/dialogs_win32.h"

#include <windows.h>
#include <commdlg.h>

#include <algorithm>

namespace {

/// Characters for the path of the chosen file; the longest that Windows 2000 can open.
constexpr DWORD kLongestPath = 32768;

}  // namespace

TWin32Dialogs::TWin32Dialogs() {
    constexpr COLORREF kWhite = 0xFFFFFF;
    FCustomColors.fill(kWhite);
}

TMessageAnswer TWin32Dialogs::Message(const std::wstring& title, const std::wstring& text,
                                      TMessageButtons buttons, TMessageIcon icon) {
    const UINT style = (buttons == TMessageButtons::YesNo ? MB_YESNO : MB_OK) |
                       (icon == TMessageIcon::Question ? MB_ICONQUESTION : 0U);
    const int button = MessageBoxW(GetActiveWindow(), text.c_str(), title.c_str(), style);
    if (buttons == TMessageButtons::Ok) return TMessageAnswer::Ok;
    return button == IDYES ? TMessageAnswer::Yes : TMessageAnswer::No;
}

std::optional<std::wstring> TWin32Dialogs::OpenFile(const std::wstring& filter) {
    // Windows wants NUL between the fields, and two at the end.
    std::wstring fields = filter + L'|';
    std::ranges::replace(fields, L'|', L'\0');
    std::wstring path(kLongestPath, L'\0');
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = GetActiveWindow();
    dialog.lpstrFilter = fields.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = kLongestPath;
    dialog.Flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR;
    if (!GetOpenFileNameW(&dialog)) return std::nullopt;
    return std::wstring(path.c_str());
}

std::optional<TColor> TWin32Dialogs::PickColor(TColor initial) {
    CHOOSECOLORW dialog{};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = GetActiveWindow();
    dialog.rgbResult = initial;
    dialog.lpCustColors = FCustomColors.data();
    dialog.Flags = CC_FULLOPEN | CC_RGBINIT | CC_ANYCOLOR;
    if (!ChooseColorW(&dialog)) return std::nullopt;
    return dialog.rgbResult;
}
