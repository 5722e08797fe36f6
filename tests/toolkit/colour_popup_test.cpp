#include "toolkit/colour_popup.h"

#include <optional>

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
  struct Row {
    const char* why;
    Colour present;
    std::vector<std::function<void()>> doings;
    std::optional<Colour> chosen;
  };
  using platform::colour::kRed;
  using platform::colour::kWhite;
  const auto keys = [this](const std::vector<Key>& keys) {
    return [this, keys] {
      for (const Key key : keys) User().PressKey("palette", key);
    };
  };
  const auto press = [this](const char* name) { return [this, name] { User().Press(name); }; };
  const auto enter = [this] { User().PressEnter("ColourPopup"); };
  const auto ok = press("btnColorOk");
  const auto click = [this] { User().PressMouse("palette", Cell(1, 2)); };
  const auto twice = [this] { User().DoubleClick("palette", Cell(7, 5)); };
  const auto more = press("btnMoreColors");
  const auto mix = [this] { machine.system_dialogs.Choose(Colour{0x123456}); };
  const auto cancel = [this] { machine.system_dialogs.Cancel(); };
  const std::vector<Row> rows = {
      {"arrows from the present one", kRed, {keys({Key::kRight, Key::kUp}), enter}, 0x40A0FF},
      {"not over the edges", kWhite, {keys({Key::kLeft, Key::kUp}), enter}, kWhite},
      {"nor over the others", 0x400040, {keys({Key::kRight, Key::kDown}), enter}, 0x400040},
      {"one that is not in the field: the first", 0x010203, {keys({Key::kDown}), ok}, kWhite},
      {"the mouse, then the button", 0x010203, {click, ok}, kRed},
      {"a click alone", 0x010203, {click, [&] { User().ClickCloseBox("ColourPopup"); }}, {}},
      {"a double click", 0x010203, {twice}, 0x400040},
      {"Esc", kRed, {keys({Key::kRight}), [&] { User().PressEsc("ColourPopup"); }}, {}},
      {"the button for it", kRed, {press("btnColorCancel")}, {}},
      {"the first cell", kRed, {[this] { User().DoubleClick("palette", Cell(0, 0)); }}, kWhite},
      {"nobody touched it", platform::colour::kButtonFace, {ok}, platform::colour::kButtonFace},
      {"mixed in the system's dialog", kRed, {more, mix}, 0x123456},
      {"not mixed there: the popup stays", kRed, {more, cancel, ok}, kRed},
      {"the program ends under both", kRed, {more, [&] { app.Terminate(); }}, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(Ask(row.present, row.doings), row.chosen);
    EXPECT_TRUE(Widget("form").enabled);
    EXPECT_FALSE(User().Exists("ColourPopup"));
  }
  EXPECT_EQ(machine.message_loop.starved, 0);
}

TEST_F(ColourPopupTest, StandsBelowItsPanelAndWithinTheScreen) {
  const platform::Rect work = machine.screen.Monitors().front().work_area;
  for (const auto& [left, top] :
       {std::pair(100, 100), {100, work.Bottom() - 60}, {work.Right() - 80, 100}}) {
    form.SetWindowBounds({left, top, 320, 340});
    Ask(0, {[&] {
          const platform::Rect place = Widget("ColourPopup").bounds;
          const platform::Point anchor = Widget("panel").ToScreen({0, 0});
          EXPECT_TRUE(place.left >= work.left && place.Right() <= work.Right());
          EXPECT_TRUE(place.top >= anchor.y + 20 || place.Bottom() <= anchor.y);
          EXPECT_EQ(Widget("ColourPopup").text, "Download");
          User().PressEsc("ColourPopup");
        }});
  }
}

}  // namespace
}  // namespace toolkit
