// Collects the failures of a window's refresh and reports the first one.
#pragma once

#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

namespace toolkit {

// Each part of a refresh may fail without the others. The first failure is reported, and only once:
// a window that refreshes twice a second would fill the error log with it.
class RefreshFaults {
 public:
  // Runs a part of the refresh and keeps the message of the first exception.
  template <class Part>
  void Try(const Part& part) {
    try {
      part();
    } catch (const std::exception& error) {
      if (first_.empty()) first_ = error.what();
    }
  }

  // Ends a refresh: throws std::runtime_error with the message of its first failure, unless the
  // previous refresh failed with the same message.
  void Tell() {
    const std::string before = std::exchange(told_, std::exchange(first_, {}));
    if (!told_.empty() && told_ != before) throw std::runtime_error(told_);
  }

 private:
  std::string first_;
  std::string told_;
};

}  // namespace toolkit
