#include "platform/timers.h"

#include "tests/contract/world.h"

namespace contract {
namespace {

class Timers : public ContractTest {
 protected:
  std::unique_ptr<platform::Timer> Start(std::function<void()> tick) {
    return Platform().timers.Start(10, std::move(tick));
  }
  // Lets a witness tick three times, and with it whatever else ticks as often.
  bool LetTick() {
    int ticks = 0;
    const auto witness = Start([&ticks] { ++ticks; });
    return world_.LetHappen([&ticks] { return ticks >= 3; });
  }
};

TEST_F(Timers, ATimerTicksUntilItIsDestroyed) {
  int ticks = 0;
  auto timer = Start([&ticks] { ++ticks; });
  EXPECT_TRUE(world_.LetHappen([&ticks] { return ticks >= 3; }));
  timer.reset();
  const int before = ticks;
  EXPECT_TRUE(LetTick());
  EXPECT_EQ(ticks, before);
}

TEST_F(Timers, ATickMayDestroyItsTimerAndOthersAndStartTheNext) {
  int ticks = 0;
  int of_victim = 0;
  int of_next = 0;
  std::unique_ptr<platform::Timer> victim, timer, next;
  // The text is long enough to lie in memory that a destroyed tick would have given back.
  timer = Start([&, text = std::string(100, 'x')] {
    timer.reset();
    victim.reset();
    next = Start([&of_next] { ++of_next; });
    ticks += text == std::string(100, 'x') ? 1 : 0;
  });
  victim = Start([&of_victim] { ++of_victim; });
  EXPECT_TRUE(world_.LetHappen([&of_next] { return of_next >= 3; }));
  EXPECT_EQ(ticks, 1);
  EXPECT_LE(of_victim, 1) << "at most before it was destroyed";
}

TEST_F(Timers, OtherTimersTickWhileATickRunsALoopOfItsOwn) {
  bool came_back = false;
  std::unique_ptr<platform::Timer> timer;
  timer = Start([&] {
    timer.reset();
    came_back = LetTick();
  });
  EXPECT_TRUE(world_.LetHappen([&came_back] { return came_back; }));
}

}  // namespace
}  // namespace contract
