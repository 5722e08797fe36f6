// The user's session: its privileges and its end.
#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

enum class Privilege { kDisable, kEnable };

class Session {
 public:
  virtual ~Session() = default;

  // Switches a privilege of the process on or off (OpenProcessToken, LookupPrivilegeValue,
  // AdjustTokenPrivileges). Returns false when the system refuses.
  virtual bool SetPrivilege(std::string_view name, Privilege wanted) = 0;
  // Asks the system to end the session (ExitWindowsEx with these flags). Returns 0 or the error
  // code.
  [[nodiscard]] virtual std::uint32_t EndSession(std::uint32_t flags) = 0;
};

}  // namespace platform
