// Named mutexes of the session.
#pragma once

#include <vector>

#include "platform/single_instance.h"
#include "platform/windows/handle.h"
#include "platform/windows/kernel_handle.h"

namespace platform::windows {

class SingleInstance : public platform::SingleInstance {
 public:
  [[nodiscard]] bool ClaimFirst(std::string_view name) override;

 private:
  // Kept to the end: a mutex exists as long as somebody has it open.
  std::vector<KernelHandle> claimed_;
};

}  // namespace platform::windows
