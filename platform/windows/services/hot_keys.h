// Hot keys of the system.
#pragma once

#include "platform/hot_keys.h"
#include "platform/windows/windows/callback_window.h"

namespace platform::windows {

class HotKeys final : public platform::HotKeys {
 public:
  // The object outlives every hot key.
  HotKeys() = default;

  [[nodiscard]] std::unique_ptr<HotKey> Register(std::string_view name, const KeyCombination& keys,
                                                 std::function<void()> pressed) override;

 private:
  WindowClass window_class_{"TremoluxHotKeys"};
  CallbackWindow window_{window_class_, WM_HOTKEY};
};

}  // namespace platform::windows
