#include "toolkit/menus/popup_menu.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/memory/machine.h"
#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {
namespace {

class Menu : public testing::Test {
 protected:
  static platform::TopWindowParams Params() {
    platform::TopWindowParams params;
    params.name = "form";
    return params;
  }
  void Choose(const std::string& text) {
    machine.menus.WillChoose(text);
    menu.Popup({5, 6}, form);
  }

  platform::memory::Machine machine;
  Application app{machine.Platform()};
  Form form{app, Params()};
  ImageList images;
  PopupMenu menu{app, images};
};

TEST_F(Menu, RunsTheHandlerOfTheChosenItemAtAnyDepth) {
  std::string clicked;
  menu.Items.Add("First").OnClick = [&] { clicked += "first "; };
  MenuItem& sub = menu.Items.Add("Sub");
  sub.Add("Inner").OnClick = [&] { clicked += "inner "; };
  sub.Add("Off").Enabled = false;
  Choose("First");
  Choose("Inner");
  Choose("Off");
  EXPECT_EQ(clicked, "first inner ");
}

TEST_F(Menu, ShowsAmpersandsOfNamesAndMnemonicsOfCaptions) {
  MenuItem& adapter = menu.Items.Add("Fish & Chips");
  adapter.Literal = true;
  menu.Items.Add("Graph&&Numeric");
  Choose("none");
  EXPECT_EQ(machine.menus.last[0].text, "Fish && Chips");
  EXPECT_EQ(machine.menus.last[1].text, "Graph&&Numeric");
  EXPECT_EQ(adapter.Caption, "Fish & Chips");
}

TEST_F(Menu, ARadioItemTakesTheCheckFromItsSiblingsOnly) {
  MenuItem& a = menu.Items.Add("a");
  MenuItem& b = menu.Items.Add("b");
  MenuItem& box = menu.Items.Add("box");
  a.RadioItem = b.RadioItem = true;
  box.SetChecked(true);
  a.SetChecked(true);
  b.SetChecked(true);
  EXPECT_FALSE(a.Checked());
  EXPECT_TRUE(b.Checked());
  EXPECT_TRUE(box.Checked());
}

TEST_F(Menu, AChoiceWhoseItemWentAwayMeanwhileDoesNothing) {
  bool clicked = false;
  MenuItem& adapters = menu.Items.Add("Adapters");
  adapters.Add("eth0").OnClick = [&] { clicked = true; };
  machine.menus.user = [&](const std::vector<platform::MenuEntry>& entries,
                           platform::MenuPainter&) {
    const int id = platform::memory::Menus::Find(entries, "eth0")->id;
    adapters.Clear();  // a scan found other adapters
    adapters.Add("eth1").OnClick = [&] { clicked = true; };
    return id;
  };
  menu.Popup({}, form);
  EXPECT_FALSE(clicked);
}

TEST_F(Menu, AHandlerMayRemoveItsOwnItem) {
  MenuItem& adapters = menu.Items.Add("Adapters");
  std::string clicked;
  adapters.Add("eth0").OnClick = [&, name = std::string("a name that lives on the heap")] {
    adapters.Clear();
    clicked = name;
  };
  Choose("eth0");
  EXPECT_EQ(clicked, "a name that lives on the heap");
}

TEST_F(Menu, AllThatWaitsForItsEndRunsInsteadOfTheChoice) {
  std::string done;
  menu.Items.Add("First").OnClick = [&] { done += "choice "; };
  machine.menus.user = [&](const auto&, auto&) {
    menu.CloseThen([&] { done += "alert "; });
    menu.CloseThen([&] { done += "exit "; });
    EXPECT_EQ(done, "");
    return 1;
  };
  menu.Popup({5, 6}, form);
  EXPECT_EQ(done, "alert exit ");
}

TEST_F(Menu, ALongCaptionIsCutWithAnEllipsis) {
  menu.Items.Add(std::string(255, 'W')).Literal = true;
  machine.menus.user = [&](const std::vector<platform::MenuEntry>& entries,
                           platform::MenuPainter& painter) {
    platform::memory::Raster raster({600, 22}, machine.screen);
    const platform::Size size = painter.Measure(entries[0], raster, 96);
    EXPECT_LT(size.width, 600);
    painter.Paint(entries[0], {}, raster, {0, 0, size.width, size.height});
    const auto& drawn = raster.Texts().at(0);
    EXPECT_TRUE(drawn.text.ends_with("WW\xE2\x80\xA6")) << drawn.text;
    EXPECT_LE(raster.TextSize(drawn.text, drawn.font).width, drawn.box.width);
    return 0;
  };
  menu.Popup({}, form);
}

TEST_F(Menu, TheHintOfAnItemShowsWhileItIsHighlighted) {
  app.Hints().Pause = 0;
  app.Hints().HidePause = 1000;
  menu.Items.Add("Plain");
  menu.Items.Add("Hinted").Hint = "ShortCut [ Ctrl+Alt+S ]";
  machine.menus.user = [&](const std::vector<platform::MenuEntry>& entries,
                           platform::MenuPainter& painter) {
    painter.Highlighted(&entries[1], {10, 10, 100, 20});
    machine.timers.Advance(20);
    EXPECT_EQ(machine.windowing.Find("TremoluxHint").text, "ShortCut [ Ctrl+Alt+S ]");
    painter.Highlighted(&entries[0], {10, 30, 100, 20});
    EXPECT_FALSE(app.Hints().Showing());
    painter.Highlighted(nullptr, {});
    return 0;
  };
  menu.Popup({}, form);
}

}  // namespace
}  // namespace toolkit
