// The user's programs for files.
#pragma once

#include "platform/shell.h"

namespace platform::windows {

class Shell final : public platform::Shell {
 public:
  bool Open(std::string_view path) override;
};

}  // namespace platform::windows
