// Switching Windows services on and off. Failures show in the answers only; every handle is released.
#pragma once

#include <optional>

#include "platform/system.h"

/// What a service answers when it is asked for its state.
enum class TServiceAnswer : int {
    Silent = 0,   ///< it does not answer; stopped services do not
    Unknown = 1,  ///< it cannot be opened, or it answers that it is neither running nor silent
    Running = 2,
};

/// How a service is set up, and whether it runs.
struct TServiceStatus {
    TServiceStartType StartType = TServiceStartType::Manual;
    bool Runs = false;

    bool operator==(const TServiceStatus&) const = default;
};

/// Nothing when there is no such service or the user may not ask.
[[nodiscard]] std::optional<TServiceStatus> ReadServiceStatus(TSystem& system,
                                                              const std::wstring& serviceName);

/// Sets the start type to automatic, starts the service and waits while it is starting, as long as that takes;
/// window messages are handled meanwhile. True when it ends up running, false also when it ran already.
bool StartServiceByName(TSystem& system, const std::wstring& serviceName);

/// Sets the start type to disabled, stops the service and waits while it is stopping. True when it ends up
/// stopped, false also when it was stopped already.
bool StopServiceByName(TSystem& system, const std::wstring& serviceName);

/// Gives the service that start type, of any number, and starts, continues or stops it as far as necessary; what is
/// right already is left alone. A service that does not come to rest is given up after about a minute; window messages
/// are handled meanwhile. True when it is at rest and as wanted in the end.
bool RestoreService(TSystem& system, const std::wstring& serviceName, const TServiceStatus& wanted);

[[nodiscard]] TServiceAnswer QueryServiceRunning(TSystem& system, const std::wstring& serviceName);
