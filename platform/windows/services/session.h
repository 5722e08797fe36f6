// The user's session.
#pragma once

#include "platform/session.h"

namespace platform::windows {

class Session final : public platform::Session {
 public:
  bool SetPrivilege(std::string_view name, Privilege wanted) override;
  [[nodiscard]] std::uint32_t EndSession(std::uint32_t flags) override;
};

}  // namespace platform::windows
