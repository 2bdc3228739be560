// The real Windows, as the program sees it.
#pragma once

#include "platform/system.h"
#include "platform/win32/clock_win32.h"
#include "platform/win32/files_win32.h"
#include "platform/win32/registry_win32.h"
#include "platform/win32/service_manager_win32.h"
#include "platform/win32/shell_win32.h"
#include "platform/win32/system_parameters_win32.h"
#include "platform/win32/windows_info_win32.h"

/// Owns the adapters. The dialogs belong to the user interface and outlive it.
class TWin32System {
  public:
    explicit TWin32System(TDialogs& dialogs);
    TWin32System(const TWin32System&) = delete;  // the bundle refers to the members
    TWin32System& operator=(const TWin32System&) = delete;

    /// Valid as long as this object.
    [[nodiscard]] TSystem& System() { return FSystem; }

  private:
    TWin32Registry FRegistry;
    TWin32SystemParameters FParameters;
    TWin32ServiceManager FServices;
    TWin32Shell FShell;
    TWin32Files FFiles;
    TWin32WindowsInfo FWindows;
    TWin32Clock FClock;
    TSystem FSystem;
};
