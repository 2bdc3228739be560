// The message box and the common dialogs of Windows.
#pragma once

#include <array>

#include "ui/dialogs.h"

/// Every dialog belongs to the active window, which waits for it.
class TWin32Dialogs : public TDialogs {
  public:
    TWin32Dialogs();

    TMessageAnswer Message(const std::wstring& title, const std::wstring& text, TMessageButtons buttons,
                           TMessageIcon icon) override;
    [[nodiscard]] std::optional<std::wstring> OpenFile(const std::wstring& filter) override;
    [[nodiscard]] std::optional<TColor> PickColor(TColor initial) override;

  private:
    /// The colours that the user mixed, offered again at the next choice; of the type of a COLORREF.
    std::array<unsigned long, 16> FCustomColors;
};
