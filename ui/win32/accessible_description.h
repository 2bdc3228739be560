// What screen readers say of windows besides what Windows itself knows of them. Without the service for it, which Windows 2000
// may lack, they say no more than that.
#pragma once

#include <windows.h>

#include <map>
#include <string>

struct IAccPropServices;

/// What is said of a window.
struct TSpoken {
    std::wstring Name;  ///< of one that shows none
    std::wstring Description;
    bool IsAlert = false;  ///< it speaks without getting the focus

    bool operator==(const TSpoken&) const = default;
};

class TAccessibleDescriptions {
  public:
    TAccessibleDescriptions() = default;
    ~TAccessibleDescriptions();
    TAccessibleDescriptions(const TAccessibleDescriptions&) = delete;
    TAccessibleDescriptions& operator=(const TAccessibleDescriptions&) = delete;

    /// Answers somebody who asks for the window: only a screen reader does, and for nobody else the service is started.
    void Tell(HWND window, const TSpoken& spoken);
    /// Another description than before is to be said.
    void Change(HWND window, const TSpoken& spoken);
    /// The window is about to go.
    void Forget(HWND window);

  private:
    IAccPropServices* Service();

    bool FIsAsked = false;
    HRESULT FInitialised = E_FAIL;
    IAccPropServices* FService = nullptr;
    std::map<HWND, TSpoken> FTold;
};
