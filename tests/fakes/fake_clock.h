// A clock that stands still unless somebody sleeps.
#pragma once

#include <functional>

#include "platform/clock.h"

class TFakeClock : public TClock {
  public:
    std::function<void(std::uint32_t)> OnSleep = [](std::uint32_t) {};
    std::function<void()> OnProcessMessages = [] {};  ///< the messages that ProcessMessages handles
    std::function<void()> OnDateTimeText = [] {};

    [[nodiscard]] TLocalTime LocalTime() const override {
        return {.Year = 2010,
                .Month = 2,
                .Day = 1,
                .Hour = 3,
                .Minute = 4,
                .Second = static_cast<int>(FNow / 1000),
                .Millisecond = static_cast<int>(FNow % 1000)};
    }
    [[nodiscard]] std::wstring DateTimeText() const override {
        OnDateTimeText();
        return L"01.02.2010 03:04:05";
    }
    void Sleep(std::uint32_t milliseconds) override {
        FNow = (FNow + milliseconds) % 60'000;  // within the first minute of the day
        OnSleep(milliseconds);
    }
    void ProcessMessages() override { OnProcessMessages(); }

  private:
    std::uint32_t FNow = 0;
};
