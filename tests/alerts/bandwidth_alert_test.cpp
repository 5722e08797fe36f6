#include "alerts/bandwidth_alert.h"

#include <gtest/gtest.h>

#include <map>

#include "alerts/unit_BandWidthAlert.h"
#include "tests/world.h"

namespace {

constexpr const char* kForm = "T_frmBandWidthAlert";

class BandwidthAlert : public testing::Test, protected test::Reacting {
 protected:
  BandwidthAlert() {
    Set("BAAlerts", 1);
    Set("MoreThan", 1);
    Set("baDownload", 1);
    Set("BAAction", 1);
    Set("BAMessage", std::string(254, 's') + "\u00DFt");
    Set("CurrentDayTotalDL", "1024");
  }

  // Runs the scan's step; `user` is what happens while the window is open.
  void Check(std::function<void()> user) {
    machine.message_loop.Then(std::move(user));
    alert.Check();
    EXPECT_FALSE(machine.windowing.Exists(kForm));
  }
  // What the details show, from top to bottom.
  std::string Details() {
    std::string all;
    for (const char* row : {"Limit", "Type", "CurrDLTotal", "CurrULTotal", "Left"}) {
      const platform::memory::WidgetState& value = Widget(std::string("lblBandwidth") + row);
      static const std::map<platform::Colour, const char*> kColours = {
          {platform::colour::kLime, ", "},
          {platform::colour::kSilver, " silver, "},
          {0x9999FF, " red, "}};
      all += value.text + kColours.at(value.text_colour);
    }
    return all;
  }

  quantity::Quantity quantity{store, machine.locale};
  toolkit::ImageList images;
  toolkit::PopupMenu menu{app, images};
  alerts::BandwidthAlert alert{app, store, quantity, language, reactions, menu};
};

TEST_F(BandwidthAlert, ShowsABalloonAndItsWindowOnceInAPeriod) {
  Check([&] {
    EXPECT_EQ(Widget(kForm).text, "Brisanto .NET Bandwidth Alert");
    EXPECT_EQ(machine.windowing.Focused(), "OkBtn");
    EXPECT_TRUE(Widget("OkBtn").is_default && !Widget("Memo1").enabled);
    alert.Check();  // a scan while the window is open
    EXPECT_EQ(balloons.size(), 1U);
    Set("BAShow", 0);  // midnight
    alert.Check();
    EXPECT_EQ(Widget(kForm).raised, 1);
    machine.windowing.PressEnter(kForm);
  });
  ASSERT_EQ(balloons.size(), 2U);
  EXPECT_EQ(balloons[0].title, "Korvane TremoluxBandwidth Alert") << "no blank between the parts";
  EXPECT_EQ(balloons[0].text, std::string(254, 's') + "\u00DF") << "255 characters";
  EXPECT_EQ(balloons[0].seconds, 15);
  reactions.Warn(std::string(64, 't'), "", 1);
  EXPECT_EQ(balloons[2].title, std::string(63, 't'));
}

TEST_F(BandwidthAlert, AMenuThatIsOpenGoesBeforeItsWindowComes) {
  toolkit::Form owner(app, "owner", platform::Frame::kDialog);
  machine.menus.user = [this](const auto&, auto&) {
    alert.Check();  // a scan while the menu is open
    EXPECT_TRUE(machine.menus.cancelled);
    EXPECT_EQ(balloons.size(), 1U) << "the balloon waits for nothing";
    EXPECT_FALSE(machine.windowing.Exists(kForm)) << "under the menu it would not get the mouse";
    return 0;
  };
  machine.message_loop.Then([&] { machine.windowing.Press("OkBtn"); });
  menu.Popup({5, 6});
  EXPECT_EQ(machine.message_loop.StepsLeft(), 0U) << "and came then";
}

TEST_F(BandwidthAlert, OtherActionsPlayTheSoundAndShowNothing) {
  Set("chkBAPlay", 1);
  Set("BaPlayFile", "C:\\alarm.wav");
  for (const std::size_t action : {0U, 3U, 9U, 2U}) {
    Set("BAAction", static_cast<std::int64_t>(action));
    Set("BAShow", 0);
    alert.Check();
    EXPECT_EQ(machine.session.calls.size(), action == 2 ? 3U : 0U) << action;
  }
  EXPECT_EQ(machine.sound.played, std::vector<std::string>(4, "C:\\alarm.wav"));
  EXPECT_TRUE(balloons.empty());
}

TEST_F(BandwidthAlert, TheDetailsOpenAndCloseAndRefreshTwiceASecond) {
  Check([&] {
    const auto is_closed = [&] {
      EXPECT_EQ(Widget("btnDetails").text, "Details >>");
      EXPECT_EQ(Widget(kForm).ClientSize().height, 110);
    };
    is_closed();
    machine.windowing.Press("btnDetails");
    EXPECT_EQ(Widget(kForm).ClientSize().height, 255);
    EXPECT_EQ(Widget("btnDetails").text, "<< Details");
    EXPECT_FALSE(Widget("StaticText63").text.empty());
    EXPECT_FALSE(Widget("").visible) << "the unit of the kind of limit, which has none";
    const auto after = [&] {
      machine.timers.Advance(500);
      return Details();
    };
    EXPECT_EQ(Details(), "0,0, Daily, 0,0 silver, 0,0 silver, 0,0, ") << "before the first tick";
    EXPECT_EQ(after(), "1, Daily, 1, 0,0 silver, 0, ");
    Set("CurrentDayTotalDL", "2560");
    EXPECT_EQ(after(), "1, Daily, 2,5, 0,0 silver, -1,5 red, ");
    Set("CurrentDayTotalDL", "0");
    Set("baUpload", 1);
    Set("CurrentDayTotalUL", "512");
    EXPECT_EQ(after(), "1, Daily, 0,0, 0,5, 0,5 red, ") << "the red is never set back";
    Set("BADayWeekMonth", 3);
    EXPECT_EQ(after(), "1, Daily, 0,0, 0,5, 0,5 red, ") << "no such period";
    Set("baDownload", 0);
    Set("AlertsMoreThan", 7);
    Set("BADayWeekMonth", 1);
    Set("CurrentWeekTotalUL", "1536");
    EXPECT_EQ(after(), "1, Weekly, 0,0 silver, 1,5, 0,5 red, ") << "no such unit, so no limit";

    Set("BADayWeekMonth", 2);
    Set("CurrentMonthTotalUL", "many");
    machine.timers.Advance(1500);
    EXPECT_EQ(errors.size(), 1U) << "told once";
    Set("CurrentMonthTotalUL", "1024");
    EXPECT_EQ(after(), "1, Monthly, 0,0 silver, 1, 0,5 red, ");
    machine.windowing.Press("btnDetails");
    is_closed();
    machine.windowing.PressEsc(kForm);
  });
}

}  // namespace
