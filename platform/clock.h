// Time, and giving the user interface time.
#pragma once

#include <cstdint>
#include <string>

/// Local wall-clock time of day.
struct TTimeOfDay {
    int Hour = 0;
    int Minute = 0;
    int Second = 0;
    int Millisecond = 0;
};

class TClock {
  public:
    virtual ~TClock() = default;

    [[nodiscard]] virtual TTimeOfDay TimeOfDay() const = 0;

    /// The current local date and time as the user's locale writes them.
    [[nodiscard]] virtual std::wstring DateTimeText() const = 0;

    /// Blocks the thread.
    virtual void Sleep(std::uint32_t milliseconds) = 0;

    /// Handles the window messages that are waiting, so that the window stays alive during a long operation. Costs next to
    /// nothing unless a few milliseconds have passed since it last did.
    virtual void ProcessMessages() = 0;
};
