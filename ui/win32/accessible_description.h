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
    void Remove(HWND window);

  private:
    /// Asked for at the first description.
    IAccPropServices* Service();

    bool FIsAsked = false;
    HRESULT FInitialised = E_FAIL;
    IAccPropServices* FService = nullptr;
};
