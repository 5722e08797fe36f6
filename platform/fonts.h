// The fonts that are installed.
#pragma once

#include <string>
#include <vector>

namespace platform {

class Fonts {
 public:
  virtual ~Fonts() = default;

  // The names of all families, each once, in the order of the user's alphabet; without those for
  // vertical writing, which begin with "@" (EnumFontFamiliesEx). Empty when the system refuses.
  [[nodiscard]] virtual std::vector<std::string> Families() = 0;
};

}  // namespace platform
