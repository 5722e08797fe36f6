#include "alerts/notifications.h"

#include <gtest/gtest.h>

#include "tests/world.h"

namespace {

class Notifications : public testing::Test, protected test::Reacting {
 protected:
  Notifications() { Set("NotificationsActive", 1); }

  // A second: a scan, and then the timer.
  void Second(std::int64_t dl, std::int64_t ul) {
    notifications.CheckNotifications({dl, ul, 0, 0});
    machine.timers.Advance(1000);
  }
  void Seconds(int count, std::int64_t dl, std::int64_t ul) {
    for (int i = 0; i < count; ++i) Second(dl, ul);
  }

  alerts::Notifications notifications{app, store, language, reactions};
};

TEST_F(Notifications, FireAfterSoManyScansInARowAndBeginAnew) {
  Set("LessUploaded", 1);
  Set("LessAction", 1);
  Set("LessDisplayMessage", "too quiet");
  Seconds(59, 9999, 5000);
  Second(9999, 5001);
  Seconds(59, 9999, 0);
  EXPECT_TRUE(balloons.empty());
  Second(9999, 5000);
  ASSERT_EQ(balloons.size(), 1U);
  EXPECT_EQ(balloons[0].title, "Korvane Tremolux Notification");
  EXPECT_EQ(balloons[0].text, "too quiet");
  EXPECT_EQ(balloons[0].icon, platform::BalloonIcon::kWarning);
  EXPECT_EQ(balloons[0].seconds, 30);
  Seconds(59, 9999, 0);
  EXPECT_EQ(balloons.size(), 1U);
  Second(9999, 0);
  EXPECT_EQ(balloons.size(), 2U);
}

TEST_F(Notifications, AnAmountEqualToTheThresholdCountsForBothRules) {
  struct Row {
    const char* why;
    const char* rule;
    std::int64_t bytes;
    bool fires;
  };
  static constexpr Row kRows[] = {
      {"less: equal", "Less", 5000, true}, {"less: one more", "Less", 5001, false},
      {"more: equal", "More", 5000, true}, {"more: one less", "More", 4999, false},
      {"less: nothing", "Less", 0, true},
  };
  for (const Row& row : kRows) {
    for (const char* direction : {"Downloaded", "Uploaded"}) {
      SCOPED_TRACE(std::string(row.why) + direction);
      const std::string rule = row.rule;
      Set(rule + direction, 1);
      Set(rule + "NotSecs", 3);
      Set(rule + "Action", 1);
      balloons.clear();
      alerts::Notifications fresh(app, store, language, reactions);
      const bool download = std::string_view(direction) == "Downloaded";
      for (int i = 0; i < 3; ++i) {
        fresh.CheckNotifications({download ? row.bytes : 7000, download ? 7000 : row.bytes, 0, 0});
        machine.timers.Advance(1000);
      }
      EXPECT_EQ(balloons.size(), row.fires ? 1U : 0U);
      Set(rule + direction, 0);
    }
  }
}

TEST_F(Notifications, BothDirectionsQualifyingRunTheReactionTwiceInASecond) {
  Set("LessDownloaded", 1);
  Set("LessUploaded", 1);
  Set("LessNotSecs", 2);
  Set("LessAction", 1);
  Set("LessIsPlay", 1);
  Seconds(2, 0, 0);
  EXPECT_EQ(balloons.size(), 2U);
  EXPECT_EQ(machine.sound.played.size(), 2U);
}

TEST_F(Notifications, SwitchedOffTheyKeepTheirCounts) {
  Set("MoreDownloaded", 1);
  Set("MoreNotSecs", 5);
  Set("MoreAction", 1);
  Seconds(3, 9000, 0);
  for (const char* flag : {"NotificationsActive", "MoreDownloaded"}) {
    Set(flag, 0);
    Second(0, 0);
    EXPECT_FALSE(notifications.TimeOutTimer.Enabled());
    Set(flag, 1);
  }
  Seconds(1, 9000, 0);
  EXPECT_TRUE(balloons.empty());
  Second(9000, 0);
  EXPECT_EQ(balloons.size(), 1U);
}

TEST_F(Notifications, ATimeOfZeroOrLessHoldsAtEveryTick) {
  Set("MoreUploaded", 1);
  Set("MoreAction", 1);
  Set("MoreNotSecs", 0);
  Seconds(3, 0, 0);
  EXPECT_EQ(balloons.size(), 6U) << "both directions, each second";
  Set("MoreNotSecs", -7);
  Seconds(1, 0, 0);
  EXPECT_EQ(balloons.size(), 8U);
}

TEST_F(Notifications, TheActionCodesDoWhatTheyDo) {
  struct Row {
    const char* why;
    int action;
    std::size_t balloons;
    std::size_t session_calls;
  };
  static constexpr Row kRows[] = {{"none", 0, 0, 0},
                                  {"message", 1, 1, 0},
                                  {"the second message entry is inert", 3, 0, 0},
                                  {"a code that does not exist", 9, 0, 0},
                                  {"shutdown", 2, 0, 3}};
  Set("LessIsPlay", 1);
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    balloons.clear();
    machine.sound.played.clear();
    Set("LessAction", row.action);
    notifications.LessNotification.Execute();
    EXPECT_EQ(balloons.size(), row.balloons);
    EXPECT_EQ(machine.session.calls.size(), row.session_calls);
    EXPECT_EQ(machine.sound.played, (std::vector<std::string>{store.ProgramFile("warning.wav")}));
  }
  EXPECT_TRUE(app.Terminated());
}

TEST(Shutdown, AsksTheSystemWithThePrivilegeAndEndsTheProgramOnSuccessOnly) {
  struct Row {
    alerts::ExitType type;
    const char* call;
  };
  static constexpr Row kRows[] = {{alerts::ExitType::xLogoff, "exit 0"},
                                  {alerts::ExitType::xReboot, "exit 2"},
                                  {alerts::ExitType::xShutDown, "exit 1"},
                                  {alerts::ExitType::xPowerOff, "exit 8"},
                                  {alerts::ExitType::xForce, "exit 4"}};
  for (const Row& row : kRows) {
    platform::memory::Machine machine;
    toolkit::Application app(machine.Platform());
    alerts::Shutdown shutdown(app);
    shutdown.Exittype = row.type;
    machine.session.exit_result = 5;
    std::uint32_t error = 0;
    shutdown.OnError = [&](std::uint32_t code) { error = code; };
    EXPECT_EQ(shutdown.Execute(), 5U);
    EXPECT_EQ(error, 5U);
    EXPECT_FALSE(app.Terminated());
    EXPECT_EQ(machine.session.calls,
              (std::vector<std::string>{"enable SeShutdownPrivilege", row.call,
                                        "disable SeShutdownPrivilege"}));
    machine.session.exit_result = 0;
    EXPECT_EQ(shutdown.Execute(), 0U);
    EXPECT_TRUE(app.Terminated());
  }
}

TEST(Shutdown, AsksTheUserOnlyWhereItIsToConfirm) {
  platform::memory::Machine machine;
  toolkit::Application app(machine.Platform());
  alerts::Shutdown shutdown(app);
  int before = 0;
  shutdown.OnBeforeShutdown = [&] { ++before; };
  shutdown.Confirm = true;
  shutdown.OnConfirm = [](std::string_view) { return false; };
  EXPECT_EQ(shutdown.Execute(), 0U);
  EXPECT_EQ(before, 1);
  EXPECT_TRUE(machine.session.calls.empty());
  shutdown.OnConfirm = [](std::string_view question) {
    return question == "Are you sure you want to reboot your PC now ?";
  };
  shutdown.Execute();
  EXPECT_EQ(machine.session.calls.size(), 3U);
}

}  // namespace
