// Everything outside the program, in memory.
#pragma once

#include "platform/system.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_dialogs.h"
#include "tests/fakes/fake_files.h"
#include "tests/fakes/fake_parameters.h"
#include "tests/fakes/fake_registry.h"
#include "tests/fakes/fake_service_manager.h"
#include "tests/fakes/fake_shell.h"
#include "tests/fakes/fake_windows_info.h"

/// The fakes and, in `System`, what the program sees of them.
struct TFakeSystem {
    TFakeRegistry Registry;
    TFakeParameters Parameters;
    TFakeServiceManager Services;
    TFakeShell Shell;
    TFakeFiles Files;
    TFakeWindowsInfo Windows;
    TFakeDialogs Dialogs;
    TFakeClock Clock;
    TSystem System{Registry, Parameters, Services, Shell, Files, Windows, Dialogs, Clock};

    TFakeSystem() = default;
    TFakeSystem(const TFakeSystem&) = delete;  // System refers to the members
    TFakeSystem& operator=(const TFakeSystem&) = delete;
};
