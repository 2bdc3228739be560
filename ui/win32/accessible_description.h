// What screen readers say of a window besides its name. Without the service for it, which Windows 2000 may lack, they say
// no more than they did.
#pragma once

#include <windows.h>

#include <string>

struct IAccPropServices;

class TAccessibleDescriptions {
  public:
    TAccessibleDescriptions() = default;
    ~TAccessibleDescriptions();
    TAccessibleDescriptions(const TAccessibleDescriptions&) = delete;
    TAccessibleDescriptions& operator=(const TAccessibleDescriptions&) = delete;

    void Set(HWND window, const std::wstring& text);
    /// Has the text of the window said now, without its getting the focus.
    void Alert(HWND window);
    void Remove(HWND window);

  private:
    /// Asked for at the first description.
    IAccPropServices* Service();

    bool FIsAsked = false;
    HWND FAlert = nullptr;  ///< the window that is known as an alert
    HRESULT FInitialised = E_FAIL;
    IAccPropServices* FService = nullptr;
};
