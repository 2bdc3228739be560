// What screen readers say of a window besides its name, and the name of one that has no label. Without the service for it, which Windows 2000 may lack, they say
// no more than they did.
#pragma once

#include <windows.h>

#include <set>
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
    /// Only the first name counts.
    void SetName(HWND window, const std::wstring& text);
    void RemoveName(HWND window);

  private:
    /// Asked for at the first description.
    IAccPropServices* Service();

    bool FIsAsked = false;
    HWND FAlert = nullptr;  ///< the window that is known as an alert
    HRESULT FInitialised = E_FAIL;
    IAccPropServices* FService = nullptr;
    std::set<HWND> FNamed;
};
