// The clipboard, plain text only.
#pragma once

#include <string_view>

namespace platform {

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  // Replaces the content of the clipboard. Returns false and changes nothing when another program
  // keeps it open or memory is short.
  virtual bool SetText(std::string_view text) = 0;
};

}  // namespace platform
