// The parts of a form's window that a key leads through.
#pragma once

#include <windows.h>

#include <map>
#include <optional>

class TFormWindow;

class TPanes {
  public:
    explicit TPanes(TFormWindow& form) : FForm(form) {}

    /// The focus is there now.
    void Note(HWND focus);
    /// Leads the focus into the next part, or the one before, that can have it; false when there is none.
    bool Step(bool back);

  private:
    [[nodiscard]] std::optional<std::size_t> PaneOf(HWND window) const;
    /// What gets the focus in the part; null when nothing can.
    [[nodiscard]] HWND Entry(std::size_t pane) const;

    TFormWindow& FForm;
    std::map<std::size_t, HWND> FLast;  ///< had the focus last
};
