#include "toolkit/controls/control.h"

#include <gtest/gtest.h>

#include "platform/memory/machine.h"
#include "toolkit/application.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/panel.h"
#include "toolkit/design_pixels.h"
#include "toolkit/forms/form.h"
#include "toolkit/menus/popup_menu.h"

namespace toolkit {
namespace {

using platform::Rect;

class Controls : public testing::Test {
 protected:
  static platform::TopWindowParams Params() {
    platform::TopWindowParams params;
    params.name = "form";
    params.frame = platform::Frame::kHint;  // no frame: client and window are the same
    return params;
  }

  platform::memory::Machine machine;
  Application app{machine.Platform()};
  Form form{app, Params()};
};

TEST_F(Controls, AlignedOnesFillTheFormAroundHiddenSiblings) {
  Label client(form, "client");
  Panel bottom(form, "bottom");
  Label inner(bottom, "inner");
  client.SetAlign(Align::kClient);
  bottom.SetBounds({0, 0, 0, 17});
  bottom.SetAlign(Align::kBottom);
  bottom.SetBevels(BevelCut::kNone, BevelCut::kLowered);
  inner.SetAlign(Align::kClient);
  form.SetWindowBounds({100, 100, 200, 90});
  EXPECT_EQ(machine.windowing.Find("client").bounds, (Rect{0, 0, 200, 73}));
  EXPECT_EQ(machine.windowing.Find("bottom").bounds, (Rect{0, 73, 200, 17}));
  EXPECT_EQ(machine.windowing.Find("inner").bounds, (Rect{1, 1, 198, 15}));
  bottom.SetVisible(false);
  EXPECT_EQ(machine.windowing.Find("client").bounds, (Rect{0, 0, 200, 90}));
  client.SetVisible(false);
  bottom.SetAlign(Align::kClient);
  bottom.SetVisible(true);
  EXPECT_EQ(machine.windowing.Find("bottom").bounds, (Rect{0, 0, 200, 90}));
}

TEST_F(Controls, AreLaidOutInDesignPixelsAtTheResolutionOfTheirForm) {
  Label label(form, "label");
  label.SetBounds({10, 20, 100, 15});
  label.SetFont({"Tahoma", 11, false});
  platform::memory::WidgetState& window = machine.windowing.Find("form");
  window.dpi = 144;
  window.top_events->OnDpiChanged(144, {0, 0, 300, 300});
  EXPECT_EQ(machine.windowing.Find("label").bounds, (Rect{15, 30, 150, 23}));
  EXPECT_EQ(machine.windowing.Find("label").font.height, 17);
  EXPECT_EQ(window.bounds, (Rect{0, 0, 300, 300}));
}

TEST_F(Controls, APopupMenuServesTheControlsThatHaveNone) {
  Panel panel(form, "panel");
  Label label(panel, "label");
  ImageList images;
  PopupMenu menu(app, images);
  menu.Items.Add("Exit");
  form.SetPopupMenu(&menu);
  form.Show();
  machine.windowing.RightClick("label", {1, 2});
  EXPECT_EQ(machine.menus.opened, 1);
  label.SetEnabled(false);
  machine.windowing.RightClick("label", {1, 2});
  EXPECT_EQ(machine.menus.opened, 1);
}

TEST_F(Controls, SettingThePresentValueDoesNothing) {
  Label label(form, "label");
  label.SetCaption("text");
  label.SetCaption("text");
  EXPECT_EQ(machine.windowing.Find("label").text_changes, 1);
}

TEST_F(Controls, HintsComeAfterThePauseAndStayForTheirTime) {
  Label label(form, "label");
  label.SetHint("one\rtwo");
  platform::memory::WidgetState& state = machine.windowing.Find("label");
  app.Hints().Pause = 200;
  app.Hints().HidePause = 1000;
  state.events->OnMouseEnter();
  machine.timers.Advance(199);
  EXPECT_FALSE(app.Hints().Showing());
  machine.timers.Advance(1);
  EXPECT_TRUE(app.Hints().Showing());
  const auto picture = machine.windowing.Find("TremoluxHint").Paint(machine.screen);
  ASSERT_EQ(picture->Texts().size(), 2U);
  EXPECT_EQ(picture->Texts()[1].text, "two");
  machine.timers.Advance(1000);
  EXPECT_FALSE(app.Hints().Showing());

  app.Hints().HidePause = 0;  // hints are switched off
  state.events->OnMouseEnter();
  machine.timers.Advance(1000000);
  EXPECT_FALSE(app.Hints().Showing());
}

TEST_F(Controls, ALongHintIsBrokenBetweenItsWordsOrElseWithinThem) {
  machine.screen.monitors = {{{0, 0, 200, 800}, {0, 0, 200, 760}, 96}};
  Label label(form, "label");
  label.SetHint("some words in a line that is longer than the screen is wide\r" +
                std::string(90, 'x'));
  app.Hints().Pause = 0;
  machine.windowing.Find("label").events->OnMouseEnter();
  machine.timers.Advance(10);
  const auto& hint = machine.windowing.Find("TremoluxHint");
  EXPECT_LE(hint.bounds.Right(), 200);
  std::string all;
  const auto picture = hint.Paint(machine.screen);
  for (const auto& text : picture->Texts()) all += text.text + '|';
  EXPECT_EQ(all, "some words in a line that is|longer than the screen is wide|" +
                     std::string(32, 'x') + '|' + std::string(32, 'x') + '|' +
                     std::string(26, 'x') + '|');
}

TEST_F(Controls, AHintStandsBesideItsRowAndLeavesTheSubmenuFree) {
  struct Row {
    const char* why;
    platform::Rect area;
    bool opens_submenu;
    bool at_right;
    bool at_left;
  };
  static constexpr Row kRows[] = {
      {"a row", {300, 100, 100, 20}, false, true, false},
      {"at the right edge", {880, 100, 100, 20}, false, false, true},
      {"a submenu opens at the right", {300, 100, 100, 20}, true, false, true},
      {"a submenu opens at the left", {850, 100, 100, 20}, true, true, false},
      {"no side is free", {10, 100, 980, 20}, false, false, false},
      {"no side but that of the submenu", {10, 100, 200, 20}, true, false, false},
  };
  machine.screen.monitors = {{{0, 0, 1000, 700}, {0, 0, 1000, 700}, 96}};
  app.Hints().Pause = 0;
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    app.Hints().ShowBeside("some", row.area, 96, row.opens_submenu);
    machine.timers.Advance(10);
    const platform::Rect hint = machine.windowing.Find("TremoluxHint").bounds;
    EXPECT_EQ(hint.left >= row.area.Right(), row.at_right);
    EXPECT_EQ(hint.Right() <= row.area.left, row.at_left);
    if (!row.at_right && !row.at_left) {
      EXPECT_TRUE(hint.top >= row.area.Bottom() || hint.Bottom() <= row.area.top);
    }
  }
}

TEST_F(Controls, AHintGoesWithItsControl) {
  app.Hints().Pause = 0;
  {
    Label label(form, "label");
    label.SetHint("hint");
    machine.windowing.Find("label").events->OnMouseEnter();
    machine.timers.Advance(10);
    EXPECT_TRUE(app.Hints().Showing());
  }
  EXPECT_FALSE(app.Hints().Showing());
}

TEST(DesignPixels, ScaleThereAndBack) {
  for (const int dpi : {96, 120, 144, 192, 288}) {
    for (int pixels = -300; pixels <= 300; ++pixels) {
      ASSERT_EQ(UnscaleFrom(dpi, ScaleTo(dpi, pixels)), pixels) << dpi;
    }
  }
  EXPECT_EQ(PointsToDesignPixels(6), 8);
  EXPECT_EQ(PointsToDesignPixels(7), 9);
  EXPECT_EQ(PointsToDesignPixels(8), 11);
}

}  // namespace
}  // namespace toolkit
