// Registered window classes.
#pragma once

#include <string>
#include <string_view>

#include "platform/windows/win32.h"

namespace platform::windows {

// Returns the module that the program's classes and resources belong to.
[[nodiscard]] HINSTANCE ThisModule();

// A class of windows whose messages go to NativeWindow. It is registered while the object lives,
// and its windows must be destroyed before it. The constructor throws std::runtime_error when the
// system refuses.
class WindowClass {
 public:
  explicit WindowClass(std::string_view name);
  ~WindowClass();
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;

  [[nodiscard]] const wchar_t* name() const { return name_.c_str(); }

 private:
  std::wstring name_;
};

}  // namespace platform::windows
