#include "app/timing_log.h"

#include <cwchar>

void TTimingLog::Add(const wchar_t* label) {
    const TTimeOfDay time = FClock.TimeOfDay();
    wchar_t text[40];
    if (std::swprintf(text, std::size(text), L"%02d:%02d:%02d %03d", time.Hour, time.Minute, time.Second,
                      time.Millisecond) > 0)
        FLines.push_back(label + std::wstring(text));
}
