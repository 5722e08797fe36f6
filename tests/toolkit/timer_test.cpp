#include "toolkit/timer.h"

#include <gtest/gtest.h>

#include "tests/world.h"

namespace toolkit {
namespace {

using Times = std::vector<std::int64_t>;

TEST(Timer, IsNotStartedAnewBySwitchingItOnAgain) {
  test::World world;
  int ticks = 0;
  Timer timer(world.app, 1000, [&] { ++ticks; });
  timer.SetEnabled(true);
  for (int i = 0; i < 10; ++i) {
    world.machine.timers.Advance(600);
    timer.SetEnabled(true);
  }
  EXPECT_EQ(ticks, 6);
  timer.SetEnabled(false);
  world.machine.timers.Advance(5000);
  EXPECT_EQ(ticks, 6);
}

TEST(PhaseTimer, KeepsItsPhaseAndMakesUpForNoTickThatWasMissed) {
  test::World world;
  platform::memory::Timers& time = world.machine.timers;
  const std::int64_t begin = world.machine.clock.SteadyMilliseconds();
  Times ticks;
  PhaseTimer timer(world.app, 1000, [&] {
    ticks.push_back(world.machine.clock.SteadyMilliseconds() - begin);
    time.Stall(50);
    throw 1;  // what a tick costs, or that it fails, changes nothing
  });
  timer.SetActive(true);
  time.Stall(1700);
  time.Advance(2299);
  EXPECT_EQ(ticks, (Times{1700, 2000, 3000})) << "a late one is not followed by another at once";
  time.Stall(8300);
  time.Advance(2000);
  EXPECT_EQ(ticks, (Times{1700, 2000, 3000, 12299, 13000, 14000}));
}

}  // namespace
}  // namespace toolkit
