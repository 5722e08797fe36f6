#include "platform/clock.h"

#include <gtest/gtest.h>

#include "tests/contract/world.h"

namespace contract {
namespace {

TEST(Clock, TheDateIsOneThatProgramsMeet) {
  const std::unique_ptr<World> world = MakeWorld();
  const platform::DateTime now = world->Clock().Now();
  EXPECT_GT(now, platform::EncodeDate(2020, 1, 1));
  EXPECT_LT(now, platform::EncodeDate(2200, 1, 1));

  const platform::CivilDate date = platform::DecodeDate(now);
  const platform::ClockTime time = platform::DecodeTime(now);
  EXPECT_EQ(platform::EncodeDateTime(date.year, date.month, date.day, time.hour, time.minute,
                                     time.second, time.millisecond),
            now)
      << "whole milliseconds";
}

TEST(Clock, TheSteadyClockNeverGoesBack) {
  const std::unique_ptr<World> world = MakeWorld();
  std::int64_t before = world->Clock().SteadyMilliseconds();
  EXPECT_GT(before, 0);
  for (int round = 0; round < 10000; ++round) {
    const std::int64_t now = world->Clock().SteadyMilliseconds();
    ASSERT_GE(now, before);
    before = now;
  }
}

}  // namespace
}  // namespace contract
