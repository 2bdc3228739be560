// When each step of showing the window began. Read in a debugger; never written anywhere.
#pragma once

#include <string>
#include <vector>

#include "platform/clock.h"

class TTimingLog {
  public:
    explicit TTimingLog(const TClock& clock) : FClock(clock) {}

    /// Adds a line: the label and the time as "hh:mm:ss zzz".
    void Add(const wchar_t* label);

    [[nodiscard]] const std::vector<std::wstring>& Lines() const { return FLines; }

  private:
    const TClock& FClock;
    std::vector<std::wstring> FLines;
};
