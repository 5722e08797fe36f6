// The clipboard, plain text only.
#pragma once

#include <string_view>

namespace platform {

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  // Replaces what the clipboard holds. False, with nothing changed, when another program keeps it
  // open or memory is short.
  virtual bool SetText(std::string_view text) = 0;
};

}  // namespace platform
