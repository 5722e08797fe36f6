// What this process holds of the system.
#pragma once

#include <cstdint>

namespace bench {

// Counted by the kernel.
[[nodiscard]] std::int64_t KernelHandles();
// Pens, bitmaps, device contexts ...
[[nodiscard]] std::int64_t GdiObjects();
// Windows, menus, icons ... On Windows their number; where the system does not tell, the highest
// number that it has given out, which grows by one with each object that is never freed.
[[nodiscard]] std::int64_t UserObjects();
// Bytes of memory that belong to this process alone.
[[nodiscard]] std::int64_t PrivateBytes();

}  // namespace bench
