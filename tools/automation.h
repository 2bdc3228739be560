// Drives the program's windows from another process, by the component names of their controls.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// A step that could not be done; what() says which, in UTF-8.
class TAutomationError : public std::runtime_error {
  public:
    explicit TAutomationError(const std::wstring& message);
};

/// How long a step may take, in milliseconds.
inline constexpr DWORD kPatience = 15000;

/// Asks every 10 ms until the answer is true; false when it has not been within `patience` milliseconds.
bool WaitUntil(const std::function<bool()>& condition, DWORD patience = kPatience);

[[nodiscard]] std::string Utf8(const std::wstring& text);

/// The text of a window of any process: a caption, or what stands in an edit.
[[nodiscard]] std::wstring TextOf(HWND window);
[[nodiscard]] std::wstring ClassOf(HWND window);

/// The top-level windows of that class that belong to a process (0: to any).
[[nodiscard]] std::vector<HWND> TopWindows(const wchar_t* windowClass, DWORD process);

/// A question or message on the screen.
class TMessageBox {
  public:
    explicit TMessageBox(HWND window) : FWindow(window) {}

    [[nodiscard]] std::wstring Title() const { return TextOf(FWindow); }
    [[nodiscard]] std::wstring Text() const;
    /// Whether it has a button that answers so (IDYES, IDNO, …).
    [[nodiscard]] bool Offers(int answer) const { return GetDlgItem(FWindow, answer) != nullptr; }
    /// Presses the button that answers so and waits until the box is gone.
    void Answer(int answer) const;

  private:
    HWND FWindow;
};

struct TNamedControl {
    HWND Window;
    std::wstring Name;
};

/// The program's main window, or another of its forms. Steps that cannot be done within kPatience throw
/// TAutomationError.
class TMainWindow {
  public:
    static constexpr const wchar_t* kClass = L"TQuilltune_FormMain";
    static constexpr const wchar_t* kFolderClass = L"TQuilltune_FormFolder";  ///< the desktop-icons dialog

    /// Waits for the form of that class of a process (0: of any).
    [[nodiscard]] static TMainWindow WaitFor(DWORD process, const wchar_t* windowClass = kClass);

    /// Waits until the loading panel is gone and the buttons work.
    void WaitReady() const;

    [[nodiscard]] HWND Handle() const { return FWindow; }
    [[nodiscard]] DWORD Process() const;
    [[nodiscard]] RECT Rectangle() const;

    /// Every control that carries a name, in the order of the windows.
    [[nodiscard]] std::vector<TNamedControl> Controls() const;
    /// The control of that name, spelt exactly so; waits for it.
    [[nodiscard]] HWND Find(const std::wstring& name) const;

    [[nodiscard]] std::wstring Text(const std::wstring& name) const { return TextOf(Find(name)); }
    /// Whether the control can be seen: it and all windows around it are visible.
    [[nodiscard]] bool Visible(const std::wstring& name) const { return IsWindowVisible(Find(name)); }
    [[nodiscard]] bool Enabled(const std::wstring& name) const { return IsWindowEnabled(Find(name)); }
    /// Whether a check box or radio button is checked.
    [[nodiscard]] bool Checked(const std::wstring& name) const;
    /// "checked" or "clear" for boxes and radio buttons, the chosen item for lists, the text otherwise.
    [[nodiscard]] std::wstring State(const std::wstring& name) const;

    /// Clicks a button, box or category item that a user could click: visible, enabled, no question in front.
    /// Returns when the click is handled or has put up a question.
    void Click(const std::wstring& name) const;
    /// Chooses a tab by the name of its sheet.
    void ChooseSheet(const std::wstring& sheet) const;
    /// Chooses an item of a drop-down list.
    void ChooseItem(const std::wstring& name, int index) const;
    /// What stands in the rows of a list, a text for each column.
    [[nodiscard]] std::vector<std::vector<std::wstring>> Rows(const std::wstring& name) const;
    /// Selects a row of a list and no other, and gives it the focus.
    void SelectRow(const std::wstring& name, int row) const;
    /// Types a text key by key into an edit, in place of what stands there.
    void Type(const std::wstring& name, const std::wstring& text) const;
    /// The name of the control that has the focus; empty when none has.
    [[nodiscard]] std::wstring FocusedControl() const;
    /// Presses and releases a key in the control that has the focus, or in the given one. Does not wait.
    void Press(WORD key, HWND control = nullptr) const;
    void SetFocus(const std::wstring& name) const;
    /// Strikes a key as a user does, in whatever window of the program is in front: its name, after those of the keys that
    /// are held down with it, as in shift+F6 or alt+Space. Does not wait.
    void Strike(const std::wstring& key) const;
    void Close() const;

    /// The question or message that the program shows at the moment.
    [[nodiscard]] std::optional<TMessageBox> Question() const;
    [[nodiscard]] TMessageBox WaitForQuestion() const;

  private:
    explicit TMainWindow(HWND window) : FWindow(window) {}

    [[nodiscard]] HWND Focus() const;
    /// Waits until a control can be used.
    [[nodiscard]] HWND FindUsable(const std::wstring& name) const;
    /// Delivers a message that may end in a question, and waits until the window handles messages again.
    void Deliver(HWND control, UINT message, WPARAM wParam, LPARAM lParam) const;

    HWND FWindow;
    mutable std::map<std::wstring, HWND> FFound;  ///< where the named controls were last
};
