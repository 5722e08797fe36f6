#include "platform/timers.h"

#include "tests/contract/world.h"

namespace contract {
namespace {

class Timers : public ContractTest {
 protected:
  std::unique_ptr<platform::Timer> Start(std::function<void()> tick) {
    return Platform().timers.Start(10, std::move(tick));
  }
};

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
    int ticks = 0;
    const auto other = Start([&ticks] { ++ticks; });
    came_back = world_.LetHappen([&ticks] { return ticks >= 3; });
  });
  EXPECT_TRUE(world_.LetHappen([&came_back] { return came_back; }));
}

}  // namespace
}  // namespace contract
