#include "platform/timers.h"

#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

class TimersTest : public testing::Test {
 protected:
  std::unique_ptr<platform::Timer> Start(std::function<void()> tick) {
    return desk_->Platform().timers.Start(10, std::move(tick));
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
};

TEST_F(TimersTest, ATimerTicksUntilItIsDestroyed) {
  int ticks = 0;
  int others = 0;
  auto timer = Start([&ticks] { ++ticks; });
  const auto other = Start([&others] { ++others; });
  EXPECT_TRUE(desk_->LetHappen([&] { return ticks >= 3; }));

  timer.reset();
  const int before = ticks;
  others = 0;
  EXPECT_TRUE(desk_->LetHappen([&] { return others >= 3; }));
  EXPECT_EQ(ticks, before);
}

TEST_F(TimersTest, ATickMayDestroyItsTimerAndOthers) {
  int ticks = 0;
  int of_victim = 0;
  std::unique_ptr<platform::Timer> victim;
  std::unique_ptr<platform::Timer> timer;
  // The text is long enough to lie in memory that a destroyed tick would have given back.
  timer = Start([&, text = std::string(100, 'x')] {
    timer.reset();
    victim.reset();
    ticks += text == std::string(100, 'x') ? 1 : 0;
  });
  victim = Start([&of_victim] { ++of_victim; });
  int of_witness = 0;
  const auto witness = Start([&of_witness] { ++of_witness; });
  EXPECT_TRUE(desk_->LetHappen([&] { return of_witness >= 3; }));
  EXPECT_EQ(ticks, 1);
  EXPECT_LE(of_victim, 1) << "at most before it was destroyed";
}

TEST_F(TimersTest, ATickMayStartTheNextTimer) {
  int chain = 0;
  std::unique_ptr<platform::Timer> timer;
  std::function<void()> tick = [&] {
    ++chain;
    timer = Start(tick);
  };
  timer = Start(tick);
  EXPECT_TRUE(desk_->LetHappen([&] { return chain >= 3; }));
}

TEST_F(TimersTest, OtherTimersTickWhileATickRunsALoopOfItsOwn) {
  int inside = 0;
  bool came_back = false;
  const auto other = Start([&inside] { ++inside; });
  std::unique_ptr<platform::Timer> timer;
  timer = Start([&] {
    timer.reset();
    inside = 0;
    came_back = desk_->LetHappen([&] { return inside >= 3; });
  });
  EXPECT_TRUE(desk_->LetHappen([&] { return came_back; }));
}

}  // namespace
}  // namespace contract
