// Key combinations that work whatever program the user is in.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace platform {

struct KeyCombination {
  std::uint8_t virtual_key = 0;
  bool shift = false;
  bool ctrl = false;
  bool alt = false;
  friend bool operator==(const KeyCombination&, const KeyCombination&) = default;
};

// A hot key, which is registered while it exists.
class HotKey {
 public:
  virtual ~HotKey() = default;
};

class HotKeys {
 public:
  virtual ~HotKeys() = default;

  // Registers a combination (RegisterHotKey). `pressed` is called from the message loop each time
  // that the combination goes down; holding it down does not repeat the call. `pressed` may destroy
  // the hot key.
  //   name  of the global atom that numbers the hot key (GlobalAddAtom); each hot key needs its own
  // Returns null when another program has taken the combination, or the system refuses.
  [[nodiscard]] virtual std::unique_ptr<HotKey> Register(std::string_view name,
                                                         const KeyCombination& keys,
                                                         std::function<void()> pressed) = 0;
};

}  // namespace platform
