// The fonts of a machine in memory.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/fonts.h"
#include "platform/text.h"

namespace platform::memory {

class Fonts final : public platform::Fonts {
 public:
  [[nodiscard]] std::vector<std::string> Families() override {
    std::vector<std::string> families = installed;
    std::erase_if(families, [](const std::string& name) { return name.starts_with('@'); });
    std::sort(families.begin(), families.end(), [](const std::string& a, const std::string& b) {
      return AsciiLower(a) < AsciiLower(b);
    });
    families.erase(std::unique(families.begin(), families.end()), families.end());
    return families;
  }

  // The fonts as the system lists them: in no order, some once for each of several character sets.
  std::vector<std::string> installed = {"Tahoma",    "Arial", "@MS Gothic",
                                        "MS Gothic", "Arial", "Courier New"};
};

}  // namespace platform::memory
