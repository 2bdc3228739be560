// A clock that stands still unless somebody sleeps.
#pragma once

#include <functional>
#include <vector>

#include "platform/clock.h"

class TFakeClock : public TClock {
  public:
    void SetTime(const TTimeOfDay& time) { FTime = time; }
    void SetDateTimeText(const std::wstring& text) { FDateTimeText = text; }

    [[nodiscard]] const std::vector<std::uint32_t>& Sleeps() const { return FSleeps; }

    std::function<void()> OnProcessMessages;  ///< the messages that ProcessMessages handles

    [[nodiscard]] TTimeOfDay TimeOfDay() const override { return FTime; }
    [[nodiscard]] std::wstring DateTimeText() const override { return FDateTimeText; }
    void Sleep(std::uint32_t milliseconds) override;
    void ProcessMessages() override {
        if (OnProcessMessages) OnProcessMessages();
    }

  private:
    TTimeOfDay FTime;
    std::wstring FDateTimeText = L"01.02.2010 03:04:05";
    std::vector<std::uint32_t> FSleeps;
};
