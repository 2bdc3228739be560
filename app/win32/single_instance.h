// One running program per session: a second one brings the first one's window forward and ends.
#pragma once

#include <windows.h>

#include <string>

class TSingleInstance {
  public:
    /// Sent to the running window by a second instance: it restores itself and comes to the front.
    static constexpr UINT kComeForward = WM_USER + 156;

    /// Claims to be the one instance.
    TSingleInstance();
    ~TSingleInstance();
    TSingleInstance(const TSingleInstance&) = delete;
    TSingleInstance& operator=(const TSingleInstance&) = delete;

    /// Whether another instance was there first.
    [[nodiscard]] bool AlreadyRunning() const { return FAlreadyRunning; }

    /// Brings the other instance's window, if there is one, to the front, and hands it the file that is to be opened unless
    /// that is empty; gives up after a while when it hangs.
    static void BringOtherForward(const wchar_t* windowClass, const std::wstring& file);

  private:
    HANDLE FMutex;
    bool FAlreadyRunning;
};
