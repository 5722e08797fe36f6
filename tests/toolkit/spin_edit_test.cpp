#include "toolkit/controls/spin_edit.h"

#include <limits>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"

namespace toolkit {
namespace {

using platform::Key;
using Values = std::vector<std::int64_t>;
constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();

class SpinEditTest : public FormTest {
 protected:
  SpinEditTest() {
    spin.SetRange(1000, 10000, 1000);
    spin.SetValue(5000);
    spin.OnChange = [this] { fired.push_back(spin.Value()); };
    form.Show();
    spin.SetFocus();
  }
  // In the place of what is there.
  void Enter(std::string_view text) {
    Widget("spin").all_selected = true;
    User().Type("spin", text);
  }
  // What stands in the field at once, as after a paste.
  void Paste(std::string_view text) {
    Widget("spin").text = text;
    Widget("spin").events->OnChanged();
  }
  std::string Shown() { return Widget("spin").text; }

  SpinEdit spin{form, "spin"};
  Button other{form, "other"};
  Values fired;
};

TEST_F(SpinEditTest, TakesWhatIsTypedAndKeepsItInTheRange) {
  struct Row {
    const char* why;
    Names texts;  // pasted one after the other, or one that is typed
    const char* then;
    Values fired;  // the last one when the keyboard leaves
  };
  const std::vector<Row> rows = {
      {"in the range as soon as the last digit is there", {"1500"}, "1500", {1500}},
      {"the upper end, by a number inside", {"10000"}, "10000", {1000, 10000}},
      {"below", {"999"}, "1000", {1000}},
      {"above, by a number inside", {"10001"}, "10000", {1000, 10000}},
      {"beyond 64 bits", {"99999999999999999999"}, "10000", {9999, 10000}},
      {"letters are left out", {"2x5 0-0e"}, "2500", {2500}},
      {"nothing: the value from before", {"500", ""}, "5000", {}},
      {"emptied digit by digit", {"3000", "300", "30", "3", ""}, "5000", {3000, 5000}},
      {"pasted, and no number", {"abc", "12 000", "1,5", "--1", "0x10"}, "5000", {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    spin.SetValue(5000);
    fired.clear();
    spin.SetFocus();
    if (row.texts.size() == 1) Enter(row.texts[0]);
    for (const std::string& text : row.texts.size() > 1 ? row.texts : Names()) Paste(text);
    other.SetFocus();
    EXPECT_EQ(Shown(), row.then);
    EXPECT_EQ(fired, row.fired);
  }
}

TEST_F(SpinEditTest, StepsWithArrowsWheelAndPageKeys) {
  struct Row {
    const char* why;
    std::int64_t from;
    std::function<void()> move;
    std::int64_t to;
  };
  const auto key = [this](Key key) { return [this, key] { User().PressKey("spin", key); }; };
  const auto steps = [&](const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(row.why);
      spin.SetValue(row.from);
      row.move();
      EXPECT_EQ(spin.Value(), row.to);
      EXPECT_EQ(Shown(), std::to_string(row.to));
    }
  };
  steps({{"down", 5000, key(Key::kDown), 4000},
         {"to the end, not beyond", 9500, key(Key::kUp), 10000},
         {"at the end", 1000, key(Key::kDown), 1000},
         {"from below the range", -5, key(Key::kUp), 1000},
         {"two notches", 5000, [&] { User().Wheel("spin", 2); }, 7000},
         {"the upper arrow", 5000, [&] { User().Press("spinUp"); }, 6000},
         {"from what has been typed", 5000, [&] { Enter("20"), User().PressKey("spin", Key::kUp); },
          2000}});
  spin.SetRange(kLowest, kHighest, 1000);
  steps({{"a page", 1000, key(Key::kPageUp), 11000},
         {"a page down", 10000, key(Key::kPageDown), 0},
         {"to the end of numbers", kHighest - 5, key(Key::kPageUp), kHighest},
         {"to their other end", kLowest + 5, key(Key::kDown), kLowest}});
}

TEST_F(SpinEditTest, GoesOnWhileAnArrowIsHeld) {
  spin.SetRange(0, 1000, 1);
  spin.SetValue(0);
  User().PressMouse("spinUp");
  machine.timers.Advance(399);
  EXPECT_EQ(spin.Value(), 1);
  machine.timers.Advance(1 + 10 * 50);
  EXPECT_EQ(spin.Value(), 11);
  User().ReleaseMouse("spinUp");
  machine.timers.Advance(5000);
  EXPECT_EQ(spin.Value(), 11);
  User().PressMouse("spinDown");
  User().MoveMouse("spinDown", {1, 1}, true);
  User().MoveMouse("spinDown", {1, 1}, false);  // it was released elsewhere
  machine.timers.Advance(5000);
  EXPECT_EQ(spin.Value(), 10);
  EXPECT_EQ(machine.timers.Running(), 0);
}

TEST_F(SpinEditTest, EnterEndsTheTypingAndOnlyThenIsForTheForm) {
  int pressed = 0;
  other.SetDefault(true);
  other.OnClick = [&] { ++pressed; };
  Enter("70000");
  for (const int expected : {0, 1}) {
    User().PressEnter("form");
    EXPECT_EQ(Shown(), "10000");
    EXPECT_EQ(pressed, expected);
  }
}

TEST_F(SpinEditTest, TheCodeOverrulesWhatIsBeingTypedAndMayLeaveTheRange) {
  Enter("77");
  spin.SetValue(5000);  // what it has had all the time
  EXPECT_EQ(Shown(), "5000");
  spin.SetValue(-5);
  other.SetFocus();
  EXPECT_EQ(Shown(), "-5");
  EXPECT_EQ(fired, Values{-5});
}

TEST_F(SpinEditTest, ItsPartsAreDisabledAndHintedWithIt) {
  User().PressMouse("spinUp");
  spin.SetEnabled(false);
  EXPECT_EQ(machine.timers.Running(), 0) << "it is held no longer";
  EXPECT_FALSE(Widget("spin").enabled || Widget("spinUp").enabled || Widget("spinDown").enabled);
  spin.SetEnabled(true);
  spin.SetHint("1000 to 10000");
  app.Hints().Pause = 0;
  for (const char* part : {"spin", "spinUp", "spinDown"}) {
    User().PointAt(part);
    machine.timers.Advance(10);
    EXPECT_TRUE(app.Hints().Showing()) << part;
    User().PointAway();
  }
}

}  // namespace
}  // namespace toolkit
