// Reports a call that the system refused.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/windows/win32.h"

namespace platform::windows {

// Throws std::runtime_error that names the call and the system's code, such as
// "RegSetValueEx: error 5".
[[noreturn]] inline void ThrowSystemError(std::string_view call, DWORD code) {
  throw std::runtime_error(std::string(call) + ": error " + std::to_string(code));
}

}  // namespace platform::windows
