// A form's own commands in the menu of its window.
#pragma once

#include <windows.h>

class TForm;

class TWindowMenu {
  public:
    explicit TWindowMenu(TForm& form) : FForm(form) {}

    void Add(HWND window);
    /// Carries out the command of a WM_SYSCOMMAND; false when it is not the form's.
    bool Press(HWND window, WPARAM command);

  private:
    void Show(HWND window) const;

    TForm& FForm;
};
