#include "program/program.h"

#include <gtest/gtest.h>

#include "platform/memory/machine.h"
#include "settings/store.h"

namespace {

namespace setting = settings::setting;

TEST(Program, AFreshRunIsUncappedAndBeginsAtZero) {
  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};
  store.Write(setting::GraphScaleType, 1);  // which the window's initialisation takes as a cap
  machine.clock.SetNow(platform::EncodeDateTime(2024, 5, 15, 18, 0, 0));
  program::Program program(machine.Platform());
  const engine::TrafficState& traffic = program.Meter().Traffic();
  EXPECT_EQ(traffic.SpeedCap, 0);
  EXPECT_EQ(traffic.RunStartDate, platform::EncodeDate(2024, 5, 15));
  EXPECT_EQ(traffic.RunStartTime, 0.75);
  EXPECT_EQ(machine.windowing.application_title, "Korvane Tremolux");
  EXPECT_EQ(store.ReadWith(setting::TickerBytes, 9), 1000) << "also what nobody has read";
  EXPECT_EQ(store.ReadWith(setting::CurrentWeek, 9), 20) << "as the window has set it";
}

TEST(Program, ASecondCopyEndsWithoutASign) {
  platform::memory::Machine machine;
  int runs = 0;
  const auto run = [&runs] { return ++runs; };
  EXPECT_EQ(program::RunOnce(machine.single_instance, run), 1);
  EXPECT_TRUE(machine.single_instance.Taken("Korvane Tremolux"));
  EXPECT_EQ(program::RunOnce(machine.single_instance, run), 0);
  EXPECT_EQ(runs, 1);
}

}  // namespace
