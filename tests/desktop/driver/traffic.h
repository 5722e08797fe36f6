// The system's own count of traffic.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace desktop {

// A row of the system's interface table.
struct AdapterRow {
  std::string name;      // its description in lower case, under which the program stores its values
  std::uint32_t in = 0;  // bytes, wraps at 2^32
  std::uint32_t out = 0;
};

// All rows in the system's order. Throws std::runtime_error when it refuses.
[[nodiscard]] std::vector<AdapterRow> ReadAdapters();

}  // namespace desktop
