#include "engine/program.h"

#include <gtest/gtest.h>

#include "platform/memory/machine.h"
#include "settings/store.h"

namespace {

namespace setting = settings::setting;

class Window : public engine::MeterWindow {
 public:
  explicit Window(engine::TrafficState& state) : state_(state) {}
  engine::TrafficState& Traffic() override { return state_; }

 private:
  engine::TrafficState& state_;
};

class Program : public testing::Test {
 protected:
  int Run() {
    return engine::RunProgram(machine.Platform(), [this] {
      title_at_creation = machine.windowing.application_title;
      state.SpeedCap = 1800;  // what the window's initialisation takes from the stored scale
      state.RunTotalDL = 7;
      store.Write(setting::CurrentWeek, 20);
      return std::make_unique<Window>(state);
    });
  }

  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};
  engine::TrafficState state;
  std::string title_at_creation;
};

TEST_F(Program, AFreshRunIsUncappedAndBeginsAtZero) {
  machine.clock.SetNow(platform::EncodeDateTime(2024, 5, 15, 18, 0, 0));
  bool looked = false;
  machine.message_loop.Then([&] {
    looked = true;
    EXPECT_EQ(state.SpeedCap, 0);
    EXPECT_EQ(state.RunTotalDL, 0);
    EXPECT_EQ(state.RunStartDate, platform::EncodeDate(2024, 5, 15));
    EXPECT_EQ(state.RunStartTime, 0.75);
    machine.message_loop.Quit();
  });
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(looked);
  EXPECT_EQ(title_at_creation, "Korvane Tremolux");
}

TEST_F(Program, AStartStoresEveryMissingOptionAfterTheWindowsOwnValues) {
  machine.message_loop.Quit();
  Run();
  EXPECT_EQ(store.ReadWith(setting::mPerStartsOn, 9), 1);
  EXPECT_EQ(store.Read(setting::CurrentWeek), 20) << "as the window had set it";
}

TEST_F(Program, ASecondCopyEndsWithoutASign) {
  int runs = 0;
  const auto run = [&runs] { return ++runs; };
  EXPECT_EQ(engine::RunOnce(machine.single_instance, run), 1);
  EXPECT_TRUE(machine.single_instance.Taken("Korvane Tremolux"));
  EXPECT_EQ(engine::RunOnce(machine.single_instance, run), 0);
  EXPECT_EQ(runs, 1);
}

}  // namespace
