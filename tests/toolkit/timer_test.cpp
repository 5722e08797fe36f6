#include "toolkit/timer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "platform/memory/machine.h"
#include "toolkit/application.h"

namespace toolkit {
namespace {

TEST(Timer, IsNotStartedAnewBySwitchingItOnAgain) {
  platform::memory::Machine machine;
  Application app(machine.Platform());
  int ticks = 0;
  Timer timer(app, 1000, [&] { ++ticks; });
  timer.SetEnabled(true);
  for (int i = 0; i < 10; ++i) {
    machine.timers.Advance(600);
    timer.SetEnabled(true);
  }
  EXPECT_EQ(ticks, 6);
  timer.SetEnabled(false);
  machine.timers.Advance(5000);
  EXPECT_EQ(ticks, 6);
}

TEST(PhaseTimer, KeepsItsPhaseWhateverEachTickCosts) {
  platform::memory::Machine machine;
  Application app(machine.Platform());
  int ticks = 0;
  PhaseTimer timer(app, 1000, [&] {
    ++ticks;
    machine.timers.Stall(ticks % 7 * 50);
  });
  timer.SetActive(true);
  machine.timers.Advance(600 * 1000);
  EXPECT_EQ(ticks, 600);
}

TEST(PhaseTimer, DoesNotMakeUpForTicksThatWereMissed) {
  platform::memory::Machine machine;
  Application app(machine.Platform());
  int ticks = 0;
  PhaseTimer timer(app, 1000, [&] { ++ticks; });
  timer.SetActive(true);
  machine.timers.Stall(10300);
  machine.timers.Advance(1);
  EXPECT_EQ(ticks, 1);
  machine.timers.Advance(698);
  EXPECT_EQ(ticks, 1) << "the next one is due at a whole second";
  machine.timers.Advance(1);
  EXPECT_EQ(ticks, 2);
}

TEST(PhaseTimer, ALateTickIsNotFollowedByAnotherAtOnce) {
  platform::memory::Machine machine;
  Application app(machine.Platform());
  std::vector<std::int64_t> ticks;
  const std::int64_t begin = machine.clock.SteadyMilliseconds();
  PhaseTimer timer(app, 1000, [&] { ticks.push_back(machine.clock.SteadyMilliseconds() - begin); });
  timer.SetActive(true);
  machine.timers.Stall(1700);
  machine.timers.Advance(1300);
  machine.timers.Stall(1950);
  machine.timers.Advance(1100);
  EXPECT_EQ(ticks, (std::vector<std::int64_t>{1700, 2000, 3000, 4950, 6000}));
}

TEST(PhaseTimer, GoesOnAfterATickThatThrows) {
  platform::memory::Machine machine;
  Application app(machine.Platform());
  int ticks = 0;
  PhaseTimer timer(app, 1000, [&] {
    ++ticks;
    throw 1;
  });
  timer.SetActive(true);
  machine.timers.Advance(3000);
  EXPECT_EQ(ticks, 3);
}

}  // namespace
}  // namespace toolkit
