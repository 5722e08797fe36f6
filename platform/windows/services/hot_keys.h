// Hot keys of the system.
#pragma once

#include <map>
#include <memory>

#include "platform/hot_keys.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// The hidden window that gets the messages of all hot keys.
class HotKeyWindow final : public NativeWindow {
 public:
  using Pressed = std::function<void()>;

  explicit HotKeyWindow(const WindowClass& window_class);

  // Registers a hot key. Returns false when the system refuses. `id` must not be in use.
  [[nodiscard]] bool Start(int id, UINT modifiers, UINT virtual_key, Pressed pressed);
  void Stop(int id);
  [[nodiscard]] bool Uses(int id) const { return pressed_.contains(id); }

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  std::map<int, std::shared_ptr<const Pressed>> pressed_;
};

class HotKeys final : public platform::HotKeys {
 public:
  // The object outlives every hot key.
  HotKeys() = default;

  [[nodiscard]] std::unique_ptr<HotKey> Register(std::string_view name, const KeyCombination& keys,
                                                 std::function<void()> pressed) override;

 private:
  WindowClass window_class_{"TremoluxHotKeys"};
  HotKeyWindow window_{window_class_};
};

}  // namespace platform::windows
