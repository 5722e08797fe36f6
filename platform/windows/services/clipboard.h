// The system's clipboard.
#pragma once

#include "platform/clipboard.h"

namespace platform::windows {

class Clipboard : public platform::Clipboard {
 public:
  bool SetText(std::string_view text) override;
};

}  // namespace platform::windows
