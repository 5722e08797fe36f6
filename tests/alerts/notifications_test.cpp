#include "alerts/notifications.h"

#include <gtest/gtest.h>

#include "tests/world.h"

namespace {

class Notifications : public testing::Test, protected test::Reacting {
 protected:
  Notifications() { Set("NotificationsActive", 1); }

  // So many seconds, each a scan and then the timer.
  void Seconds(int count, std::int64_t dl, std::int64_t ul) {
    for (int i = 0; i < count; ++i) {
      notifications.CheckNotifications({dl, ul, 0, 0});
      machine.timers.Advance(1000);
    }
  }

  alerts::Notifications notifications{app, store, language, reactions};
};

TEST_F(Notifications, FireAfterSoManyScansInARowAndBeginAnew) {
  Set("LessUploaded", 1);
  Set("LessAction", 1);
  Set("LessDisplayMessage", "too quiet");
  Seconds(59, 9999, 5000);
  Seconds(1, 9999, 5001);
  Seconds(59, 9999, 0);
  EXPECT_TRUE(balloons.empty());
  Seconds(60, 9999, 5000);
  ASSERT_EQ(balloons.size(), 1U);
  EXPECT_EQ(balloons[0].title + ": " + balloons[0].text,
            "Korvane Tremolux Notification: too quiet");
  EXPECT_EQ(balloons[0].icon, platform::BalloonIcon::kWarning);
  EXPECT_EQ(balloons[0].seconds, 30);
  Seconds(1, 9999, 0);
  EXPECT_EQ(balloons.size(), 2U);
}

TEST_F(Notifications, AnAmountEqualToTheThresholdCountsForBothRules) {
  for (const auto& [rule, bytes, fires] : {std::tuple{std::string("Less"), 5000, 1U},
                                           {"Less", 5001, 0U},
                                           {"More", 5000, 1U},
                                           {"More", 4999, 0U}}) {
    for (const bool download : {false, true}) {
      SCOPED_TRACE(rule + std::to_string(bytes) + (download ? " down" : " up"));
      const std::string direction = rule + (download ? "Downloaded" : "Uploaded");
      Set(direction, 1);
      Set(rule + "NotSecs", 3);
      Set(rule + "Action", 1);
      balloons.clear();
      Seconds(3, download ? bytes : 7000, download ? 7000 : bytes);
      EXPECT_EQ(balloons.size(), fires);
      Set(direction, 0);
    }
  }
}

TEST_F(Notifications, SwitchedOffTheyKeepTheirCountsAndATimeOfZeroHoldsInBothDirections) {
  Set("MoreDownloaded", 1);
  Set("MoreNotSecs", 5);
  Set("MoreAction", 1);
  Seconds(3, 9000, 0);
  for (const char* flag : {"NotificationsActive", "MoreDownloaded"}) {
    Set(flag, 0);
    Seconds(1, 0, 0);
    EXPECT_FALSE(notifications.TimeOutTimer.Enabled());
    Set(flag, 1);
  }
  Seconds(1, 9000, 0);
  EXPECT_TRUE(balloons.empty());
  Seconds(1, 9000, 0);
  EXPECT_EQ(balloons.size(), 1U);
  for (const int time : {0, -7}) {
    Set("MoreNotSecs", time);
    balloons.clear();
    Seconds(3, 0, 0);
    EXPECT_EQ(balloons.size(), 6U) << time;
  }
}

TEST_F(Notifications, TheActionCodesDoWhatTheyDo) {
  Set("LessIsPlay", 1);
  for (const int action : {0, 1, 3, 9, 2}) {  // the second message entry, 3, is inert
    balloons.clear();
    Set("LessAction", action);
    notifications.LessNotification.Execute();
    EXPECT_EQ(balloons.size(), action == 1 ? 1U : 0U) << action;
    EXPECT_EQ(app.Terminated(), action == 2) << action;
  }
  EXPECT_EQ(machine.sound.played, std::vector<std::string>(5, store.ProgramFile("warning.wav")));
}

class Shutdown : public testing::Test, protected test::Reacting {};

TEST_F(Shutdown, AsksTheSystemWithThePrivilegeAndEndsTheProgramOnSuccessOnly) {
  std::uint32_t error = 0;
  manager.shutdown.OnError = [&](std::uint32_t code) { error = code; };
  for (const std::uint32_t result : {5U, 0U}) {
    machine.session.exit_result = result;
    EXPECT_EQ(manager.shutdown.Execute(), result);
    EXPECT_EQ(error, 5U);
    EXPECT_EQ(app.Terminated(), result == 0);
  }
  manager.shutdown.Exittype = alerts::ExitType::xReboot;
  manager.shutdown.Execute();
  const std::string on = "enable SeShutdownPrivilege", off = "disable SeShutdownPrivilege";
  EXPECT_EQ(machine.session.calls,
            (std::vector<std::string>{on, "exit 1", off, on, "exit 1", off, on, "exit 2", off}));
}

TEST_F(Shutdown, AsksTheUserOnlyWhereItIsToConfirm) {
  std::string asked;
  bool yes = false;
  manager.shutdown.OnBeforeShutdown = [&] { asked += "before, "; };
  manager.shutdown.Confirm = true;
  EXPECT_EQ(manager.shutdown.Execute(), 0U) << "nobody can be asked";
  manager.shutdown.OnConfirm = [&](std::string_view question) {
    asked += question;
    return yes;
  };
  EXPECT_EQ(manager.shutdown.Execute(), 0U);
  EXPECT_TRUE(machine.session.calls.empty());
  EXPECT_EQ(asked, "before, before, Are you sure you want to reboot your PC now ?");
  yes = true;
  manager.shutdown.Execute();
  EXPECT_EQ(machine.session.calls.size(), 3U);
}

}  // namespace
