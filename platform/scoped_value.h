// A value that holds for as long as a scope.
#pragma once

#include <utility>

namespace platform {

// Sets a variable and puts its earlier value back at the end. The variable outlives this object.
template <class Value>
class ScopedValue {
 public:
  ScopedValue(Value& variable, Value during)
      : variable_(variable), before_(std::exchange(variable, std::move(during))) {}
  ~ScopedValue() { variable_ = std::move(before_); }
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;

 private:
  Value& variable_;
  Value before_;
};

}  // namespace platform
