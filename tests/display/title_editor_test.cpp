// The list of titles, and its editor.
#include "display/titles/unit_AddTitlesForm.h"
#include "tests/meter.h"

namespace {

using display::kAddTitlesForm;
using platform::WindowId;
using Lines = std::vector<std::string>;

constexpr std::string_view kFile = "WindowTitles.tit";
const std::string kIdle = "|[ DL:0,0 kB UL:0,0 kB ]";

class TitleEditor : public test::Meter {
 protected:
  TitleEditor() { Set("SOM2", 0), Set("SOM1", 1), Set("WindowTitle", 2); }

  std::string& Title(WindowId window) { return machine.other_windows.Find(window).title; }
  void Put(std::string_view bytes) { machine.files.PutBesideProgram(kFile, bytes); }
  std::string File() { return machine.files.BytesBesideProgram(kFile).value_or("(missing)"); }
  Lines& Shown() { return Widget("WindowTitlesListbox").items; }

  // Opens the editor; `user` is what happens while it is open.
  void Edit(std::function<void()> user) {
    Then(std::move(user));
    Window().EditTitles();
    EXPECT_FALSE(User().Exists(kAddTitlesForm));
  }
  void Add(std::string_view title) {
    User().Type("AddNew", title);
    User().Press("btnAdd");
  }

  const std::string path = machine.files.ProgramFolder() + std::string(kFile);
};

TEST_F(TitleEditor, KeepsWhatWasEditedWhicheverWayItCloses) {
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"OK", [&] { User().Press("OkBtn"); }},
      {"Esc", [&] { User().PressEsc(kAddTitlesForm); }},
      {"the session ends",
       [&] {
         User().Tell(&platform::TopWindowEvents::OnEndSession);
         EXPECT_EQ(File(), "old\r\nnew\r\n") << "the process may be gone now";
       }},
  };
  for (const auto& [why, close] : rows) {
    SCOPED_TRACE(why);
    Put("old\r\n");
    const WindowId window = machine.other_windows.Add("A new one");
    Run([&] {
      Edit([&] {
        Add("new");
        EXPECT_EQ(File(), "old\r\n") << "not before it closes";
        close();
      });
      EXPECT_EQ(File(), "old\r\nnew\r\n");
      Scan({});
      EXPECT_EQ(Title(window), App().Terminated() ? "A new one" : "A new one" + kIdle);
    });
    machine.other_windows.Remove(window);
  }
}

TEST_F(TitleEditor, AddsWhatIsTypedAndRemovesWhatIsSelected) {
  Put("one\r\ntwo\r\n");
  Run([&] {
    Edit([&] {
      const auto remove = [&] { User().Press("btnRemove"); };
      const auto select = [&](int row) { User().Choose("WindowTitlesListbox", row); };
      const auto press_delete = [&] {
        User().PressKey("WindowTitlesListbox", platform::Key::kDelete);
      };
      EXPECT_EQ(Widget("WindowTitlesListbox").index, 0) << "the first line is selected";
      User().Press("btnAdd");
      EXPECT_EQ(Shown(), (Lines{"one", "two"})) << "nothing was typed";
      User().Type("AddNew", "Ж|é 漢");
      User().PressEnter(kAddTitlesForm);
      EXPECT_EQ(Shown(), (Lines{"one", "two", "Ж|é 漢"}));
      EXPECT_EQ(Widget("AddNew").text, "");
      EXPECT_EQ(User().Focused(), "AddNew");
      remove();
      remove();  // nothing is selected
      EXPECT_EQ(Shown(), (Lines{"two", "Ж|é 漢"}));
      Add("x");
      Add("y");
      select(1);
      press_delete();  // the next one has come in its place
      press_delete();
      press_delete();
      EXPECT_EQ(Shown(), Lines{"two"});
      EXPECT_EQ(Widget("WindowTitlesListbox").index, 0);
      Add("two");
      User().Press("OkBtn");
    });
    EXPECT_EQ(File(), "two\r\ntwo\r\n");
  });
}

TEST_F(TitleEditor, KeepsWhatItDoesNotShowAndSaysSo) {
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
      {"more than the most: nothing is added, and they stay",
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
        EXPECT_EQ(Widget("btnAdd").enabled, row.note.empty());
        EXPECT_EQ(Widget("btnRemove").enabled, row.note != unreadable);
        if (Widget("btnAdd").enabled) Add("new");
        User().Press("OkBtn");
      });
      EXPECT_EQ(machine.notification_area.balloons.size(), row.balloons);
    });
    machine.files.SetHeld(path, false);
    machine.files.SetWritable(path, true);
    EXPECT_TRUE(File() == row.after) << File().substr(0, 100);
  }
  // A list that cannot be stored is used all the same.
  machine.files.Remove(path);
  machine.files.SetWritable(machine.files.ProgramFolder(), false);
  const WindowId window = machine.other_windows.Add("Notes");
  Run([&] {
    Edit([&] {
      EXPECT_TRUE(Shown().empty());
      EXPECT_EQ(Widget("WindowTitlesListbox").index, -1);
      Add("NOTE");
      User().Press("OkBtn");
    });
    Scan({});
    EXPECT_EQ(Title(window), "Notes" + kIdle);
  });
  EXPECT_EQ(File() + ErrorLog(), "(missing)");
}

}  // namespace
