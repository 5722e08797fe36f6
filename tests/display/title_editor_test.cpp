#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "display/titles/unit_AddTitlesForm.h"
#include "tests/display/meter.h"
#include "toolkit/controls/layout.h"

namespace {

using display::kAddTitlesForm;
using Lines = std::vector<std::string>;

constexpr std::string_view kFile = "WindowTitles.tit";
constexpr std::string_view kPlacementKey = "\\Software\\BrisantoNET\\Settings\\AddTitlesScreen";

class TitleEditor : public test::MeterTest {
 protected:
  void Put(std::string_view bytes) { machine.files.PutBesideProgram(kFile, bytes); }
  std::string File() { return machine.files.BytesBesideProgram(kFile).value_or("(missing)"); }
  Lines& Shown() { return Widget("WindowTitlesListbox").items; }

  // Opens the editor; `user` is what happens while it is open.
  void Edit(std::function<void()> user) {
    machine.message_loop.Then(std::move(user));
    Window().EditTitles();
    EXPECT_FALSE(machine.windowing.Exists(kAddTitlesForm));
    EXPECT_EQ(machine.message_loop.starved, 0);
  }
  void Add(std::string_view title) {
    machine.windowing.Type("AddNew", title);
    machine.windowing.Press("btnAdd");
  }
  void Ok() { machine.windowing.Press("OkBtn"); }
};

TEST_F(TitleEditor, KeepsWhatWasEditedWhicheverWayItCloses) {
  struct Row {
    const char* why;
    std::function<void()> close;
  };
  const Row rows[] = {
      {"OK", [&] { Ok(); }},
      {"Esc", [&] { machine.windowing.PressEsc(kAddTitlesForm); }},
      {"the close box", [&] { machine.windowing.ClickCloseBox(kAddTitlesForm); }},
      {"the program ends", [&] { App().Terminate(); }},
      {"the session ends",
       [&] {
         machine.windowing.EndSession();
         EXPECT_EQ(File(), "old\r\nnew\r\n") << "the process may be gone now";
       }},
  };
  Set("WindowTitle", 2);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Put("old\r\n");
    const platform::WindowId window = machine.other_windows.Add("A new one");
    Run([&] {
      Edit([&] {
        Add("new");
        EXPECT_EQ(File(), "old\r\n") << "not before it closes";
        row.close();
      });
      EXPECT_EQ(File(), "old\r\nnew\r\n");
      Scan({});
      if (!App().Terminated()) {
        EXPECT_EQ(machine.other_windows.Find(window).title.substr(0, 10), "A new one|");
      }
    });
    machine.other_windows.Remove(window);
  }
}

TEST_F(TitleEditor, AddsWhatIsTypedAndRemovesWhatIsSelected) {
  Put("one\r\ntwo\r\n");
  Run([&] {
    Edit([&] {
      EXPECT_EQ(Widget("WindowTitlesListbox").index, 0) << "the first line is selected";
      machine.windowing.Press("btnAdd");
      EXPECT_EQ(Shown(), (Lines{"one", "two"})) << "nothing was typed";
      machine.windowing.Type("AddNew", "Ж|é 漢");
      machine.windowing.PressEnter(kAddTitlesForm);
      EXPECT_EQ(Shown(), (Lines{"one", "two", "Ж|é 漢"}));
      EXPECT_EQ(Widget("AddNew").text, "");
      EXPECT_EQ(machine.windowing.Focused(), "AddNew");

      machine.windowing.Press("btnRemove");
      EXPECT_EQ(Shown(), (Lines{"two", "Ж|é 漢"}));
      machine.windowing.Press("btnRemove");
      EXPECT_EQ(Shown(), (Lines{"two", "Ж|é 漢"})) << "nothing is selected";
      machine.windowing.Choose("WindowTitlesListbox", 1);
      machine.windowing.Press("btnRemove");
      EXPECT_EQ(Shown(), (Lines{"two"}));
      Add("x");
      Add("y");
      machine.windowing.Choose("WindowTitlesListbox", 1);
      machine.windowing.PressKey("WindowTitlesListbox", platform::Key::kDelete);
      machine.windowing.PressKey("WindowTitlesListbox", platform::Key::kDelete);
      EXPECT_EQ(Shown(), (Lines{"two"}));
      Add("two");
      Ok();
    });
    EXPECT_EQ(File(), "two\r\ntwo\r\n");
  });
}

TEST_F(TitleEditor, KeepsWhatItDoesNotShowAndSaysSo) {
  const std::string path = machine.files.ProgramFolder() + std::string(kFile);
  const auto lines = [](int count, const std::string& end) {
    std::string text;
    for (int line = 0; line < count; ++line) text += "title " + std::to_string(line) + end;
    return text;
  };
  const std::string huge((std::size_t{16} << 20U) + 1, 'x');
  const auto hold = [&] { machine.files.SetHeld(path, true); };
  const auto protect = [&] { machine.files.SetWritable(path, false); };
  const std::string unreadable = "WindowTitles.tit can't be read. The file stays as it is.";
  const std::string too_many =
      "Only 10000 titles are shown and used. The file keeps those that follow.";
  struct Row {
    const char* why;
    std::string before;
    std::function<void()> prepare;
    std::string after;
    std::string note;
    std::size_t balloons = 0;
  };
  const Row rows[] = {
      {"UTF-8 with a mark", "\xEF\xBB\xBF\xC3\xA9\r\n", {}, "\xC3\xA9\r\nnew\r\n", ""},
      {"the system's code page", "caf\xE9\n", {}, "caf\xC3\xA9\r\nnew\r\n", ""},
      {"an empty line, and no end of the last", "\n\nx", {}, "\r\n\r\nx\r\nnew\r\n", ""},
      {"one that cannot be replaced", "x\n", protect, "x\n", "", 1},
      {"held by another program", "x\n", hold, "x\n", unreadable},
      {"over 16 MiB", huge, {}, huge, unreadable},
      {"one below the most", lines(9999, "\n"), {}, lines(9999, "\r\n") + "new\r\n", ""},
      {"the most: nothing is added", lines(10000, "\n"), {}, lines(10000, "\r\n"), too_many},
      {"more: they stay",
       lines(10000, "\n") + "a\n\nb",
       {},
       lines(10000, "\r\n") + "a\n\nb",
       too_many},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Put(row.before);
    if (row.prepare) row.prepare();
    machine.notification_area.balloons.clear();
    Run([&] {
      Edit([&] {
        EXPECT_EQ(Widget("Note").text, row.note);
        if (Widget("btnAdd").enabled) Add("new");
        Ok();
      });
      EXPECT_EQ(machine.notification_area.balloons.size(), row.balloons);
    });
    machine.files.SetHeld(path, false);
    machine.files.SetWritable(path, true);
    EXPECT_TRUE(File() == row.after) << File().substr(0, 100);
  }
  EXPECT_FALSE(machine.files.BytesBesideProgram("err.log"));
}

TEST_F(TitleEditor, AMissingFileIsAnEmptyListAndAListThatCannotBeStoredIsUsed) {
  machine.files.SetWritable(machine.files.ProgramFolder(), false);
  Set("WindowTitle", 2);
  const platform::WindowId window = machine.other_windows.Add("Notes");
  Run([&] {
    Edit([&] {
      EXPECT_TRUE(Shown().empty());
      EXPECT_EQ(Widget("WindowTitlesListbox").index, -1);
      EXPECT_EQ(Widget("Note").text, "");
      Add("NOTE");
      Ok();
    });
    EXPECT_EQ(File(), "(missing)");
    Scan({});
    EXPECT_EQ(machine.other_windows.Find(window).title.substr(0, 6), "Notes|");
  });
}

TEST_F(TitleEditor, ComesBackWhereItWasAndOnlyOnce) {
  Run([&] {
    Edit([&] {
      EXPECT_EQ(toolkit::LayoutFaults(*App().Modals().Top()), Lines());
      EXPECT_EQ(Widget(kAddTitlesForm).params.frame, platform::Frame::kTool);
      Window().EditTitles();
      EXPECT_EQ(Widget(kAddTitlesForm).raised, 1);
      machine.windowing.Drag(kAddTitlesForm, {40, 50});
      Ok();
    });
    EXPECT_EQ(machine.registry.Dword(kPlacementKey, "Left"), 40U);
    Edit([&] {
      EXPECT_EQ(Widget(kAddTitlesForm).bounds.left, 40);
      EXPECT_EQ(Widget(kAddTitlesForm).bounds.top, 50);
      Ok();
    });
  });
}

}  // namespace
