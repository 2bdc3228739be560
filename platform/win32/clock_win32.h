// The time of Windows and the thread's message queue.
#pragma once

#include "platform/clock.h"

class TWin32Clock : public TClock {
  public:
    [[nodiscard]] TLocalTime LocalTime() const override;
    [[nodiscard]] std::wstring DateTimeText() const override;
    void Sleep(std::uint32_t milliseconds) override;
    /// Does nothing right after it has looked for messages. Stops at the message that ends the program, and leaves it to the
    /// main loop.
    void ProcessMessages() override;

  private:
    std::uint32_t FLastRound = 0;  ///< when it ended, as GetTickCount counts
};
