// Opens files in the user's programs.
#pragma once

#include <string_view>

namespace platform {

class Shell {
 public:
  virtual ~Shell() = default;

  // Opens a file in the program that the user has for its kind (ShellExecuteEx, "open"). Returns
  // false, without a message to the user, when the file is missing or there is no such program.
  virtual bool Open(std::string_view path) = 0;
};

}  // namespace platform
