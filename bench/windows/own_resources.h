// What this process holds of the system.
#pragma once

#include <cstdint>

#include "bench/report.h"

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

// All of them, at the time that it is made.
struct Resources {
  std::int64_t handles = KernelHandles();
  std::int64_t gdi = GdiObjects();
  std::int64_t user = UserObjects();
  std::int64_t bytes = PrivateBytes();
};

// None may have grown from `before` to `after`, but memory by so many KiB.
void ReportGrowth(const Resources& before, const Resources& after, double kib, Report& report);
// None may have grown since; memory by 64 KiB, which is how the heap takes it.
void ReportGrowth(const Resources& before, Report& report);

}  // namespace bench
