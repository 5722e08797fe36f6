// The user's programs for files.
#pragma once

#include <string_view>

namespace platform {

class Shell {
 public:
  virtual ~Shell() = default;

  // Opens a file in the program that the user has for its kind (ShellExecuteEx, "open"). False,
  // without a word to the user, when it is missing or there is no such program.
  virtual bool Open(std::string_view path) = 0;
};

}  // namespace platform
