// What the programs that measure share: a clock and medians.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

class TStopwatch {
  public:
    [[nodiscard]] double Milliseconds() const {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - FStart).count();
    }

  private:
    std::chrono::steady_clock::time_point FStart = std::chrono::steady_clock::now();
};

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
