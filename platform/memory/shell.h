// A shell that writes down what was opened.
#pragma once

#include <string>
#include <vector>

#include "platform/shell.h"

namespace platform::memory {

class Shell final : public platform::Shell {
 public:
  bool Open(std::string_view path) override {
    opened.emplace_back(path);
    return true;
  }

  std::vector<std::string> opened;
};

}  // namespace platform::memory
