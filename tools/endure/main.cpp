// endure [days] [seed]: plays so many days of the meter's life in memory, and compares what it has
// stored after each scan with a model. Ends with 1 at the first difference.
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "tools/endure/world.h"

namespace endure {
namespace {

void Print(const Tally& tally, const Model& model, double seconds) {
  std::printf(
      "%d days, %lld scans, %lld wraps, %lld counters set back, %d roll-overs, %d alerts, "
      "%d restarts, %d failed calls, %.1f seconds\n",
      tally.days, static_cast<long long>(tally.scans), static_cast<long long>(tally.wraps),
      static_cast<long long>(tally.set_back), model.roll_overs, model.alerts, tally.restarts,
      tally.failed_calls, seconds);
}

int Main(int days, std::uint32_t seed) {
  const auto start = std::chrono::steady_clock::now();
  World world(seed);
  try {
    while (world.Counted().days < days) world.PlayDay();
  } catch (const std::exception& difference) {
    std::printf("seed %lu, day %d, scan %lld (%s):%s\n", static_cast<unsigned long>(seed),
                world.Counted().days + 1, static_cast<long long>(world.Counted().scans),
                world.Date().c_str(), difference.what());
    return 1;
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  Print(world.Counted(), world.Expected(), took.count());
  return 0;
}

}  // namespace
}  // namespace endure

int main(int argc, char** argv) {
  const int days = argc > 1 ? std::atoi(argv[1]) : 365;
  const auto seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1;
  return endure::Main(days, static_cast<std::uint32_t>(seed));
}
