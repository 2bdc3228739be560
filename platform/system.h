// The world outside the program, one interface for each part of it.
#pragma once

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "platform/service_manager.h"
#include "platform/shell.h"
#include "platform/system_parameters.h"
#include "platform/windows_info.h"

/// Made once in the entry point and passed down; everything it refers to outlives it.
struct TSystem {
    TRegistry& Registry;
    TSystemParameters& Parameters;
    TServiceManager& Services;
    TShell& Shell;
    TFiles& Files;
    TWindowsInfo& Windows;
    TDialogs& Dialogs;
    TClock& Clock;
};
