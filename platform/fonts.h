// The fonts that are installed.
#pragma once

#include <string>
#include <vector>

namespace platform {

class Fonts {
 public:
  virtual ~Fonts() = default;

  // Returns the names of all font families, each once, in the order of the user's alphabet
  // (EnumFontFamiliesEx). Fonts for vertical writing, whose names begin with "@", are left out.
  // Returns no names when the system refuses.
  [[nodiscard]] virtual std::vector<std::string> Families() = 0;
};

}  // namespace platform
