// The fonts that are installed.
#pragma once

#include "platform/fonts.h"

namespace platform::windows {

class Fonts final : public platform::Fonts {
 public:
  [[nodiscard]] std::vector<std::string> Families() override;
};

}  // namespace platform::windows
