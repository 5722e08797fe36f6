#include "toolkit/colour_popup.h"

#include <functional>
#include <vector>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/open_dialog.h"

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
  void Keys(const std::vector<Key>& keys) {
    for (const Key key : keys) User().PressKey("palette", key);
  }
  // The middle of a cell.
  platform::Point Cell(int column, int row) {
    const platform::Size size = Peer("palette").ClientSize();
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
  const auto enter = [this] { User().PressEnter("ColourPopup"); };
  const auto ok = [this] { User().Press("btnColorOk"); };
  const std::vector<Row> rows = {
      {"arrows from the present one, Enter",
       platform::colour::kRed,
       {[&] {
          Keys({Key::kRight, Key::kUp});
        },
        enter},
       0x40A0FF},
      {"not over the edges",
       platform::colour::kWhite,
       {[&] {
          Keys({Key::kLeft, Key::kUp});
        },
        enter},
       platform::colour::kWhite},
      {"a colour that is not in the field: the first one",
       0x010203,
       {[&] { Keys({Key::kDown}); }, ok},
       platform::colour::kWhite},
      {"the mouse, then the button",
       0x010203,
       {[&] { User().PressMouse("palette", Cell(1, 2)); },
        [&] { User().ReleaseMouse("palette", Cell(1, 2)); }, ok},
       platform::colour::kRed},
      {"a click alone does not confirm",
       0x010203,
       {[&] { User().Press("palette"); }, [&] { User().ClickCloseBox("ColourPopup"); }},
       std::nullopt},
      {"a double click does",
       0x010203,
       {[&] { User().DoubleClick("palette", Cell(7, 5)); }},
       0x400040},
      {"Esc",
       platform::colour::kRed,
       {[&] { Keys({Key::kRight}); }, [&] { User().PressEsc("ColourPopup"); }},
       std::nullopt},
      {"the button for it",
       platform::colour::kRed,
       {[&] { User().Press("btnColorCancel"); }},
       std::nullopt},
      {"a system colour that nobody touched",
       platform::colour::kButtonFace,
       {ok},
       platform::colour::kButtonFace},
      {"mixed in the system's dialog",
       platform::colour::kRed,
       {[&] { User().Press("btnMoreColors"); },
        [&] { machine.system_dialogs.Choose(Colour{0x123456}); }},
       0x123456},
      {"not mixed there: the popup stays",
       platform::colour::kRed,
       {[&] { User().Press("btnMoreColors"); }, [&] { machine.system_dialogs.Cancel(); }, ok},
       platform::colour::kRed},
      {"the program ends under both",
       platform::colour::kRed,
       {[&] { User().Press("btnMoreColors"); }, [&] { app.Terminate(); }},
       std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(Ask(row.present, row.doings), row.chosen);
    EXPECT_TRUE(Peer("form").enabled);
    EXPECT_FALSE(User().Exists("ColourPopup"));
  }
  EXPECT_EQ(machine.message_loop.starved, 0);
}

TEST_F(ColourPopupTest, StandsBelowItsPanelAndWithinTheScreen) {
  const platform::Rect work = machine.screen.Monitors().front().work_area;
  struct Row {
    const char* why;
    platform::Point form;
  };
  for (const Row& row :
       {Row{"room below", {100, 100}}, Row{"none below", {100, work.Bottom() - 60}},
        Row{"none to the right", {work.Right() - 80, 100}}}) {
    SCOPED_TRACE(row.why);
    form.SetWindowBounds({row.form.x, row.form.y, 320, 340});
    Ask(0, {[&] {
          const platform::Rect place = Peer("ColourPopup").bounds;
          const platform::Point anchor = Peer("panel").ToScreen({0, 0});
          EXPECT_TRUE(place.left >= work.left && place.Right() <= work.Right());
          EXPECT_TRUE(place.top >= anchor.y + 20 || place.Bottom() <= anchor.y);
          EXPECT_EQ(Peer("ColourPopup").text, "Download");
          User().PressEsc("ColourPopup");
        }});
  }
}

TEST_F(ColourPopupTest, OfTheOpenDialogTheMasksStandBehindTheNames) {
  OpenDialog dialog;
  dialog.Title = "Choose a Sound";
  dialog.Kinds = {{"Sounds", "*.wav"}, {"All files", "*.*"}};
  dialog.InitialFolder = "C:\\Icons\\";
  machine.message_loop.Then([&] { machine.system_dialogs.Choose("C:\\x.wav"); });
  EXPECT_EQ(dialog.Execute(form), "C:\\x.wav");
  const platform::OpenFileRequest& request = machine.system_dialogs.file_requests.at(0);
  EXPECT_EQ(request.kinds[0].name, "Sounds (*.wav)");
  EXPECT_EQ(request.kinds[1].mask, "*.*");
  EXPECT_EQ(request.folder, "C:\\Icons\\");
}

}  // namespace
}  // namespace toolkit
