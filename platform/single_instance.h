// The named mutex by which a second copy of the program knows that it is the second.
#pragma once

#include <string_view>

namespace platform {

class SingleInstance {
 public:
  virtual ~SingleInstance() = default;

  // Creates the mutex, initially owned (CreateMutex); it ends with the process. Returns true when
  // no other process of the session has it. Also returns true when the mutex could not be made at
  // all: a meter that runs is worth more than one that refuses.
  [[nodiscard]] virtual bool ClaimFirst(std::string_view name) = 0;
};

}  // namespace platform
