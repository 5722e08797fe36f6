// Titles of other windows: what is posted into which, and what goes again.
#include "display/titles/posting.h"
#include "tests/meter.h"

namespace {

using platform::WindowId;

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
  const std::string path = machine.files.ProgramFolder() + std::string(kFile);
};

TEST_F(Titles, ModeOnePostsIntoEveryWindowEachScanAndTheEndTakesItAway) {
  const WindowId notes = Add("Notes");
  const WindowId bar = Add("Mail | a|Inbox");
  const WindowId nameless = Add("");
  const WindowId lengthy = Add(std::string(2000, 'a'));
  const WindowId refusing = Add("System");
  machine.other_windows.Find(refusing).refuses = true;
  Mode(1);
  Run([&] {
    Scan({1024, 2048});
    EXPECT_EQ(Title(notes), "Notes|[ DL:1 kB UL:2 kB ]");
    EXPECT_EQ(Title(bar), "Mail | a|[ DL:1 kB UL:2 kB ]") << "what followed its bar is lost";
    EXPECT_EQ(Title(nameless), "|[ DL:1 kB UL:2 kB ]");
    EXPECT_EQ(Title(lengthy), std::string(255, 'a') + "|[ DL:1 kB UL:2 kB ]");
    EXPECT_EQ(Title(refusing), "System");
    EXPECT_EQ(Widget("T_frmBrisanto").text, "Korvane Tremolux|[ DL:1 kB UL:2 kB ]");
    machine.other_windows.Remove(refusing);
    Scan({});
    EXPECT_EQ(Title(notes), "Notes" + kIdle);
    Scan({});
    EXPECT_EQ(Changes(notes), 2) << "it was right already";
    EXPECT_EQ(Changes(lengthy), 2) << "though its end is not read";
    Title(notes) = "Notes 2";
    Scan({});
    EXPECT_EQ(Title(notes), "Notes 2" + kIdle);
    Set("SOM1", 0);
    Scan({500, 0});
    EXPECT_EQ(Title(notes), "Notes 2|") << "with all modes off the text is empty";
  });
  EXPECT_EQ(Title(notes), "Notes 2");
  EXPECT_EQ(Title(bar), "Mail | a");
  EXPECT_EQ(Title(nameless), "");
  EXPECT_EQ(Title(lengthy), std::string(255, 'a'));
  EXPECT_EQ(ErrorLog(), "");
}

TEST_F(Titles, ModeTwoPostsWhereALineOfTheListOccurs) {
  Put("note\r\n\xD0\x96\xD0\xA3\xD0\x9A\n");
  const WindowId notes = Add("My NOTES");
  const WindowId cyrillic = Add("\xD0\xB6\xD1\x83\xD0\xBA");
  const WindowId other = Add("Mail|note");
  Mode(2);
  Run([&] {
    Scan({});
    EXPECT_EQ(Title(notes), "My NOTES" + kIdle);
    EXPECT_EQ(Title(cyrillic), "\xD0\xB6\xD1\x83\xD0\xBA" + kIdle);
    EXPECT_EQ(Title(other), "Mail|note") << "a marker is no part of the title";
    Title(notes) = "Sheet";
    Scan({});
    EXPECT_EQ(Title(notes), "Sheet");
    machine.files.SetHeld(path, true);
    machine.interface_table.AddRow(platform::memory::MakeRow("Another"));
    Scan({});
    Scan({1024, 0});
    EXPECT_EQ(Title(cyrillic), "\xD0\xB6\xD1\x83\xD0\xBA|[ DL:1 kB UL:0,0 kB ]")
        << "a list that cannot be read now stays in use";
  });
  machine.files.SetHeld(path, false);
  // An empty line is in every title, but neither an empty file nor the end of the last line is one.
  for (const auto& [file, matches] :
       {std::pair{"", false}, {"zzz\n\nyyy\n", true}, {"zz\n", false}}) {
    Put(file);
    Title(notes) = "Sheet";
    Run([&] {
      Scan({});
      EXPECT_EQ(Title(notes) != "Sheet", matches) << file;
    });
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
    EXPECT_EQ(Title(notes), "Notes" + kIdle);
    EXPECT_EQ(Title(mail), "Mail");
    EXPECT_EQ(Title(bar), "News ") << "every title is restored first, whoever marked it";
    Scan({});
    EXPECT_EQ(Changes(notes), 1) << "no flicker of the window in front";
    machine.other_windows.foreground = mail;
    Scan({});
    EXPECT_EQ(Title(notes), "Notes");
    EXPECT_EQ(Title(mail), "Mail" + kIdle);
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
  Run([&] { Scan({}); });
  EXPECT_EQ(Title(notes), "a|b");
  EXPECT_EQ(Title(lengthy), std::string(255, 'c'));
  EXPECT_EQ(Title(bar), "Mail|Inbox");
  EXPECT_EQ(Title(empty), "Sheet|") << "it may be the window's own";
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
    EXPECT_LE(scan_lasts(), 250);
    EXPECT_LE(scan_lasts(), 250);
    Scan({});
    EXPECT_EQ(Title(last), "Last" + kIdle) << "had its turn";
    EXPECT_EQ(scan_lasts(), 0) << "they are left alone for a while";
    machine.other_windows.Find(silent[0]).hangs = false;
    for (int second = 0; second < 62; ++second) Scan({});
    EXPECT_EQ(Title(silent[0]), "Busy" + kIdle) << "it answers again";
  });
  EXPECT_EQ(Title(last) + Title(silent[0]), "LastBusy");
}

}  // namespace
