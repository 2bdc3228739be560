#include "app/timing_log.h"

#include "base/decimal.h"

void TTimingLog::Add(const wchar_t* label) {
    const TLocalTime time = FClock.LocalTime();
    FLines.push_back(label + DecimalText(time.Hour, 2) + L':' + DecimalText(time.Minute, 2) + L':' +
                     DecimalText(time.Second, 2) + L' ' + DecimalText(time.Millisecond, 3));
}
