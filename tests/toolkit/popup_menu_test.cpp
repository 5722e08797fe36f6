#include "toolkit/menus/popup_menu.h"

#include "tests/toolkit/form_fixture.h"

namespace toolkit {
namespace {

class Menu : public FormTest {
 protected:
  // Opens the menu; `user` is what happens while it is open, and returns what is chosen.
  void Open(
      std::function<int(const std::vector<platform::MenuEntry>&, platform::MenuPainter&)> user) {
    machine.menus.user = std::move(user);
    menu.Popup({5, 6});
  }

  ImageList images;
  PopupMenu menu{app, images};
  std::string done;
};

TEST_F(Menu, AnItemMayGoWhileTheMenuIsOpenOrWhenItIsChosen) {
  MenuItem& adapters = menu.Items.Add("Adapters");
  adapters.Add("eth0").OnClick = [&] { done = "it was gone"; };
  Open([&](const auto& entries, auto&) {
    const int id = platform::memory::Menus::Find(entries, "eth0")->id;
    adapters.Clear();  // a scan found other adapters
    adapters.Add("eth1").OnClick = [&, name = std::string("a name that lives on the heap")] {
      adapters.Clear();
      done = name;
    };
    return id;
  });
  EXPECT_EQ(done, "");
  machine.menus.WillChoose("eth1");
  menu.Popup({5, 6});
  EXPECT_EQ(done, "a name that lives on the heap");
  menu.Items.Add("Exit").OnClick = [&] { done = "chosen after the end"; };
  Open([&](const auto& entries, auto&) {
    app.Terminate();
    return platform::memory::Menus::Find(entries, "Exit")->id;
  });
  EXPECT_EQ(done, "a name that lives on the heap");
}

TEST(ShortCuts, AreToldByTheirKeys) {
  EXPECT_EQ(ShortCutText(kShift | kCtrl | kAlt | 'A'), "Shift+Ctrl+Alt+A");
  for (const auto& [key, name] :
       {std::pair('0', "0"), {'9', "9"}, {'Z', "Z"}, {'p', "F1"}, {'\x2F', ""}, {'[', ""}}) {
    EXPECT_EQ(ShortCutText(static_cast<ShortCut>(key)), name);
  }
}

TEST_F(Menu, ALongNameIsCutAndTheHintOfAnItemShowsWhileItIsHighlighted) {
  app.Hints().Pause = 0;
  app.Hints().HidePause = 1000;
  menu.Items.Add(std::string(255, 'W') + "&").Literal = true;
  menu.Items.Add("Hinted").Hint = "ShortCut [ Ctrl+Alt+S ]";
  Open([&](const auto& entries, platform::MenuPainter& painter) {
    platform::memory::Raster raster({600, 22}, machine.screen);
    const platform::Size size = painter.Measure(entries[0], raster, 96);
    EXPECT_LT(size.width, 600);
    painter.Paint(entries[0], {}, raster, {0, 0, size.width, size.height});
    const auto& drawn = raster.Texts().at(0);
    EXPECT_TRUE(drawn.text.ends_with("WW\xE2\x80\xA6")) << drawn.text;
    EXPECT_LE(raster.TextSize(drawn.text, drawn.font).width, drawn.box.width);

    painter.Highlighted(&entries[1], {10, 10, 100, 20});
    machine.timers.Advance(20);
    EXPECT_EQ(Widget("TremoluxHint").text, "ShortCut [ Ctrl+Alt+S ]");
    painter.Highlighted(&entries[0], {10, 30, 100, 20});
    EXPECT_FALSE(app.Hints().Showing());
    painter.Highlighted(nullptr, {});
    return 0;
  });
}

}  // namespace
}  // namespace toolkit
