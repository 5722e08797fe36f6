// What all controls have: place, resolution, hint.
#include "toolkit/controls/control.h"

#include <tuple>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/panel.h"
#include "toolkit/design_pixels.h"

namespace toolkit {
namespace {

using platform::Rect;

class Controls : public FormTest {
 protected:
  Controls() {
    app.Hints().Pause = 0;
    form.Show();
  }
  void PassPause() { machine.timers.Advance(10); }
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
  EXPECT_EQ(Widget("client").bounds, (Rect{0, 0, 300, 283}));
  EXPECT_EQ(Widget("bottom").bounds, (Rect{0, 283, 300, 17}));
  EXPECT_EQ(Widget("inner").bounds, (Rect{1, 1, 298, 15}));
  bottom.SetVisible(false);
  EXPECT_EQ(Widget("client").bounds, (Rect{0, 0, 300, 300}));
  client.SetVisible(false);
  bottom.SetAlign(Align::kClient);
  bottom.SetVisible(true);
  EXPECT_EQ(Widget("bottom").bounds, (Rect{0, 0, 300, 300}));
}

TEST_F(Controls, AreLaidOutInDesignPixelsAtTheResolutionOfTheirForm) {
  Panel panel(form, "panel");
  panel.SetFont({"Verdana", 20, false});
  EXPECT_EQ(Label(panel, "inner").Font(), panel.Font()) << "that of its parent";
  Label label(form, "label");
  label.SetBounds({10, 20, 100, 15});
  label.SetFont({"Tahoma", 11, true});
  User().ChangeDpi("form", 144, {0, 0, 450, 450});
  EXPECT_EQ(Widget("label").bounds, (Rect{15, 30, 150, 23}));
  EXPECT_EQ(Widget("label").font, (platform::FontStyle{"Tahoma", 17, true}));
  EXPECT_EQ(form.ClientPixels(), (platform::Size{450, 450}));
  for (int pixels = -300; pixels <= 300; ++pixels) {
    ASSERT_EQ(UnscaleFrom(120, ScaleTo(120, pixels)), pixels);
  }
}

TEST_F(Controls, HintsComeAfterThePauseStayForTheirTimeAndGoWithTheirControl) {
  app.Hints().Pause = 200;
  app.Hints().Colour = platform::colour::kLime;
  app.Hints().HidePause = 1000;
  {
    Label label(form, "label");
    label.SetHint("one\rtwo");
    User().PointAt("label");
    machine.timers.Advance(199);
    EXPECT_FALSE(app.Hints().Showing());
    machine.timers.Advance(1);
    const auto picture = Widget("TremoluxHint").Paint(machine.screen);
    EXPECT_EQ(picture->Texts().at(1).text, "two");
    EXPECT_EQ(picture->Pixel({0, 0}), machine.screen.Resolve(platform::colour::kWindowFrame));
    EXPECT_EQ(picture->Pixel({1, 1}), platform::colour::kLime);
    label.SetHint("three");
    EXPECT_EQ(Widget("TremoluxHint").text, "three");
    machine.timers.Advance(1000);
    EXPECT_FALSE(app.Hints().Showing());
    User().PointAway();
    User().PointAt("label");
    User().PointAway();
    label.SetHint("not seen");
    machine.timers.Advance(200);
    EXPECT_FALSE(app.Hints().Showing()) << "left before it came";
    User().PointAt("label");
    app.Hints().ShowBeside("of a menu", {10, 10, 50, 20}, 96, false);
    machine.timers.Advance(200);
    label.SetHint("four");
    EXPECT_EQ(Widget("TremoluxHint").text, "of a menu");
    User().PointAway();
    User().PointAt("label");
    machine.timers.Advance(200);
    EXPECT_EQ(Widget("TremoluxHint").text, "four");
  }
  EXPECT_FALSE(app.Hints().Showing());
}

TEST_F(Controls, ALongHintIsBrokenBetweenItsWordsOrElseWithinThem) {
  machine.screen.monitors = {{{0, 0, 200, 800}, {0, 0, 200, 760}, 96}};
  Label label(form, "label");
  label.SetHint("some words in a line that is longer than the screen is wide\ry " +
                std::string(70, 'x'));
  User().PointAt("label");
  PassPause();
  std::string all;
  const auto picture = Widget("TremoluxHint").Paint(machine.screen);
  for (const auto& text : picture->Texts()) all += text.text + '|';
  EXPECT_EQ(all, "some words in a line that is|longer than the screen is wide|y|" +
                     std::string(32, 'x') + '|' + std::string(32, 'x') + "|xxxxxx|");
}

// The hint is 30 by 18 pixels.
TEST_F(Controls, AHintStandsBesideItsRowOrAtThePointerWithinTheScreen) {
  machine.screen.monitors = {{{0, 0, 1000, 700}, {0, 0, 1000, 700}, 96}};
  // The area is empty for one at the pointer.
  using Row = std::tuple<const char*, Rect, bool, platform::Point, platform::Point>;
  for (const auto& [why, area, opens_submenu, pointer, at] : {
           Row{"a row at the right edge", {880, 100, 100, 20}, false, {}, {846, 100}},
           Row{"at the lower edge", {300, 690, 100, 20}, false, {}, {404, 682}},
           Row{"a submenu opens at the right", {300, 100, 100, 20}, true, {}, {266, 100}},
           Row{"no room at the left but its own width", {34, 100, 100, 20}, true, {}, {0, 100}},
           Row{"a submenu opens at the left", {850, 100, 100, 20}, true, {}, {954, 100}},
           Row{"no side is free", {10, 100, 980, 20}, false, {}, {10, 124}},
           Row{"nor below", {10, 670, 980, 20}, false, {}, {10, 648}},
           Row{"no side but that of the submenu", {10, 100, 200, 20}, true, {}, {10, 78}},
           Row{"the pointer at the right edge", {}, false, {990, 100}, {970, 120}},
           Row{"at the lower edge", {}, false, {100, 690}, {100, 672}},
       }) {
    machine.screen.pointer = pointer;
    app.Hints().ShowBeside("some", area, 96, opens_submenu);
    PassPause();
    EXPECT_EQ(Widget("TremoluxHint").bounds, (Rect{at.x, at.y, 30, 18})) << why;
  }
}

}  // namespace
}  // namespace toolkit
