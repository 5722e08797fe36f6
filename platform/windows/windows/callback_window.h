// A hidden window for messages that bear the number of a function to call.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "platform/windows/windows/native_window.h"

namespace platform::windows {

class CallbackWindow final : public NativeWindow {
 public:
  // Listens to messages with this id.
  CallbackWindow(const WindowClass& window_class, UINT id) : id_(id) {
    Create(window_class, {}, HWND_MESSAGE, {});
  }

  // Calls `call` at each message whose first parameter is `number`, until Remove.
  void Add(WPARAM number, std::function<void()> call) {
    calls_.emplace(number, std::make_shared<const Call>(std::move(call)));
  }
  void Remove(WPARAM number) { calls_.erase(number); }
  [[nodiscard]] bool Has(WPARAM number) const { return calls_.contains(number); }

 protected:
  std::optional<LRESULT> Handle(const Message& message) override {
    if (message.id != id_) return std::nullopt;
    const auto found = calls_.find(message.w);
    if (found == calls_.end()) return 0;
    const std::shared_ptr<const Call> call = found->second;  // it may remove itself
    (*call)();
    return 0;
  }

 private:
  using Call = std::function<void()>;

  const UINT id_;
  std::map<WPARAM, std::shared_ptr<const Call>> calls_;
};

}  // namespace platform::windows
