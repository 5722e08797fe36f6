// The record that the in-memory system keeps of the calls that it gets, and the call that a test
// wants to fail.
#pragma once

#include <functional>
#include <string_view>

namespace platform::memory {

// The number of registry calls of each kind since the last Restart. A call that failed or found
// nothing counts like any other.
struct RegistryTraffic {
  int round_trips = 0;  // keys asked for: opened, used and closed
  int reads = 0;
  int writes = 0;

  friend bool operator==(const RegistryTraffic&, const RegistryTraffic&) = default;
};

// All services of a machine share one notebook.
class Notebook {
 public:
  RegistryTraffic registry;

  // Called, when a test has set them, with the name of each registry value that is read or written.
  std::function<void(std::string_view name)> on_registry_read;
  std::function<void(std::string_view name)> on_registry_write;

  // Returns the number of calls since the last Restart that can fail by their contract.
  [[nodiscard]] int Calls() const { return calls_; }

  // Makes the n-th such call from now (1 is the next) fail as its contract says: a read finds
  // nothing, a write throws, a function that makes an object returns null. 0 cancels the request.
  void FailCall(int n) { failing_in_ = n; }
  // Returns whether the call that is to fail has not come yet.
  [[nodiscard]] bool FailurePending() const { return failing_in_ > 0; }

  void Restart() {
    calls_ = 0;
    registry = {};
  }

  // Services call this once in each call that can fail. Returns whether the present call is to
  // fail.
  [[nodiscard]] bool Fails() {
    ++calls_;
    return failing_in_ > 0 && --failing_in_ == 0;
  }

 private:
  int calls_ = 0;
  int failing_in_ = 0;
};

}  // namespace platform::memory
