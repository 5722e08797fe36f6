#include "toolkit/controls/spin_edit.h"

#include <limits>
#include <tuple>

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
  // Texts are pasted one after the other, or one is typed; the last change fires when the keyboard
  // leaves.
  using Row = std::tuple<const char*, Names, const char*, Values>;
  for (const auto& [why, texts, then, changes] : {
           Row{"as soon as the last digit is there", {"1500"}, "1500", {1500}},
           Row{"the upper end, by a number inside", {"10000"}, "10000", {1000, 10000}},
           Row{"below", {"999"}, "1000", {1000}},
           Row{"above, by a number inside", {"10001"}, "10000", {1000, 10000}},
           Row{"beyond 64 bits", {"99999999999999999999"}, "10000", {9999, 10000}},
           Row{"letters are left out", {"2x5 0-0e"}, "2500", {2500}},
           Row{"nothing: the value from before", {"500", ""}, "5000", {}},
           Row{"emptied digit by digit", {"3000", "300", "30", "3", ""}, "5000", {3000, 5000}},
           Row{"no number", {"abc", "12 000", "1,5", "--1", "0x10"}, "5000", {}},
       }) {
    SCOPED_TRACE(why);
    spin.SetValue(5000);
    fired.clear();
    spin.SetFocus();
    if (texts.size() == 1) Enter(texts[0]);
    for (const std::string& text : texts.size() > 1 ? texts : Names()) Paste(text);
    other.SetFocus();
    EXPECT_EQ(Shown(), then);
    EXPECT_EQ(fired, changes);
  }
}

TEST_F(SpinEditTest, StepsWithArrowsWheelAndPageKeys) {
  using Row = std::tuple<const char*, std::int64_t, std::function<void()>, std::int64_t>;
  const auto key = [this](Key key) { return [this, key] { User().PressKey("spin", key); }; };
  const auto widest = [this] { spin.SetRange(kLowest, kHighest, 1000); };
  for (const auto& [why, from, move, to] : {
           Row{"down", 5000, key(Key::kDown), 4000},
           Row{"to the end, not beyond", 9500, key(Key::kUp), 10000},
           Row{"at the end", 1000, key(Key::kDown), 1000},
           Row{"from below the range", -5, key(Key::kUp), 1000},
           Row{"two notches", 5000, [&] { User().Wheel("spin", 2); }, 7000},
           Row{"the upper arrow", 5000, [&] { User().Press("spinUp"); }, 6000},
           Row{"from what is typed", 5000, [&] { Enter("20"), key(Key::kUp)(); }, 2000},
           Row{"no sign above zero", 5000, [&] { Enter("-3000"); }, 3000},
           Row{"in another range", 0, widest, 0},
           Row{"a page", 1000, key(Key::kPageUp), 11000},
           Row{"a page down", 10000, key(Key::kPageDown), 0},
           Row{"a sign below zero", 0, [&] { Enter("-3"); }, -3},
           Row{"to the end of numbers", kHighest - 5, key(Key::kPageUp), kHighest},
           Row{"to their other end", kLowest + 5, key(Key::kDown), kLowest},
       }) {
    SCOPED_TRACE(why);
    spin.SetValue(from);
    move();
    EXPECT_EQ(spin.Value(), to);
    EXPECT_EQ(Shown(), std::to_string(to));
  }
}

TEST_F(SpinEditTest, GoesOnWhileAnArrowIsHeld) {
  spin.SetRange(0, 1000, 1);
  spin.SetValue(0);
  Enter("-");
  EXPECT_EQ(Shown(), "0") << "no number of this range begins so";
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
  EXPECT_EQ(machine.timers.Running(), 0);
  User().PressMouse("spinUp");
  spin.SetEnabled(false);
  EXPECT_EQ(machine.timers.Running(), 0) << "it is held no longer";
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
  spin.SetHint("1000 to 10000");
  app.Hints().Pause = 0;
  for (const char* part : {"spin", "spinUp", "spinDown"}) {
    spin.SetEnabled(false);
    EXPECT_FALSE(Widget(part).enabled);
    spin.SetEnabled(true);
    User().PointAt(part);
    machine.timers.Advance(10);
    EXPECT_TRUE(app.Hints().Showing()) << part;
    User().PointAway();
  }
}

}  // namespace
}  // namespace toolkit
