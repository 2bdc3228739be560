// Time, and giving the user interface time.
#pragma once

#include <cstdint>
#include <string>

/// Local wall-clock date and time.
struct TLocalTime {
    int Year = 0;
    int Month = 0;  ///< from 1
    int Day = 0;    ///< from 1
    int Hour = 0;
    int Minute = 0;
    int Second = 0;
    int Millisecond = 0;
};

class TClock {
  public:
    virtual ~TClock() = default;

    [[nodiscard]] virtual TLocalTime LocalTime() const = 0;

    /// The current local date and time as the user's locale writes them.
    [[nodiscard]] virtual std::wstring DateTimeText() const = 0;

    /// Blocks the thread.
    virtual void Sleep(std::uint32_t milliseconds) = 0;

    /// Handles the window messages that are waiting, so that the window stays alive during a long operation. Costs next to
    /// nothing unless a few milliseconds have passed since it last did.
    virtual void ProcessMessages() = 0;
};
