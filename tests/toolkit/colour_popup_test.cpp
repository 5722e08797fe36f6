#include "toolkit/colour_popup.h"

#include <optional>
#include <tuple>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"

namespace toolkit {
namespace {

using platform::Colour;
using platform::Key;

class ColourPopupTest : public FormTest {
 protected:
  ColourPopupTest() {
    panel.SetBounds({10, 10, 60, 20});
    form.Show();
  }

  // What comes of a popup in which the user does these things.
  std::optional<Colour> Ask(Colour present, const std::vector<std::function<void()>>& doings) {
    for (const auto& doing : doings) machine.message_loop.Then(doing);
    return ChooseColour(panel, {"Download", "&More", "OK", "Cancel"}, present);
  }
  // The middle of a cell.
  platform::Point Cell(int column, int row) {
    const platform::Size size = Widget("palette").ClientSize();
    return {size.width * (2 * column + 1) / 16, size.height * (2 * row + 1) / 12};
  }

  ColourPanel panel{form, "panel"};
};

TEST_F(ColourPopupTest, GivesWhatTheUserConfirmsAndNothingElse) {
  using Doings = std::vector<std::function<void()>>;
  using Row = std::tuple<const char*, Colour, Doings, std::optional<Colour>>;
  using platform::colour::kRed;
  using platform::colour::kWhite;
  const auto keys = [this](const std::vector<Key>& keys) {
    return [this, keys] {
      for (const Key key : keys) User().PressKey("palette", key);
    };
  };
  const auto press = [this](const char* name) { return [this, name] { User().Press(name); }; };
  const auto twice = [this](int column, int row) {
    return [this, column, row] { User().DoubleClick("palette", Cell(column, row)); };
  };
  const auto enter = [this] { User().PressEnter("ColourPopup"); };
  const auto ok = press("btnColorOk");
  const auto click = [this] { User().PressMouse("palette", Cell(1, 2)); };
  const auto more = press("btnMoreColors");
  const auto mix = [this] { machine.system_dialogs.Choose(Colour{0x123456}); };
  const auto cancel = [this] { machine.system_dialogs.Cancel(); };
  for (const auto& [why, present, doings, chosen] : {
           Row{"arrows from it", kRed, {keys({Key::kRight, Key::kUp}), enter}, 0x40A0FF},
           Row{"to the edges", 0x8080FF, {keys({Key::kLeft, Key::kLeft, Key::kUp}), enter}, kWhite},
           Row{"others", 0x400000, {keys({Key::kRight, Key::kRight, Key::kDown}), ok}, 0x400040},
           Row{"Home", 0x400040, {keys({Key::kHome}), ok}, kWhite},
           Row{"not in the field: the first", 0x010203, {keys({Key::kDown}), ok}, kWhite},
           Row{"the mouse, then the button", 0x010203, {click, ok}, kRed},
           Row{"a click", 0, {click, [&] { User().ClickCloseBox("ColourPopup"); }}, {}},
           Row{"a click and its release", 0, {press("palette"), press("btnColorCancel")}, {}},
           Row{"a double click", 0x010203, {twice(7, 5)}, 0x400040},
           Row{"on the first cell", kRed, {twice(0, 0)}, kWhite},
           Row{"Esc", 0, {keys({Key::kRight}), [&] { User().PressEsc("ColourPopup"); }}, {}},
           Row{"nobody touched it", platform::colour::kMenu, {ok}, platform::colour::kMenu},
           Row{"mixed in the system's dialog", kRed, {more, mix}, 0x123456},
           Row{"not mixed there: the popup stays", kRed, {more, cancel, ok}, kRed},
           Row{"the program ends under both", kRed, {more, [&] { app.Terminate(); }}, {}},
       }) {
    EXPECT_EQ(Ask(present, doings), chosen) << why;
  }
  EXPECT_EQ(machine.message_loop.starved, 0);
}

// Its panel is 20 pixels high, and itself 258 by 251.
TEST_F(ColourPopupTest, StandsBelowItsPanelAndWithinTheScreen) {
  for (const auto& [panel_at, popup_at] :
       std::vector<std::pair<platform::Point, platform::Point>>{{{100, 100}, {100, 122}},
                                                                {{100, 711}, {100, 733}},
                                                                {{100, 712}, {100, 459}},
                                                                {{1200, 100}, {1022, 122}},
                                                                {{-20, 1000}, {0, 733}}}) {
    form.SetWindowBounds({panel_at.x - 13, panel_at.y - 32, 320, 340});
    Ask(0, {[&, at = popup_at] {
          EXPECT_EQ(Widget("ColourPopup").bounds, (platform::Rect{at.x, at.y, 258, 251}));
          EXPECT_EQ(Widget("ColourPopup").text, "Download");
          EXPECT_TRUE(Widget("palette").events->OnKey(Key::kEnd)) << "or it would leave the field";
          User().PressEsc("ColourPopup");
        }});
  }
}

}  // namespace
}  // namespace toolkit
