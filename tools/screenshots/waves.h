// Makes traffic that looks like that of a real user.
#pragma once

#include <atomic>
#include <string>
#include <thread>

#include "tests/desktop/driver/network_line.h"
#include "tools/screenshots/loopback.h"

namespace desktop {

enum class Flow { kNothing, kDownload, kUpload, kBoth };

// Downloads a lot in waves and uploads a little, all the time. It uses the network line of the
// tests when there is one, and otherwise the loopback, where both directions count alike.
class Waves {
 public:
  Waves();
  ~Waves();
  Waves(const Waves&) = delete;
  Waves& operator=(const Waves&) = delete;

  // Returns the name of the adapter that all traffic goes through, in lower case.
  [[nodiscard]] const std::string& adapter() const { return adapter_; }
  // Returns whether the two directions can be told apart.
  [[nodiscard]] bool Apart() const { return line_.Available(); }
  // Sets the traffic that moves from now on; at first it is kBoth.
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
