#include "tests/fakes/fake_clock.h"

void TFakeClock::Sleep(std::uint32_t milliseconds) {
    FSleeps.push_back(milliseconds);
    std::uint64_t now = milliseconds;
    now += static_cast<std::uint64_t>(((FTime.Hour * 60 + FTime.Minute) * 60 + FTime.Second) * 1000 +
                                      FTime.Millisecond);
    FTime = {.Hour = static_cast<int>(now / 3'600'000 % 24),
             .Minute = static_cast<int>(now / 60'000 % 60),
             .Second = static_cast<int>(now / 1000 % 60),
             .Millisecond = static_cast<int>(now % 1000)};
}
