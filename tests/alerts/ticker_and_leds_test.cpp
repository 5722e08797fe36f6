#include <gtest/gtest.h>

#include <limits>

#include "alerts/keyboard_leds.h"
#include "alerts/ticker.h"
#include "tests/world.h"

namespace {

constexpr std::uint8_t kNum = 144;
constexpr std::uint8_t kScroll = 145;

class Ticker : public testing::Test, protected test::Reacting {
 protected:
  Ticker() {
    Set("TickerActive", 1);
    Set("TickerBytes", 1000);
  }
  // Sounds of a scan.
  std::size_t Sounds(std::int64_t dl, std::int64_t ul) {
    machine.sound.played.clear();
    ticker.Update({dl, ul, 0, 0});
    return machine.sound.played.size();
  }

  alerts::Ticker ticker{store, reactions};
};

TEST_F(Ticker, TicksOnceAScanAndKeepsTheRest) {
  EXPECT_EQ(Sounds(600, 100), 0U);
  EXPECT_EQ(Sounds(600, 100), 1U);  // 1400, and 400 are left
  EXPECT_EQ(machine.sound.played[0], store.ProgramFile("ticking.wav"));
  EXPECT_EQ(Sounds(5000, 0), 0U) << "both directions must have moved";
  EXPECT_EQ(Sounds(300, 299), 0U);
  EXPECT_EQ(Sounds(9000, 1), 1U);  // 10000: nine more ticks are owed
  for (int i = 0; i < 8; ++i) EXPECT_EQ(Sounds(1, 1), 1U);
}

TEST_F(Ticker, WrapsAtTheEndOfItsRangeLikeAllSums) {
  Set("TickerBytes", -2);
  EXPECT_EQ(Sounds(std::numeric_limits<std::int64_t>::max() - 1, 1), 1U);
  EXPECT_EQ(Sounds(1, 1), 0U) << "the count is below zero now";
}

TEST_F(Ticker, CountsNothingWhileItIsOffAndKeepsWhatItHas) {
  EXPECT_EQ(Sounds(500, 499), 0U);
  Set("TickerActive", 0);
  EXPECT_EQ(Sounds(5000, 5000), 0U);
  Set("TickerActive", 1);
  Set("TickerWav", "C:\\tick.wav");
  EXPECT_EQ(Sounds(1, 1), 1U);
  EXPECT_EQ(machine.sound.played[0], "C:\\tick.wav");
}

class Leds : public testing::Test, protected test::Reacting {
 protected:
  void Update(std::int64_t dl, std::int64_t ul) {
    alerts::UpdateKeyboardLeds(store, manager.sys_keys, {dl, ul, 0, 0});
  }
};

TEST_F(Leds, FollowTheTable) {
  struct Row {
    const char* why;
    std::int64_t limit, dl, ul;
    int scroll, num;
  };
  static constexpr Row kRows[] = {
      {"download only", 1000, 5000, 200, 1, 0},
      {"upload only", 1000, 200, 5000, 0, 1},
      {"both idle", 1000, 200, 300, 0, 0},
      {"both busy", 1000, 5000, 5000, 1, 1},
      {"both on the limit: the second pair has the last word", 1000, 1000, 1000, 1, 0},
      {"an idle line without a limit", 0, 0, 0, 1, 0},
      {"upload on the limit", 1000, 200, 1000, 0, 1},
      {"a limit below zero is always passed", -5, 0, 0, 1, 1},
  };
  Set("DLSwitchScr", 1);
  Set("ULSwitchNum", 1);
  for (const Row& row : kRows) {
    for (const std::uint8_t before : {std::uint8_t{0}, std::uint8_t{1}}) {
      SCOPED_TRACE(row.why);
      Set("spnKeyLedsLimit", row.limit);
      machine.keyboard.states[kScroll] = before;
      machine.keyboard.states[kNum] = before;
      Update(row.dl, row.ul);
      EXPECT_EQ(machine.keyboard.states[kScroll], row.scroll);
      EXPECT_EQ(machine.keyboard.states[kNum], row.num);
    }
  }
}

TEST_F(Leds, AreLeftAloneWhenNotGivenOrHeldDown) {
  Update(5000, 5000);
  EXPECT_TRUE(machine.keyboard.sent.empty());
  EXPECT_EQ(machine.keyboard.state_questions, 0);
  Set("DLSwitchScr", 1);
  machine.keyboard.states[kScroll] = 0x81;
  Update(5000, 5000);
  EXPECT_TRUE(machine.keyboard.sent.empty());
}

TEST_F(Leds, AreSwitchedByAKeyStrokeWithTheOneScanCode) {
  Set("ULSwitchNum", 1);
  Update(0, 5000);
  EXPECT_EQ(machine.keyboard.sent,
            (std::vector<platform::memory::KeyEvent>{{kNum, 69, 1}, {kNum, 69, 3}}));
}

}  // namespace
