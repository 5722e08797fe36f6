#include <gtest/gtest.h>

#include "display/titles/posting.h"
#include "tests/display/meter.h"

namespace {

using platform::WindowId;
using test::MeterTest;

constexpr std::string_view kListFile = "WindowTitles.tit";

class Titles : public MeterTest {
 protected:
  Titles() { Set("SOM2", std::uint32_t{0}), Set("SOM1", std::uint32_t{1}); }

  void Mode(std::uint32_t mode) { Set("WindowTitle", mode); }
  WindowId Add(std::string_view title) { return machine.other_windows.Add(title); }
  std::string Title(WindowId window) { return machine.other_windows.Find(window).title; }
  int Changes(WindowId window) { return machine.other_windows.Find(window).title_changes; }
};

TEST_F(Titles, AMarkerIsTheLastBarAndWhatFollows) {
  struct Row {
    const char* title;
    const char* stripped;
  };
  for (const Row& row : {Row{"Notes", "Notes"}, Row{"Notes|[ DL ]", "Notes"}, Row{"a|b|c", "a|b"},
                         Row{"|", ""}, Row{"", ""}}) {
    SCOPED_TRACE(row.title);
    EXPECT_EQ(display::StripMarker(row.title), row.stripped);
  }
}

TEST_F(Titles, ModeOnePostsIntoEveryWindowEachScanAndTheEndTakesItAway) {
  const WindowId notes = Add("Notes");
  const WindowId bar = Add("Mail | Inbox");
  const WindowId nameless = Add("");
  const WindowId foreign = Add("\xE6\xBC\xA2\xE5\xAD\x97 \xD0\x96");
  Mode(1);
  Run([&] {
    Scan({1024, 2048});
    EXPECT_EQ(Title(notes), "Notes|[ DL:1 kB UL:2 kB ]");
    EXPECT_EQ(Title(bar), "Mail |[ DL:1 kB UL:2 kB ]") << "its own bar and what followed is lost";
    EXPECT_EQ(Title(nameless), "|[ DL:1 kB UL:2 kB ]");
    EXPECT_EQ(Widget("T_frmBrisanto").text, "Korvane Tremolux|[ DL:1 kB UL:2 kB ]");
    Scan({0, 0});
    EXPECT_EQ(Title(notes), "Notes|[ DL:0,0 kB UL:0,0 kB ]");
    Scan({0, 0});
    EXPECT_EQ(Changes(notes), 2) << "it was right already";
    machine.other_windows.Find(notes).title = "Notes 2";
    Scan({0, 0});
    EXPECT_EQ(Title(notes), "Notes 2|[ DL:0,0 kB UL:0,0 kB ]");
  });
  EXPECT_EQ(Title(notes), "Notes 2");
  EXPECT_EQ(Title(bar), "Mail ");
  EXPECT_EQ(Title(nameless), "");
  EXPECT_EQ(Title(foreign), "\xE6\xBC\xA2\xE5\xAD\x97 \xD0\x96");
}

TEST_F(Titles, ModeTwoPostsWhereALineOfTheListOccurs) {
  machine.files.PutBesideProgram(kListFile, "note\r\n\xD0\x96\xD0\xA3\xD0\x9A\n");
  const WindowId notes = Add("My NOTES");
  const WindowId cyrillic = Add("\xD0\xB6\xD1\x83\xD0\xBA");
  const WindowId other = Add("Mail|note");
  Mode(2);
  Run([&] {
    Scan({});
    EXPECT_EQ(Title(notes), "My NOTES|[ DL:0,0 kB UL:0,0 kB ]");
    EXPECT_EQ(Title(cyrillic), "\xD0\xB6\xD1\x83\xD0\xBA|[ DL:0,0 kB UL:0,0 kB ]");
    EXPECT_EQ(Title(other), "Mail|note") << "a marker is no part of the title";
    machine.other_windows.Find(notes).title = "Sheet";
    Scan({});
    EXPECT_EQ(Title(notes), "Sheet");

    machine.files.SetHeld(machine.files.ProgramFolder() + std::string(kListFile), true);
    machine.interface_table.AddRow(platform::memory::MakeRow("Another"));
    Scan({});
    Scan({1024, 0});
    EXPECT_EQ(Title(cyrillic), "\xD0\xB6\xD1\x83\xD0\xBA|[ DL:1 kB UL:0,0 kB ]")
        << "a list that cannot be read now stays in use";
  });
}

TEST_F(Titles, TheListIsReadHoweverItWasWritten) {
  struct Row {
    const char* why;
    std::string file;
    bool matches;  // "Gr" u-umlaut "n", or every title
  };
  const Row rows[] = {
      {"empty: nowhere", "", false},
      {"UTF-8", "gr\xC3\xBCn", true},
      {"UTF-8 with a mark", "\xEF\xBB\xBFgr\xC3\xBCn\n", true},
      {"the code page", "x\rgr\xFCn\ry", true},
      {"an empty line is in every title", "zzz\n\nyyy\n", true},
      {"the end of the last line begins no other", "zzz\n", false},
  };
  Mode(2);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    machine.files.PutBesideProgram(kListFile, row.file);
    const WindowId window = Add("GR\xC3\x9CN");
    Run([&] {
      Scan({});
      EXPECT_EQ(Title(window) != "GR\xC3\x9CN", row.matches);
    });
    machine.other_windows.Remove(window);
  }
  machine.files.Remove("C:\\Program Files\\Tremolux\\WindowTitles.tit");
}

TEST_F(Titles, ModeThreeFollowsTheWindowInFront) {
  const WindowId notes = Add("Notes");
  const WindowId mail = Add("Mail");
  const WindowId bar = Add("News | Today");
  Mode(3);
  Run([&] {
    machine.other_windows.foreground = notes;
    Scan({});
    EXPECT_EQ(Title(notes), "Notes|[ DL:0,0 kB UL:0,0 kB ]");
    EXPECT_EQ(Title(mail), "Mail");
    EXPECT_EQ(Title(bar), "News ") << "every title is restored first, whoever marked it";
    Scan({});
    EXPECT_EQ(Changes(notes), 1) << "no flicker of the window in front";
    machine.other_windows.foreground = mail;
    Scan({});
    EXPECT_EQ(Title(notes), "Notes");
    EXPECT_EQ(Title(mail), "Mail|[ DL:0,0 kB UL:0,0 kB ]");
    machine.other_windows.foreground = 0;
    Scan({});
    EXPECT_EQ(Title(mail), "Mail");
  });
}

TEST_F(Titles, WithoutPostingNothingIsTouchedToTheEnd) {
  const WindowId bar = Add("Mail | Inbox");
  for (const std::uint32_t mode : {0U, 4U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(mode);
    Mode(mode);
    Run([&] { Scan({}); });
    EXPECT_EQ(Title(bar), "Mail | Inbox");
    EXPECT_EQ(machine.other_windows.sets, 0);
  }
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

TEST_F(Titles, TheEndOfTheSessionTakesThemAwayAndNoScanPutsThemBack) {
  const WindowId notes = Add("Notes");
  Mode(1);
  Run([&] {
    Scan({});
    Widget("T_frmBrisanto").top_events->OnEndSession();
    EXPECT_EQ(Title(notes), "Notes");
    Scan({});
    EXPECT_EQ(Title(notes), "Notes");
    EXPECT_TRUE(App().Terminated());
  });
}

TEST_F(Titles, ALongTitleIsCutOnceAndKeepsNoMarker) {
  const WindowId posted = Add(std::string(2000, 'a'));
  const WindowId umlauts = Add(std::string(300, 'b') + "|x");
  Mode(1);
  Run([&] {
    Scan({});
    EXPECT_EQ(Title(posted), std::string(255, 'a') + "|[ DL:0,0 kB UL:0,0 kB ]");
    Scan({});
    EXPECT_EQ(Changes(posted), 1) << "though its end is not read";
  });
  EXPECT_EQ(Title(posted), std::string(255, 'a'));
  EXPECT_EQ(Title(umlauts), std::string(255, 'b'));

  // One that this program never touched is left as it is.
  const WindowId untouched = Add("x|" + std::string(400, 'c'));
  Mode(3);
  Run([&] {
    machine.other_windows.foreground = posted;
    Scan({});
  });
  EXPECT_EQ(Title(untouched), "x|" + std::string(400, 'c'));
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
    EXPECT_EQ(Title(last), "Last|[ DL:0,0 kB UL:0,0 kB ]") << "had its turn";
    EXPECT_EQ(scan_lasts(), 0) << "they are left alone for a while";

    machine.other_windows.Find(silent[0]).hangs = false;
    for (int second = 0; second < 62; ++second) Scan({});
    EXPECT_EQ(Title(silent[0]), "Busy|[ DL:0,0 kB UL:0,0 kB ]") << "it answers again";
  });
  EXPECT_EQ(Title(last), "Last");
  EXPECT_EQ(Title(silent[0]), "Busy");
}

TEST_F(Titles, WhoRefusesOrGoesIsNobodysConcern) {
  const WindowId refusing = Add("System");
  machine.other_windows.Find(refusing).refuses = true;
  const WindowId notes = Add("Notes");
  Mode(1);
  Run([&] {
    Scan({});
    EXPECT_EQ(Title(refusing), "System");
    machine.other_windows.Remove(refusing);
    Scan({300, 0});
    EXPECT_NE(Title(notes), "Notes");
  });
  EXPECT_FALSE(machine.files.BytesBesideProgram("err.log"));
}

TEST_F(Titles, WithAllModesOffTheTextIsEmpty) {
  Set("SOM1", std::uint32_t{0});
  const WindowId notes = Add("Notes");
  Mode(1);
  Run([&] {
    Scan({500, 0});
    EXPECT_EQ(Title(notes), "Notes|");
  });
  EXPECT_EQ(Title(notes), "Notes");
}

}  // namespace
