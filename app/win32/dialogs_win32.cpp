#include "app/win32/dialogs_win32.h"

#include <windows.h>
#include <commdlg.h>

#include <algorithm>

#include "base/win32/late_bound.h"
#include "ui/win32/form_window.h"

namespace {

/// Characters for the path of the chosen file; the longest that Windows 2000 can open.
constexpr DWORD kLongestPath = 32768;

/// A form's turn to ask.
class TTurn {
  public:
    TTurn(std::set<const TForm*>& askers, const TForm& asker) : FAskers(askers), FAsker(asker) {
        const auto* peer = static_cast<const TFormWindow*>(asker.Peer());
        if (peer != nullptr && peer->Handle() != nullptr && askers.insert(&asker).second)
            FOwner = peer->Handle();
    }
    ~TTurn() {
        if (FOwner != nullptr) FAskers.erase(&FAsker);
    }
    TTurn(const TTurn&) = delete;
    TTurn& operator=(const TTurn&) = delete;

    /// The owner of the dialog; null when there must be none.
    [[nodiscard]] HWND Owner() const { return FOwner; }

  private:
    std::set<const TForm*>& FAskers;
    const TForm& FAsker;
    HWND FOwner = nullptr;
};

/// That of the first pattern of a filter, without its dot; empty when the pattern names none.
std::wstring FirstExtension(const std::wstring& filter) {
    const std::size_t begin = filter.find(L"|*.");
    if (begin == std::wstring::npos) return {};
    const std::wstring pattern = filter.substr(begin + 3);
    const std::wstring extension = pattern.substr(0, pattern.find_first_of(L";|"));
    return extension.find_first_of(L"*?") == std::wstring::npos ? extension : std::wstring();
}

/// Shows one of the two dialogs for a file; `extension` completes a name without one.
std::optional<std::wstring> AskFile(const TTurn& turn, const std::wstring& filter,
                                    const std::wstring& suggestedName, const std::wstring& extension,
                                    DWORD flags, BOOL(WINAPI* show)(OPENFILENAMEW*)) {
    if (turn.Owner() == nullptr) return std::nullopt;
    // Windows wants NUL between the fields, and two at the end.
    std::wstring fields = filter + L'|';
    std::ranges::replace(fields, L'|', L'\0');
    std::wstring path = suggestedName.substr(0, kLongestPath - 1);
    path.resize(kLongestPath);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = turn.Owner();
    dialog.lpstrFilter = fields.c_str();
    dialog.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = kLongestPath;
    dialog.Flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR | flags;
    LoadForCommonDialogs();
    if (!show(&dialog)) return std::nullopt;
    return std::wstring(path.c_str());
}

}  // namespace

TWin32Dialogs::TWin32Dialogs() {
    constexpr COLORREF kWhite = 0xFFFFFF;
    FCustomColors.fill(kWhite);
}

TMessageAnswer TWin32Dialogs::Message(const TForm& asker, const std::wstring& text, TMessageButtons buttons,
                                      TMessageIcon icon) {
    const UINT style = (buttons == TMessageButtons::YesNo ? MB_YESNO | MB_DEFBUTTON2 : MB_OK) |
                       (icon == TMessageIcon::Question ? MB_ICONQUESTION : 0U);
    const TTurn turn(FAskers, asker);
    const bool isYes = turn.Owner() != nullptr &&
                       MessageBoxW(turn.Owner(), text.c_str(), asker.Caption().c_str(), style) == IDYES;
    if (buttons == TMessageButtons::Ok) return TMessageAnswer::Ok;
    return isYes ? TMessageAnswer::Yes : TMessageAnswer::No;
}

std::optional<std::wstring> TWin32Dialogs::OpenFile(const TForm& asker, const std::wstring& filter) {
    return AskFile(TTurn(FAskers, asker), filter, {}, {}, OFN_FILEMUSTEXIST, GetOpenFileNameW);
}

std::optional<std::wstring> TWin32Dialogs::SaveFile(const TForm& asker, const std::wstring& filter,
                                                    const std::wstring& suggestedName) {
    return AskFile(TTurn(FAskers, asker), filter, suggestedName, FirstExtension(filter), OFN_OVERWRITEPROMPT,
                   GetSaveFileNameW);
}

std::optional<TColor> TWin32Dialogs::PickColor(const TForm& asker, TColor initial) {
    const TTurn turn(FAskers, asker);
    if (turn.Owner() == nullptr) return std::nullopt;
    CHOOSECOLORW dialog{};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = turn.Owner();
    dialog.rgbResult = initial;
    dialog.lpCustColors = FCustomColors.data();
    dialog.Flags = CC_FULLOPEN | CC_RGBINIT | CC_ANYCOLOR;
    LoadForCommonDialogs();
    if (!ChooseColorW(&dialog)) return std::nullopt;
    return dialog.rgbResult;
}
