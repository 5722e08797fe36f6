// Titles of other windows: what is posted into which, what goes again, and the list of titles.
#include "display/titles/posting.h"
#include "display/titles/unit_AddTitlesForm.h"
#include "tests/meter.h"

namespace {

using display::kAddTitlesForm;
using platform::WindowId;
using Lines = std::vector<std::string>;

constexpr std::string_view kFile = "WindowTitles.tit";
const std::string kIdle = "|[ DL:0,0 kB UL:0,0 kB ]";

class Titles : public test::Meter {
 protected:
  Titles() { Set("SOM2", 0), Set("SOM1", 1); }

  void Mode(std::int64_t mode) { Set("WindowTitle", mode); }
  WindowId Add(std::string_view title) { return machine.other_windows.Add(title); }
  std::string& Title(WindowId window) { return machine.other_windows.Find(window).title; }
  int Changes(WindowId window) { return machine.other_windows.Find(window).title_changes; }
  void Put(std::string_view bytes) { machine.files.PutBesideProgram(kFile, bytes); }
  std::string File() { return machine.files.BytesBesideProgram(kFile).value_or("(missing)"); }

  // Opens the editor; `user` is what happens while it is open.
  void Edit(std::function<void()> user) {
    Then(std::move(user));
    Window().EditTitles();
  }
  void AddLine(std::string_view title) {
    User().Type("AddNew", title);
    User().Press("btnAdd");
  }
  Lines& Shown() { return Widget("WindowTitlesListbox").items; }

  const std::string path = machine.files.ProgramFolder() + std::string(kFile);
};

TEST_F(Titles, ModeOnePostsIntoEveryWindowEachScanAndTheEndTakesItAway) {
  const WindowId notes = Add("Notes");
  const WindowId bar = Add("Mail | a|Inbox");
  const WindowId lengthy = Add(std::string(2000, 'a'));
  const WindowId refusing = Add("System");
  machine.other_windows.Find(refusing).refuses = true;
  Mode(1);
  Run([&] {
    Scan({1024, 2048});
    EXPECT_EQ(Title(notes), "Notes|[ DL:1 kB UL:2 kB ]");
    EXPECT_EQ(Title(bar), "Mail | a|[ DL:1 kB UL:2 kB ]") << "what followed its bar is lost";
    EXPECT_EQ(Title(lengthy), std::string(255, 'a') + "|[ DL:1 kB UL:2 kB ]");
    EXPECT_EQ(Title(refusing), "System");
    EXPECT_EQ(Widget("T_frmBrisanto").text, "Korvane Tremolux|[ DL:1 kB UL:2 kB ]");
    machine.other_windows.Remove(refusing);
    for (int scans = 0; scans < 2; ++scans) Scan({});
    EXPECT_EQ(Changes(notes), 2) << "it was right already";
    EXPECT_EQ(Changes(lengthy), 2) << "though its end is not read";
    Title(notes) = "Notes 2";
    Scan({});
    EXPECT_EQ(Title(notes), "Notes 2" + kIdle);
    Set("SOM1", 0);
    Scan({500, 0});
    EXPECT_EQ(Title(notes), "Notes 2|") << "with all modes off the text is empty";
    Mode(0);
    Scan({});
    EXPECT_EQ(Title(notes), "Notes 2|") << "no mode takes it away";
  });
  EXPECT_EQ(Title(notes) + Title(bar), "Notes 2Mail | a");
  EXPECT_EQ(Title(lengthy), std::string(255, 'a'));
}

TEST_F(Titles, ModeTwoPostsWhereALineOfTheListOccurs) {
  Mode(2);
  for (const auto& [why, file, title, posted] :
       {std::tuple{"in any case", "x\r\nnote\r\n", "My NOTES", true},
        {"in any script", "\xD0\x96\xD0\xA3\xD0\x9A\n", "\xD0\xB6\xD1\x83\xD0\xBA", true},
        {"a marker is no part of the title", "note\n", "Mail|note", false},
        {"an empty line is in every title", "zzz\n\nyyy\n", "Sheet", true},
        {"the end of the last line is none", "zz\n", "Sheet", false},
        {"nor is an empty file", "", "Sheet", false}}) {
    SCOPED_TRACE(why);
    Put(file);
    const WindowId window = Add(title);
    Run([&, title = title, posted = posted] {
      Scan({});
      EXPECT_EQ(Title(window), posted ? title + kIdle : title);
      machine.files.SetHeld(path, true);
      machine.interface_table.AddRow(platform::memory::MakeRow("Another"));
      for (int scans = 0; scans < 2; ++scans) Scan({1024, 0});
      EXPECT_EQ(Title(window).ends_with("[ DL:1 kB UL:0,0 kB ]"), posted)
          << "a list that cannot be read now stays in use";
    });
    machine.files.SetHeld(path, false);
    machine.other_windows.Remove(window);
  }
}

TEST_F(Titles, ModeThreeFollowsTheWindowInFrontAndNoOtherModeTouchesAny) {
  const WindowId notes = Add("Notes");
  const WindowId mail = Add("Mail");
  const WindowId bar = Add("News | Today");
  const WindowId lengthy = Add("x|" + std::string(400, 'c'));
  for (const std::int64_t mode : {0, 4, -1}) {
    Mode(mode);
    Run([&] { Scan({}); });
    EXPECT_EQ(machine.other_windows.sets, 0) << mode;
  }
  Mode(3);
  Run([&] {
    machine.other_windows.foreground = notes;
    Scan({});
    EXPECT_EQ(Title(notes) + Title(mail), "Notes" + kIdle + "Mail");
    EXPECT_EQ(Title(bar), "News ") << "every title is restored first, whoever marked it";
    Scan({});
    EXPECT_EQ(Changes(notes), 1) << "no flicker of the window in front";
    machine.other_windows.foreground = mail;
    Scan({});
    EXPECT_EQ(Title(notes) + Title(mail), "NotesMail" + kIdle);
    machine.other_windows.foreground = 0;
    Scan({});
    EXPECT_EQ(Title(mail), "Mail");
  });
  EXPECT_EQ(Title(lengthy), "x|" + std::string(400, 'c')) << "its rest would be lost";
}

TEST_F(Titles, WhatAKilledRunLeftBehindGoesAtTheEndOfTheNext) {
  const WindowId notes = Add("a|b|[ DL:1,5 MB UL:2 kB ][ Durchschnitt DL:  UL:3 kB ]");
  const WindowId lengthy = Add(std::string(255, 'c') + "|[ DL:1 kB UL:2 kB ]");
  const WindowId bar = Add("Mail|Inbox");
  const WindowId empty = Add("Sheet|");
  machine.other_windows.Find(Add("Busy")).hangs = true;
  Put("busy\n");
  Mode(2);
  Run([&] {
    for (int scans = 0; scans < 2; ++scans) Scan({});  // and nothing is posted
  });
  EXPECT_EQ(Title(notes) + Title(lengthy), "a|b" + std::string(255, 'c'));
  EXPECT_EQ(Title(bar) + Title(empty), "Mail|InboxSheet|") << "it may be the window's own";
}

TEST_F(Titles, WindowsThatDoNotAnswerHoldNobodyUpForLong) {
  std::vector<WindowId> silent;
  for (int i = 0; i < 10; ++i) silent.push_back(Add("Busy"));
  for (const WindowId window : silent) machine.other_windows.Find(window).hangs = true;
  const WindowId last = Add("Last");
  Mode(1);
  Run([&] {
    const auto scan_lasts = [&] {
      const std::int64_t before = machine.clock.SteadyMilliseconds();
      Scan({});
      return machine.clock.SteadyMilliseconds() - before - 1000;  // the second itself
    };
    for (int scans = 0; scans < 3; ++scans) EXPECT_LE(scan_lasts(), 250);
    EXPECT_EQ(Title(last), "Last" + kIdle) << "had its turn";
    EXPECT_EQ(scan_lasts(), 0) << "they are left alone for a while";
    machine.other_windows.Find(silent[0]).hangs = false;
    for (int second = 0; second < 62; ++second) Scan({});
    EXPECT_EQ(Title(silent[0]), "Busy" + kIdle) << "it answers again";
    machine.other_windows.Find(last).hangs = true;
    Scan({1024, 0});
    machine.other_windows.Find(last).hangs = false;
  });
  EXPECT_EQ(Title(last) + Title(silent[0]), "LastBusy") << "at the end each is asked once more";
}

TEST_F(Titles, TheEditorAddsWhatIsTypedAndRemovesWhatIsSelected) {
  Put("one\r\ntwo\r\n");
  Run([&] {
    Edit([&] {
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
      for (int presses = 0; presses < 2; ++presses) User().Press("btnRemove");
      EXPECT_EQ(Shown(), (Lines{"two", "Ж|é 漢"})) << "the second time none was selected";
      AddLine("x");
      EXPECT_EQ(User().Focused(), "AddNew");
      User().Choose("WindowTitlesListbox", 1);
      press_delete();  // the next one has come in its place
      press_delete();
      EXPECT_EQ(Shown(), Lines{"two"});
      EXPECT_EQ(Widget("WindowTitlesListbox").index, 0);
      AddLine("two");
      User().PressEsc(kAddTitlesForm);
    });
    EXPECT_EQ(File(), "two\r\ntwo\r\n") << "Esc keeps it, too";
    Mode(2);
    const WindowId removed = Add("one");
    Scan({});
    EXPECT_EQ(Title(removed), "one");
  });
}

TEST_F(Titles, TheEditorKeepsWhatItDoesNotShowAndSaysSo) {
  const auto lines = [](int count, const std::string& end) {
    std::string text;
    for (int line = 0; line < count; ++line) text += "title " + std::to_string(line) + end;
    return text;
  };
  const std::string huge((std::size_t{16} << 20U) + 1, 'x');
  const std::string unreadable = "WindowTitles.tit can't be read. The file stays as it is.";
  const std::string too_many =
      "Only 10000 titles are shown and used. The file keeps those that follow.";
  struct Row {
    const char* why;
    std::string before, after;
    std::string note = "";
    bool held = false, writable = true;
  };
  const Row rows[] = {
      {"UTF-8 with a mark", "\xEF\xBB\xBF\xC3\xA9\r\n", "\xC3\xA9\r\nnew\r\n"},
      {"the system's code page", "caf\xE9\n", "caf\xC3\xA9\r\nnew\r\n"},
      {"an empty line, and no end of the last", "\n\nx", "\r\n\r\nx\r\nnew\r\n"},
      {"one that cannot be replaced", "x\n", "x\n", "", false, false},
      {"held by another program", "x\n", "x\n", unreadable, true},
      {"over 16 MiB", huge, huge, unreadable},
      {"one below the most", lines(9999, "\n"), lines(9999, "\r\n") + "new\r\n"},
      {"more than the most: nothing is added, and they stay", lines(10000, "\n") + "a\n\nb",
       lines(10000, "\r\n") + "a\n\nb", too_many},
  };
  const WindowId window = Add("A new one");
  Mode(2);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Put(row.before);
    machine.files.SetHeld(path, row.held);
    machine.files.SetWritable(path, row.writable);
    machine.notification_area.balloons.clear();
    const bool adds = row.note.empty();
    Run([&] {
      Scan({});
      Edit([&] {
        EXPECT_EQ(Widget("Note").text, row.note);
        EXPECT_EQ(Widget("btnAdd").enabled, adds);
        for (const char* name : {"btnRemove", "AddNew", "WindowTitlesListbox"}) {
          EXPECT_EQ(Widget(name).enabled, row.note != unreadable) << name;
        }
        if (adds) AddLine("new");
        const bool full = Shown().size() == 10000;
        EXPECT_EQ(Widget("btnAdd").enabled, adds && !full);
        EXPECT_EQ(Widget("Note").text, full ? too_many : row.note);
        EXPECT_TRUE(File() == row.before) << "not before it closes";
        User().Press("OkBtn");
      });
      EXPECT_EQ(machine.notification_area.balloons.empty(), row.writable);
      Scan({});
      EXPECT_EQ(Title(window) != "A new one", adds) << "in use, even where it cannot be stored";
    });
    machine.files.SetHeld(path, false);
    EXPECT_TRUE(File() == row.after) << File().substr(0, 100);
  }
  machine.files.SetWritable(path, true);
  Put("");
  Run([&] {
    Edit([&] {
      AddLine("new");
      User().Tell(&platform::TopWindowEvents::OnEndSession);
      EXPECT_EQ(File(), "new\r\n") << "the process may be gone now";
    });
  });
}

}  // namespace
