// A value of the registry as it is stored.
#pragma once

#include <cstdint>
#include <string>

namespace contract {

struct RawValue {
  std::uint32_t type = 0;  // the system's number
  std::string data;
  friend bool operator==(const RawValue&, const RawValue&) = default;
};

}  // namespace contract
