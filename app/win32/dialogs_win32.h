// The message box and the common dialogs of Windows.
#pragma once

#include <array>
#include <set>

#include "platform/dialogs.h"

/// A form that has no window, or none any more, asks nothing, and so does one that waits for a dialog already: the answer
/// is then that of a user who declines.
class TWin32Dialogs : public TDialogs {
  public:
    TWin32Dialogs();

    TMessageAnswer Message(const TForm& asker, const std::wstring& text, TMessageButtons buttons,
                           TMessageIcon icon) override;
    [[nodiscard]] std::optional<std::wstring> OpenFile(const TForm& asker,
                                                       const std::wstring& filter) override;
    [[nodiscard]] std::optional<std::wstring> SaveFile(const TForm& asker, const std::wstring& filter,
                                                       const std::wstring& suggestedName) override;
    [[nodiscard]] std::optional<TColor> PickColor(const TForm& asker, TColor initial) override;

  private:
    /// Whose dialogs are being shown.
    std::set<const TForm*> FAskers;
    /// The colours that the user mixed, offered again at the next choice; of the type of a COLORREF.
    std::array<unsigned long, 16> FCustomColors;
};
