// The file that the program is asked to open: named in its command line, or handed over by a second instance.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

/// The full path of the file that the command line names first; empty without one.
[[nodiscard]] std::wstring FileArgument();

/// Hands a full path to the window of another instance; gives up after a while when it hangs.
void HandOverFile(HWND window, const std::wstring& path);

/// The requests that come to the main window. The latest counts.
class TFileRequests {
  public:
    /// Opens a file, with dialogs perhaps, while nobody waits for it.
    std::function<void(const std::wstring& path)> OpenFile = [](const std::wstring& /*path*/) {};

    /// Opens the file once the window handles messages again.
    void Add(HWND window, std::wstring path);

    /// Takes what a second instance hands over, and the message of Add; true when it was one of them. What anybody else
    /// may send is ignored, and so is a request while the window waits for a dialog.
    bool HandleMessage(HWND window, UINT message, LPARAM lParam);

  private:
    std::wstring FPath;  ///< empty when there is none to open
};
