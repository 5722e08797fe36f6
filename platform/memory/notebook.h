// What the in-memory system writes down about the calls that it gets, and the call that a test
// wants to fail.
#pragma once

#include <functional>
#include <string_view>

namespace platform::memory {

// Work on the registry since the last Restart, by what the calls asked for; a call that failed or
// found nothing counts like any other.
struct RegistryTraffic {
  int round_trips =
      0;  // keys asked for: each is one opening, what is done with the key, one closing
  int dword_reads = 0;
  int text_reads = 0;
  int binary_reads = 0;
  int dword_writes = 0;
  int text_writes = 0;
  int binary_writes = 0;
  int deletes = 0;

  [[nodiscard]] int Reads() const { return dword_reads + text_reads + binary_reads; }
  [[nodiscard]] int Writes() const { return dword_writes + text_writes + binary_writes; }
  friend bool operator==(const RegistryTraffic&, const RegistryTraffic&) = default;
};

// One for all services of a machine.
class Notebook {
 public:
  RegistryTraffic registry;

  // Where a test sets them: each value of the registry that is read or written, by its name.
  std::function<void(std::string_view name)> on_registry_read;
  std::function<void(std::string_view name)> on_registry_write;

  // Calls, since the last Restart, that can fail by their contract.
  [[nodiscard]] int Calls() const { return calls_; }

  // The n-th such call from now fails as its contract says: a read finds nothing, a write throws,
  // what should be made is null. 1 is the next one; 0 takes a wish back.
  void FailCall(int n) { failing_in_ = n; }
  // Whether the call that is to fail has not come yet.
  [[nodiscard]] bool FailurePending() const { return failing_in_ > 0; }

  void Restart() {
    calls_ = 0;
    registry = {};
  }

  // For the services, once in each call that can fail: whether this one does.
  [[nodiscard]] bool Fails() {
    ++calls_;
    return failing_in_ > 0 && --failing_in_ == 0;
  }

 private:
  int calls_ = 0;
  int failing_in_ = 0;
};

}  // namespace platform::memory
