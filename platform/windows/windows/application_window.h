// The hidden window that owns all top windows of the program.
#pragma once

#include "platform/windows/windows/native_window.h"

namespace platform::windows {

class ApplicationWindow final : public NativeWindow {
 public:
  explicit ApplicationWindow(const WindowClass& window_class);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
};

}  // namespace platform::windows
