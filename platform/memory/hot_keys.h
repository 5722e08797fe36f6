// Hot keys that tests press and that other programs may have taken.
#pragma once

#include <string>
#include <vector>

#include "platform/hot_keys.h"

namespace platform::memory {

class HotKeys final : public platform::HotKeys {
 public:
  [[nodiscard]] std::unique_ptr<HotKey> Register(std::string_view name, const KeyCombination& keys,
                                                 std::function<void()> pressed) override;

  // Acts as the user who presses the combination. Returns false when no hot key is registered for
  // it.
  bool Press(const KeyCombination& keys);
  [[nodiscard]] std::size_t Registered() const { return entries_.size(); }

  // The combinations that other programs have taken.
  std::vector<KeyCombination> taken;

 private:
  struct Entry {
    std::string name;
    KeyCombination keys;
    std::function<void()> pressed;
  };
  class Handle;

  std::vector<std::shared_ptr<Entry>> entries_;
};

}  // namespace platform::memory
