// A session that records the calls that would change privileges or end it.
#pragma once

#include <string>
#include <vector>

#include "platform/session.h"

namespace platform::memory {

class Session final : public platform::Session {
 public:
  bool SetPrivilege(std::string_view name, Privilege wanted) override {
    calls.push_back((wanted == Privilege::kEnable ? "enable " : "disable ") + std::string(name));
    return true;
  }
  std::uint32_t EndSession(std::uint32_t flags) override {
    calls.push_back("exit " + std::to_string(flags));
    return exit_result;
  }

  std::vector<std::string> calls;
  std::uint32_t exit_result = 0;  // what the system answers
};

}  // namespace platform::memory
