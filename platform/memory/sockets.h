// A sockets library with the answers that a test gives it.
#pragma once

#include <functional>

#include "platform/memory/notebook.h"
#include "platform/sockets.h"

namespace platform::memory {

class Sockets : public platform::Sockets {
 public:
  explicit Sockets(Notebook& notebook) : notebook_(notebook) {}

  bool Start(std::uint16_t version) override {
    ++starts;
    last_version = version;
    if (notebook_.Fails()) return false;
    ++running_;
    return true;
  }
  std::string HostName() override { return Answers() ? host_name : ""; }
  std::optional<std::vector<std::string>> HostAddresses(std::string_view host) override {
    ++look_ups;
    if (during_look_up) during_look_up();
    // An empty name is the machine itself.
    const bool known = host.empty() || host == host_name;
    return Answers() && known ? addresses : std::nullopt;
  }
  void Cleanup() override {
    ++cleanups;
    if (running_ > 0) --running_;
  }

  // The answers that a test sets. When `addresses` is nullopt, the look-up fails.
  std::string host_name = "workstation";
  std::optional<std::vector<std::string>> addresses = std::vector<std::string>{"192.168.1.20"};
  // Runs inside each look-up; a test may let time pass in it.
  std::function<void()> during_look_up;

  // The calls so far.
  int starts = 0;
  int cleanups = 0;
  int look_ups = 0;
  std::uint16_t last_version = 0;

 private:
  bool Answers() { return !notebook_.Fails() && running_ > 0; }

  Notebook& notebook_;
  int running_ = 0;  // successful starts that were not taken back
};

}  // namespace platform::memory
