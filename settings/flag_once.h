// A stored flag within one step.
#pragma once

#include <optional>

#include "settings/store.h"

namespace settings {

// Read when it is first needed, and once.
class FlagOnce {
 public:
  // Both outlive it.
  FlagOnce(Store& store, const BooleanSetting& flag) : store_(store), flag_(flag) {}

  [[nodiscard]] bool Get() {
    if (!value_) value_ = store_.Read(flag_);
    return *value_;
  }

 private:
  Store& store_;
  const BooleanSetting& flag_;
  std::optional<bool> value_;
};

}  // namespace settings
