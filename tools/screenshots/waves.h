// Traffic that looks like somebody's.
#pragma once

#include <atomic>
#include <string>
#include <thread>

#include "tests/desktop/driver/network_line.h"
#include "tests/desktop/driver/traffic.h"

namespace desktop {

enum class Flow { kNothing, kDownload, kUpload, kBoth };

// Downloads a lot in waves and uploads a little, all the time. On the line of the tests where there
// is one; else on the loopback, where both directions are alike.
class Waves {
 public:
  Waves();
  ~Waves();
  Waves(const Waves&) = delete;
  Waves& operator=(const Waves&) = delete;

  // The adapter that all of it goes through, in lower case.
  [[nodiscard]] const std::string& adapter() const { return adapter_; }
  // Whether the directions can be told apart.
  [[nodiscard]] bool Apart() const { return line_.Available(); }
  // From here on only this moves; both at first.
  void Set(Flow flow) { flow_ = flow; }

 private:
  void Run();
  void Move(int received, int sent);

  NetworkLine line_;
  Loopback loopback_;
  std::string adapter_;
  std::atomic<Flow> flow_ = Flow::kBoth;
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

}  // namespace desktop
