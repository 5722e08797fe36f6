#include "alerts/bandwidth_alert.h"

#include <gtest/gtest.h>

#include "alerts/unit_BandWidthAlert.h"
#include "tests/world.h"

namespace {

class BandwidthAlert : public testing::Test, protected test::Reacting {
 protected:
  BandwidthAlert() {
    Set("BAAlerts", 1);
    Set("MoreThan", 1);
    Set("baDownload", 1);
    Set("BAAction", 1);
    Set("BAMessage", "stop");
    Set("CurrentDayTotalDL", "1024");
  }

  // Runs the scan's step; `user` is what happens while the window is open.
  void Check(std::function<void()> user) {
    machine.message_loop.Then(std::move(user));
    alert.Check();
  }

  quantity::Quantity quantity{store, machine.locale};
  toolkit::ImageList images;
  toolkit::PopupMenu menu{app, images};
  alerts::BandwidthAlert alert{app, store, quantity, language, reactions, menu};
};

TEST_F(BandwidthAlert, ShowsABalloonAndItsWindowOnce) {
  bool shown = false;
  Check([&] {
    shown = Widget("T_frmBandWidthAlert").visible;
    EXPECT_EQ(Widget("T_frmBandWidthAlert").text, "Brisanto .NET Bandwidth Alert");
    alert.Check();  // a scan while the window is open
    machine.windowing.Press("OkBtn");
  });
  EXPECT_TRUE(shown);
  EXPECT_FALSE(machine.windowing.Exists("T_frmBandWidthAlert"));
  ASSERT_EQ(balloons.size(), 1U);
  EXPECT_EQ(balloons[0].title, "Korvane TremoluxBandwidth Alert") << "no blank between the parts";
  EXPECT_EQ(balloons[0].text, "stop");
  EXPECT_EQ(balloons[0].seconds, 15);
  EXPECT_TRUE(store.ReadBool("BAShow", false));
}

TEST_F(BandwidthAlert, EnterAnswersItsWindow) {
  Check([&] {
    EXPECT_EQ(machine.windowing.Focused(), "OkBtn");
    machine.windowing.PressEnter("T_frmBandWidthAlert");
  });
  EXPECT_FALSE(machine.windowing.Exists("T_frmBandWidthAlert"));
}

TEST_F(BandwidthAlert, ASecondOneWhileTheFirstIsOpenRaisesIt) {
  Check([&] {
    store.WriteBool("BAShow", false);  // midnight
    alert.Check();
    EXPECT_EQ(Widget("T_frmBandWidthAlert").raised, 1);
    EXPECT_EQ(balloons.size(), 2U);
    machine.windowing.ClickCloseBox("T_frmBandWidthAlert");
  });
}

TEST_F(BandwidthAlert, AMenuThatIsOpenGoesBeforeItsWindowComes) {
  toolkit::Form owner(app, "owner", platform::Frame::kDialog);
  machine.menus.user = [this](const auto&, auto&) {
    alert.Check();  // a scan while the menu is open
    EXPECT_TRUE(machine.menus.cancelled);
    EXPECT_EQ(balloons.size(), 1U) << "the balloon waits for nothing";
    EXPECT_FALSE(machine.windowing.Exists("T_frmBandWidthAlert"))
        << "under the menu it would not get the mouse";
    return 0;
  };
  bool shown = false;
  machine.message_loop.Then([&] {
    shown = machine.windowing.Exists("T_frmBandWidthAlert");
    machine.windowing.Press("OkBtn");
  });
  menu.Popup({5, 6}, owner);
  EXPECT_TRUE(shown);
}

TEST_F(BandwidthAlert, OtherActionsShowNothing) {
  struct Row {
    int action;
    std::size_t session_calls;
  };
  Set("chkBAPlay", 1);
  Set("BaPlayFile", "C:\\alarm.wav");
  for (const Row& row : {Row{0, 0}, Row{3, 0}, Row{9, 0}, Row{2, 3}}) {
    SCOPED_TRACE(row.action);
    Set("BAAction", row.action);
    store.WriteBool("BAShow", false);
    machine.sound.played.clear();
    alert.Check();
    EXPECT_TRUE(balloons.empty());
    EXPECT_EQ(machine.sound.played, (std::vector<std::string>{"C:\\alarm.wav"}));
    EXPECT_EQ(machine.session.calls.size(), row.session_calls);
  }
}

TEST_F(BandwidthAlert, TheDetailsOpenAndCloseAndRefreshTwiceASecond) {
  constexpr platform::Colour kLime = 0x00FF00;
  constexpr platform::Colour kSilver = 0xC0C0C0;
  constexpr platform::Colour kLightRed = 0x9999FF;
  Check([&] {
    const int closed = Widget("T_frmBandWidthAlert").ClientSize().height;
    EXPECT_EQ(closed, 110);
    machine.windowing.Press("btnDetails");
    EXPECT_EQ(Widget("T_frmBandWidthAlert").ClientSize().height, 255);
    EXPECT_EQ(Widget("btnDetails").text, "<< Details");

    EXPECT_EQ(Widget("lblBandwidthLimit").text, "0,0") << "nothing before the first tick";
    machine.timers.Advance(500);
    EXPECT_EQ(Widget("lblBandwidthLimit").text, "1");
    EXPECT_EQ(Widget("lblBandwidthType").text, "Daily");
    EXPECT_EQ(Widget("lblBandwidthCurrDLTotal").text, "1");
    EXPECT_EQ(Widget("lblBandwidthCurrDLTotal").text_colour, kLime);
    EXPECT_EQ(Widget("lblBandwidthCurrULTotal").text_colour, kSilver);
    EXPECT_EQ(Widget("lblBandwidthLeft").text, "0");
    EXPECT_EQ(Widget("lblBandwidthLeft").text_colour, kLime);

    Set("CurrentDayTotalDL", "2560");
    machine.timers.Advance(500);
    EXPECT_EQ(Widget("lblBandwidthLeft").text, "-1,5");
    EXPECT_EQ(Widget("lblBandwidthLeft").text_colour, kLightRed);
    Set("CurrentDayTotalDL", "0");
    machine.timers.Advance(500);
    EXPECT_EQ(Widget("lblBandwidthLeft").text_colour, kLightRed) << "the red is never set back";

    Set("baDownload", 0);
    Set("AlertsMoreThan", 7);
    Set("BADayWeekMonth", 2);
    Set("CurrentMonthTotalUL", "1536");
    machine.timers.Advance(500);
    EXPECT_EQ(Widget("lblBandwidthLimit").text, "1") << "a unit that does not exist leaves its row";
    EXPECT_EQ(Widget("lblBandwidthType").text, "Monthly");
    EXPECT_EQ(Widget("lblBandwidthCurrULTotal").text, "1,5");
    EXPECT_EQ(Widget("lblBandwidthCurrDLTotal").text_colour, kSilver);
    machine.windowing.Press("btnDetails");
    EXPECT_EQ(Widget("T_frmBandWidthAlert").ClientSize().height, 110);
    EXPECT_EQ(Widget("btnDetails").text, "Details >>");
    machine.windowing.PressEsc("T_frmBandWidthAlert");
  });
  EXPECT_FALSE(machine.windowing.Exists("T_frmBandWidthAlert"));
}

TEST_F(BandwidthAlert, ATotalThatIsNoNumberIsToldOnce) {
  int told = 0;
  app.SetExceptionHandler([&told](std::string_view) { ++told; });
  Check([&] {
    Set("CurrentDayTotalDL", "many");
    machine.timers.Advance(1500);
    EXPECT_EQ(told, 1);
    Set("CurrentDayTotalDL", "512");
    machine.timers.Advance(500);
    EXPECT_EQ(Widget("lblBandwidthCurrDLTotal").text, "0,5");
    machine.windowing.Press("OkBtn");
  });
}

}  // namespace
