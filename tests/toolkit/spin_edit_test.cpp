#include "toolkit/controls/spin_edit.h"

#include <functional>
#include <limits>
#include <vector>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"

namespace toolkit {
namespace {

using platform::Key;

class SpinEditTest : public FormTest {
 protected:
  SpinEditTest() {
    spin.SetRange(1000, 10000, 1000);
    spin.SetValue(5000);
    spin.OnChange = [this] { fired.push_back(spin.Value()); };
    form.Show();
  }
  // In the place of what is there.
  void Enter(std::string_view text) {
    Peer("spin").all_selected = true;
    User().Type("spin", text);
  }
  std::string Shown() { return Peer("spin").text; }

  SpinEdit spin{form, "spin"};
  Button other{form, "other"};
  std::vector<std::int64_t> fired;
};

TEST_F(SpinEditTest, TakesWhatIsTypedAndKeepsItInTheRange) {
  struct Row {
    const char* why;
    const char* typed;
    std::vector<std::int64_t> while_typing;
    const char* then;
    std::vector<std::int64_t> in_all;
  };
  const std::vector<Row> rows = {
      {"in the range as soon as the last digit is there", "1500", {1500}, "1500", {1500}},
      {"the lower end", "1000", {1000}, "1000", {1000}},
      {"the upper end, by a number inside", "10000", {1000, 10000}, "10000", {1000, 10000}},
      {"below", "999", {}, "1000", {1000}},
      {"above, by a number inside", "10001", {1000}, "10000", {1000, 10000}},
      {"beyond 64 bits", "99999999999999999999", {9999}, "10000", {9999, 10000}},
      {"letters are left out", "2x5 0-0e", {2500}, "2500", {2500}},
      {"nothing: the value from before", "", {}, "5000", {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    spin.SetValue(5000);
    fired.clear();
    spin.SetFocus();
    if (*row.typed == '\0') {
      Peer("spin").text.clear();
      Peer("spin").events->OnChanged();
    } else {
      Enter(row.typed);
    }
    EXPECT_EQ(fired, row.while_typing);
    other.SetFocus();
    EXPECT_EQ(Shown(), row.then);
    EXPECT_EQ(fired, row.in_all);
  }
}

TEST_F(SpinEditTest, EmptiedDigitByDigitItGoesBackToTheValueFromBefore) {
  spin.SetValue(10000);
  fired.clear();
  spin.SetFocus();
  for (const char* left : {"1000", "100", "10", "1", ""}) {
    Peer("spin").text = left;
    Peer("spin").events->OnChanged();
  }
  other.SetFocus();
  EXPECT_EQ(Shown(), "10000");
  EXPECT_EQ(fired, (std::vector<std::int64_t>{1000, 10000}));
}

TEST_F(SpinEditTest, StepsWithArrowsWheelAndPageKeys) {
  struct Row {
    const char* why;
    std::int64_t from;
    std::function<void()> move;
    std::int64_t to;
  };
  const std::vector<Row> rows = {
      {"up", 5000, [&] { User().PressKey("spin", Key::kUp); }, 6000},
      {"down", 5000, [&] { User().PressKey("spin", Key::kDown); }, 4000},
      {"to the end, not beyond", 9500, [&] { User().PressKey("spin", Key::kUp); }, 10000},
      {"at the end", 1000, [&] { User().PressKey("spin", Key::kDown); }, 1000},
      {"a page", 1000, [&] { User().PressKey("spin", Key::kPageUp); }, 10000},
      {"a page down", 10000, [&] { User().PressKey("spin", Key::kPageDown); }, 1000},
      {"two notches", 5000, [&] { User().Wheel("spin", 2); }, 7000},
      {"the upper arrow", 5000, [&] { User().Press("spinUp"); }, 6000},
      {"the lower arrow", 5000, [&] { User().Press("spinDown"); }, 4000},
      {"from what has been typed", 5000,
       [&] {
         Enter("20");
         User().PressKey("spin", Key::kUp);
       },
       2000},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    spin.SetValue(row.from);
    row.move();
    EXPECT_EQ(spin.Value(), row.to);
    EXPECT_EQ(Shown(), std::to_string(row.to));
  }
}

TEST_F(SpinEditTest, GoesOnWhileAnArrowIsHeld) {
  spin.SetRange(0, 1000, 1);
  spin.SetValue(0);
  User().PressMouse("spinUp");
  machine.timers.Advance(400 + 10 * 50);
  EXPECT_EQ(spin.Value(), 11);
  User().ReleaseMouse("spinUp");
  machine.timers.Advance(5000);
  EXPECT_EQ(spin.Value(), 11);
  User().PressMouse("spinDown");
  User().MoveMouse("spinDown", {1, 1}, false);  // it was released elsewhere
  machine.timers.Advance(5000);
  EXPECT_EQ(spin.Value(), 10);
  EXPECT_EQ(machine.timers.Running(), 0);
}

TEST_F(SpinEditTest, LeavesAValueOutsideTheRangeAloneUntilItIsEdited) {
  spin.SetValue(-5);
  spin.SetFocus();
  other.SetFocus();
  EXPECT_EQ(Shown(), "-5");
  EXPECT_EQ(spin.Value(), -5);
  EXPECT_EQ(fired, (std::vector<std::int64_t>{-5}));
  User().PressKey("spin", Key::kUp);
  EXPECT_EQ(spin.Value(), 1000);
}

TEST_F(SpinEditTest, StopsAtTheEndsOfWhatItsNumbersCanBe) {
  spin.SetRange(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max(),
                1000);
  spin.SetValue(std::numeric_limits<std::int64_t>::max() - 5);
  User().PressKey("spin", Key::kPageUp);
  EXPECT_EQ(spin.Value(), std::numeric_limits<std::int64_t>::max());
  spin.SetValue(std::numeric_limits<std::int64_t>::min() + 5);
  User().PressKey("spin", Key::kDown);
  EXPECT_EQ(spin.Value(), std::numeric_limits<std::int64_t>::min());
}

TEST_F(SpinEditTest, EnterEndsTheTypingAndOnlyThenIsForTheForm) {
  int pressed = 0;
  other.SetDefault(true);
  other.OnClick = [&] { ++pressed; };
  Enter("70000");
  User().PressEnter("form");
  EXPECT_EQ(Shown(), "10000");
  EXPECT_EQ(pressed, 0);
  User().PressEnter("form");
  EXPECT_EQ(pressed, 1);
}

TEST_F(SpinEditTest, WhatThePasteBroughtIsUndoneWhenItIsNoNumber) {
  for (const char* pasted : {"abc", "12 000", "1,5", "--1", "0x10"}) {
    SCOPED_TRACE(pasted);
    Peer("spin").text = pasted;
    Peer("spin").events->OnChanged();
    EXPECT_EQ(Shown(), "5000");
  }
  EXPECT_TRUE(fired.empty());
}

TEST_F(SpinEditTest, TheCodeOverrulesWhatIsBeingTyped) {
  Enter("77");
  spin.SetValue(5000);  // what it has had all the time
  EXPECT_EQ(Shown(), "5000");
  other.SetFocus();
  EXPECT_EQ(spin.Value(), 5000);
  EXPECT_TRUE(fired.empty());
}

TEST_F(SpinEditTest, ItsPartsAreDisabledAndHintedWithIt) {
  spin.SetEnabled(false);
  EXPECT_FALSE(Peer("spin").enabled || Peer("spinUp").enabled || Peer("spinDown").enabled);
  User().Press("spinUp");
  EXPECT_EQ(spin.Value(), 5000);
  spin.SetEnabled(true);
  spin.SetHint("1000 to 10000");
  app.Hints().Pause = 0;
  User().PointAt("spin");
  machine.timers.Advance(10);
  EXPECT_TRUE(app.Hints().Showing());
}

}  // namespace
}  // namespace toolkit
