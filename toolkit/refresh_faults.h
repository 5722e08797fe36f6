// What goes wrong while a window takes its figures anew.
#pragma once

#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

namespace toolkit {

// Each part of a refresh may fail without the others. What failed first is told, and told once: a
// window that asks twice a second would fill the error log with it.
class RefreshFaults {
 public:
  // Runs a part of the refresh and keeps what it throws.
  template <class Part>
  void Try(const Part& part) {
    try {
      part();
    } catch (const std::exception& error) {
      if (first_.empty()) first_ = error.what();
    }
  }

  // At the end of a refresh: throws std::runtime_error with what failed first in it, unless that
  // was so the last time already.
  void Tell() {
    const std::string before = std::exchange(told_, std::exchange(first_, {}));
    if (!told_.empty() && told_ != before) throw std::runtime_error(told_);
  }

 private:
  std::string first_;
  std::string told_;
};

}  // namespace toolkit
