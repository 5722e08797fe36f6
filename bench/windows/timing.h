// Taking the time of short pieces of work.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;

inline double MicrosecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

template <class Work>
double MicrosecondsOf(const Work& work) {
  const auto start = Clock::now();
  work();
  return MicrosecondsSince(start);
}

// What the work costs when nothing comes between: the lower quartile, since what disturbs a piece
// of work only ever makes it longer. `values` is not empty.
inline double Undisturbed(std::vector<double> values) {
  const auto quarter = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 4);
  std::nth_element(values.begin(), quarter, values.end());
  return *quarter;
}

}  // namespace bench
