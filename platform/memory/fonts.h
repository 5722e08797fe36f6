// The fonts of a machine in memory.
#pragma once

#include <string>
#include <vector>

#include "platform/fonts.h"

namespace platform::memory {

class Fonts final : public platform::Fonts {
 public:
  std::vector<std::string> Families() override {
    return {"Arial", "Courier New", "MS Gothic", "Tahoma"};
  }
};

}  // namespace platform::memory
