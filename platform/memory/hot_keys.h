// Hot keys that tests press, and that other programs can have taken.
#pragma once

#include <string>
#include <vector>

#include "platform/hot_keys.h"

namespace platform::memory {

class HotKeys final : public platform::HotKeys {
 public:
  [[nodiscard]] std::unique_ptr<HotKey> Register(std::string_view name, const KeyCombination& keys,
                                                 std::function<void()> pressed) override;

  // The user presses the combination; false when nobody hears it.
  bool Press(const KeyCombination& keys);
  [[nodiscard]] std::size_t Registered() const { return entries_.size(); }

  // Combinations of other programs.
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
