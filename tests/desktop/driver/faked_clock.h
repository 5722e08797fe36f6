// The date that the programs under test see.
#pragma once

#include <string>

namespace desktop {

struct Moment {
  int year;
  int month;
  int day;
  int hour = 12;
  int minute = 0;
  int second = 0;
};

// Days since 1899-12-30, without the time of day.
[[nodiscard]] double DaysOf(const Moment& moment);

// Sets the local date and time of every program that was started with the faking library, this one
// included; from there the time goes on. The environment variable TREMOLUX_FAKED_CLOCK names the
// file that the library reads the offset from. Other clocks are left alone.
class FakedClock {
 public:
  // Without the variable the system's date is left alone.
  FakedClock();
  // The date is the real one again.
  ~FakedClock();
  FakedClock(const FakedClock&) = delete;
  FakedClock& operator=(const FakedClock&) = delete;

  [[nodiscard]] bool Available() const { return !file_.empty(); }
  // Throws std::runtime_error when the date does not change.
  void Set(const Moment& moment);

 private:
  void WriteOffset(double seconds);

  std::wstring file_;
  double start_ = 0;     // local seconds when this was made
  double start_ms_ = 0;  // and the steady clock then
};

}  // namespace desktop
