#include "display/numeric_line.h"

#include "tests/meter.h"

namespace {

class NumericLine : public test::Meter {
 protected:
  // Bit 0: current, 1: average, 2: maximum.
  void Modes(std::uint32_t modes) {
    Set("SOM1", modes & 1U);
    Set("SOM2", modes >> 1U & 1U);
    Set("SOM3", modes >> 2U & 1U);
  }
  [[nodiscard]] std::string Hint() const { return machine.notification_area.hint; }
};

TEST_F(NumericLine, StartsWithTheTextsOfTheModesThatAreOnAndThenShowsTheScan) {
  struct Row {
    std::uint32_t modes, scale_unit;
    const char* start;
    const char* then;  // after 1536 bytes of download
  };
  static constexpr Row kRows[] = {
      {0, 0, "Korvane Tremolux", "Korvane Tremolux"},
      {1, 0, "[ DL:0,0 kB UL:0,0 kB ]", "[ DL:1,5 kB UL:0,0 kB ]"},
      {1, 1, "[ DL:0,0 kbit UL:0,0 kbit ]", "[ DL:12 kbits UL:0,0 kbit ]"},
      {2, 1, "[ Average DL:0,0 kbits UL:0,0 kbits ]", "[ Average DL:0,0 kbits UL:0,0 kbits ]"},
      {7, 0,
       "[ DL:0,0 kB UL:0,0 kB ][ Average DL:0,0 kB UL:0,0 kB ][ Max DL:0,0 kB Max UL:0,0 kB ]",
       "[ DL:1,5 kB UL:0,0 kB ][ Average DL:0,0 kB UL:0,0 kB ][ Max DL:1,5 kB Max UL:0,0 kB ]"},
  };
  for (const Row& row : kRows) {
    Modes(row.modes);
    Set("ScaleUnit", row.scale_unit);
    Run([&] {
      EXPECT_EQ(Line(), row.start);
      EXPECT_EQ(Hint(), "Korvane Tremolux");
      Scan({1536, 0});
      EXPECT_EQ(Line(), row.then);
      EXPECT_EQ(Hint(), row.modes == 0 ? "Korvane Tremolux " : "Korvane Tremolux " + Line());
      const platform::Spoken graph = Widget("_tlkInterMeter").events->Describe();
      EXPECT_EQ(graph.name + graph.value, "Traffic" + Line());
      const int changes = Widget("_tlkDLULMeter").text_changes;
      Scan({1536, 0});
      EXPECT_EQ(Widget("_tlkDLULMeter").text_changes, changes) << "an equal text";
    });
  }
  Modes(5);
  Run([&] {
    Scan({102399, 2048});
    EXPECT_EQ(Line(), "[ DL:  UL:2 kB ][ Max DL:  Max UL:2 kB ]") << "an amount in a gap";
    for (const bool anew : {false, true}) {
      Modes(1);
      Scan({0, 1024});
      EXPECT_EQ(Line(), "[ DL:0,0 kB UL:1 kB ]");
      Modes(0);
      anew ? Window().ApplyDisplaySettings() : Scan({});
      EXPECT_EQ(Line(), "Korvane Tremolux");
    }
  });
}

TEST_F(NumericLine, TheAverageChangesEverySixthScanAndLeavesThatScanOut) {
  Set("AvarageTime", 5);
  Run([&] {
    for (std::uint32_t second = 1; second <= 5; ++second) {
      Scan({second * 1024, 1024});
      EXPECT_EQ(Line(), "[ Average DL:0,0 kB UL:0,0 kB ]");
    }
    Scan({900000, 900000});
    EXPECT_EQ(Line(), "[ Average DL:3 kB UL:1 kB ]");
    for (int i = 0; i < 6; ++i) Scan({2048, 0});
    EXPECT_EQ(Line(), "[ Average DL:2 kB UL:0,0 kB ]");
    for (int i = 0; i < 3; ++i) Scan({2048, 0});
    Choose("Clear Graph");  // zeroes the sums, but not the counter
    for (int i = 0; i < 2; ++i) Scan({5120, 1024});
    Scan({});
    EXPECT_EQ(Line(), "[ Average DL:2 kB UL:0,3 kB ]");
    Scan({9000, 9000});
    Set("AvarageTime", 1);
    Window().ApplyDisplaySettings();
    Scan({1024, 2048});
    Scan({});
    EXPECT_EQ(Line(), "[ Average DL:1 kB UL:2 kB ]") << "another period starts it anew";
    Set("SOM1", 1);
    Set("SOM2", 0);
    Scan({});
    EXPECT_EQ(Line(), "[ DL:0,0 kB UL:0,0 kB ]");
  });
  Modes(2);
  for (const std::uint32_t period : {0U, 0xFFFFFFFFU}) {
    Set("AvarageTime", period);  // divides by nothing
    Run([&] {
      Scan({4096, 4096});
      EXPECT_EQ(Line(), "[ Average DL:0,0 kB UL:0,0 kB ]");
    });
  }
  EXPECT_EQ(ErrorLog(), "");
}

TEST(NumericLineForm, IsKnownInEveryLanguageAndUnitAndNothingElseIs) {
  for (const char* text :
       {"[ DL:0.97 MB UL:146.4 kB ]", "[ DL:1 GB UL:1023 TB ]",
        "[ DL:9,765 Mbits UL:0,9313 Tbits ]", "[ DL:  UL:  ]", "[ Average DL:0,0 kB  UL:0,0 kB ]",
        "[ \xE5\xB9\xB3\xE5\x9D\x87 DL:3 kB UL:1 kB ]", "[ Max DL:1 kB Max UL:2 kB ]",
        "[ DL:0,0 kB UL:0,0 kB ][ Average DL:0,0 kB UL:0,0 kB ][ Max DL:0,0 kB Max UL:0,0 kB ]"}) {
    EXPECT_TRUE(display::IsNumericLine(text)) << text;
  }
  for (const char* text : {"", "[ ", "[ [a] DL:1 kB UL:2 kB ]", "[ DL:1 kB ]",
                           "[ DL:1 km UL:2 km ]", "[ DL:x1 kB UL:2 kB ]", "[ DL:-1 kB UL:2 kB ]",
                           "[ xDL:1 kB UL:2 kB ]", "x[ DL:1 kB UL:2 kB ]", "[ DL:1 kB UL:2 kB ] x",
                           "[ DL:1 kB UL:2 kB", "[ DL:1 kB UL:2 kB ][ Average ]"}) {
    EXPECT_FALSE(display::IsNumericLine(text)) << text;
  }
}

TEST_F(NumericLine, IsBrokenWhereItIsHighEnoughAndElseToldByTheHint) {
  Modes(7);
  Set("WindowMode", 1);
  Run([&] {
    const auto texts = [&] { return Widget("_tlkDLULMeter").Paint(machine.screen)->Texts(); };
    Scan({1024, 1024});
    std::string joined;
    int top = -1;
    for (const auto& text : texts()) {
      EXPECT_TRUE(text.box.left > 0 && text.box.top > std::exchange(top, text.box.top));
      joined += text.text;
    }
    EXPECT_EQ(joined, Line());
    const int height = texts().front().box.height;
    for (const int missing : {0, 1}) {
      Window().SetWindowBounds({0, 0, 274, 4 + 3 * height - missing});
      EXPECT_EQ(texts().size(), missing == 0 ? 3U : 1U);
      User().PointAway();
      User().PointAt("_tlkDLULMeter");
      machine.timers.Advance(10);
      EXPECT_EQ(App().Hints().Showing(), missing == 1);
    }
    EXPECT_EQ(Widget("TremoluxHint").text, Line());
    EXPECT_GT(texts().front().box.left, 0);
  });
}

TEST_F(NumericLine, StaysWhereItIsWhileItsWidthHardlyChanges) {
  Modes(1);
  const auto left_after = [&](std::uint32_t kilobytes) {
    Scan({kilobytes * 1024, kilobytes * 1024});
    return Widget("_tlkDLULMeter").Paint(machine.screen)->Texts().front().box.left;
  };
  Run([&] {
    const int left = left_after(1);
    EXPECT_EQ(left_after(10), left);
    EXPECT_LT(left_after(1300), left);
  });
}

}  // namespace
