#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "display/graph/picture.h"
#include "display/graph/scale.h"
#include "tests/display/meter.h"

namespace {

using display::GraphSample;
using display::ScaleFor;
using display::ScaleRule;
using display::ScaleUnits;
using platform::Colour;
using platform::memory::Raster;
using test::MeterTest;

constexpr Colour kIn = 0x0000CD;
constexpr Colour kInLight = 0x8184FE;
constexpr Colour kOut = 0xFF0000;

// Pixels of a colour in a column of the picture.
int Count(const Raster& picture, int x, Colour colour) {
  int count = 0;
  for (int y = 0; y < picture.Extent().height; ++y) {
    if (picture.Pixel({x, y}) == colour) ++count;
  }
  return count;
}
int Count(const Raster& picture, Colour colour) {
  int count = 0;
  for (int x = 0; x < picture.Extent().width; ++x) count += Count(picture, x, colour);
  return count;
}

TEST(GraphScale, TheUpperEdgeRisesWithThePeakToARoundNumber) {
  struct Row {
    const char* why;
    std::int32_t peak;
    ScaleUnits units;
    std::int64_t high;
  };
  static constexpr Row kRows[] = {
      {"an idle line", 0, ScaleUnits::kKBytes, 1024},
      {"one byte", 1, ScaleUnits::kKBytes, 1024},
      {"on the edge", 1024, ScaleUnits::kKBytes, 1024},
      {"just above", 1025, ScaleUnits::kKBytes, 2 * 1024},
      {"21 kB", 21 * 1024, ScaleUnits::kKBytes, 50 * 1024},
      {"999 kB", 999 * 1024, ScaleUnits::kKBytes, 1024 * 1024},
      {"megabytes begin at 1000", 1000 * 1024, ScaleUnits::kKBytes, 1024 * 1024},
      {"the largest", 2147483647, ScaleUnits::kKBytes, 2LL << 30},
      {"kilobits", 1000, ScaleUnits::kKBits, 10 * 1024 / 8},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    const GraphSample samples[] = {{0, row.peak}};
    EXPECT_EQ(ScaleFor(samples, {true, 0, true, row.units}).high, row.high);
  }
}

TEST(GraphScale, TheLowerEdgeIsRoundAndLeavesZeroOnlyForASteadyLoad) {
  struct Row {
    const char* why;
    GraphSample sample;
    bool ZeroBased;
    ScaleUnits units;
    std::int64_t low;
  };
  constexpr std::int32_t kK = 1024;
  static constexpr Row kRows[] = {
      {"steady", {587 * kK, 534 * kK}, false, ScaleUnits::kKBytes, 200 * kK},
      {"a little more", {588 * kK, 536 * kK}, false, ScaleUnits::kKBytes, 200 * kK},
      {"in bits", {587 * kK, 534 * kK}, false, ScaleUnits::kKBits, 2 * 1024 * kK / 8},
      {"zero based", {587 * kK, 534 * kK}, true, ScaleUnits::kKBytes, 0},
      {"four fifths", {1000 * kK, 800 * kK}, false, ScaleUnits::kKBytes, 0},
      {"just above", {1000 * kK, 801 * kK}, false, ScaleUnits::kKBytes, 200 * kK},
      {"one way idle", {587 * kK, 0}, false, ScaleUnits::kKBytes, 0},
      {"idle", {0, 0}, false, ScaleUnits::kKBytes, 0},
      {"less than the unit", {900, 900}, false, ScaleUnits::kKBytes, 0},
      {"between two units", {2040 * kK, 2020 * kK}, false, ScaleUnits::kKBytes, 500 * kK},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(ScaleFor({&row.sample, 1}, {true, 0, row.ZeroBased, row.units}).low, row.low);
  }
}

TEST(GraphScale, TheEdgesOfAFixedScaleNeverMeet) {
  const GraphSample samples[] = {{8500, 8600}, {8700, 9000}};
  ScaleRule rule;
  rule.AutoScale = false;
  for (const std::int64_t limit : {std::int64_t{0}, std::int64_t{-5}, std::int64_t{1800}}) {
    rule.SpeedLimit = limit;  // all amounts above the limit
    const display::GraphScale scale = ScaleFor(samples, rule);
    EXPECT_LT(scale.low, scale.high);
    EXPECT_EQ(scale.HeightOf(9000, 50), 50);
  }
}

TEST(GraphScale, NoTrafficIsHiddenAndNothingLeavesThePicture) {
  const display::GraphScale scale{1000, 2000};
  EXPECT_EQ(scale.HeightOf(0, 50), 0);
  EXPECT_EQ(scale.HeightOf(-1, 50), 0);
  EXPECT_EQ(scale.HeightOf(1, 50), 1);
  EXPECT_EQ(scale.HeightOf(1500, 50), 25);
  EXPECT_EQ(scale.HeightOf(2000, 50), 50);
  EXPECT_EQ(scale.HeightOf(1LL << 40, 50), 50);
}

TEST(GraphScale, TextsHaveThreeDigitsAtTheMost) {
  struct Row {
    std::int64_t bytes;
    ScaleUnits units;
    const char* text;
  };
  static constexpr Row kRows[] = {
      {0, ScaleUnits::kKBytes, "0 kB"},
      {512, ScaleUnits::kKBytes, "0,5 kB"},
      {1024, ScaleUnits::kKBytes, "1 kB"},
      {99 * 1024 + 512, ScaleUnits::kKBytes, "99,5 kB"},
      {100 * 1024 + 512, ScaleUnits::kKBytes, "100 kB"},
      {12500000, ScaleUnits::kKBytes, "11,9 MB"},
      {128, ScaleUnits::kKBits, "1 kb"},
      {12500000, ScaleUnits::kKBits, "95,3 Mb"},
      {2LL << 40, ScaleUnits::kKBytes, "2 TB"},
  };
  for (const Row& row : kRows) EXPECT_EQ(ScaleText(row.bytes, row.units, ","), row.text);
}

class Graph : public MeterTest {
 protected:
  Graph() {
    Set("vGridVisible", 0);
    Set("ScaleShow", 0);
    Set("Pulse3D", 0);
    Set("WindowMode", 0U);
    Set("ZeroBased", 1);
  }
  // The column of the newest sample: the frame is one pixel of border, bars are three wide.
  static int Newest(const Raster& picture) { return picture.Extent().width - 1 - 3; }
};

TEST_F(Graph, ScrollsToTheLeftWithTheNewestAtTheRight) {
  Run([&] {
    Scan({1024, 0});
    Scan({0, 1024});
    Scan({});
    const auto picture = MeterTest::Graph();
    const int inside = picture->Extent().height - 2;
    EXPECT_EQ(Count(*picture, Newest(*picture) - 6, kIn), inside);
    EXPECT_EQ(Count(*picture, Newest(*picture) - 3, kOut), inside);
    EXPECT_EQ(Count(*picture, Newest(*picture), kOut) + Count(*picture, Newest(*picture), kIn), 0);
    Choose("Clear Graph");
    EXPECT_EQ(Count(*MeterTest::Graph(), kIn), 0);
  });
}

TEST_F(Graph, DownloadAndUploadAreBothSeenWhateverTheirSizes) {
  for (const test::Traffic traffic :
       {test::Traffic{1000, 1000}, {1000, 1}, {1, 1000}, {500, 1000}, {1, 1}}) {
    for (const std::uint32_t width : {1U, 2U, 3U, 8U}) {
      Set("PulseWidth", width);
      Run([&] {
        Scan(traffic);
        const auto picture = MeterTest::Graph();
        EXPECT_GT(Count(*picture, kIn), 0) << traffic.in << "/" << traffic.out << " at " << width;
        EXPECT_GT(Count(*picture, kOut), 0) << traffic.in << "/" << traffic.out << " at " << width;
      });
    }
  }
}

TEST_F(Graph, TheScaleComesDownWhenThePeakHasLeftThePicture) {
  Set("ScaleShow", 1);
  const auto highest = [&] { return MeterTest::Graph()->Texts().front().text; };
  Run(
      [&] {
        Scan({100 * 1024, 0});
        EXPECT_EQ(highest(), "100 kB");
        for (int i = 0; i < 30; ++i) Scan({1024, 0});
        EXPECT_EQ(highest(), "100 kB");
        for (int i = 0; i < 80; ++i) Scan({1024, 0});
        EXPECT_EQ(highest(), "1 kB");
        Scan({3U << 30U, 0});
        EXPECT_EQ(highest(), "2 GB")
            << "more than an input holds is the largest, not less than nothing";
      });
}

TEST_F(Graph, EveryPropertyShows) {
  struct Row {
    const char* name;
    std::uint32_t value;
  };
  static constexpr Row kRows[] = {
      {"BevelInner", 0}, {"BevelInner", 2},   {"BevelOuter", 2},   {"BorderWidth", 4},
      {"Pulse3D", 1},    {"PulseSpace", 2},   {"PulseWidth", 7},   {"ScaleShow", 1},
      {"ZeroBased", 0},  {"hGridVisible", 1}, {"vGridVisible", 1}, {"GraphScaleType", 15},
  };
  static constexpr const char* kColours[] = {"GraphColor_Download", "GraphColor_Upload",
                                             "GraphColor_Background", "GraphColor_Border"};
  const auto picture_of = [&] {
    std::vector<Colour> pixels;
    Run([&] {
      for (std::uint32_t i = 1; i < 8; ++i) Scan({50000 + i * 700, 48000});
      const auto picture = MeterTest::Graph();
      for (int y = 0; y < picture->Extent().height; ++y) {
        for (int x = 0; x < picture->Extent().width; ++x) pixels.push_back(picture->Pixel({x, y}));
      }
    });
    return pixels;
  };
  const std::vector<Colour> plain = picture_of();
  for (const Row& row : kRows) {
    const std::uint32_t before = Stored(row.name);
    Set(row.name, row.value);
    EXPECT_NE(picture_of(), plain) << row.name << " " << row.value;
    Set(row.name, before);
  }
  for (const char* name : kColours) {
    const std::string before = StoredText(name);
    Set(name, "clFuchsia");
    EXPECT_NE(picture_of(), plain) << name;
    Set(name, before);
  }
  EXPECT_EQ(picture_of(), plain);
}

TEST_F(Graph, BarsHaveEdgesIn3DAndNarrowOnesKeepTheirColour) {
  Set("Pulse3D", 1);
  Set("PulseWidth", 5U);
  Run([&] {
    Scan({1024, 0});
    const auto picture = MeterTest::Graph();
    EXPECT_GT(Count(*picture, Newest(*picture) - 2, kInLight), 10);
    EXPECT_GT(Count(*picture, Newest(*picture) - 1, kIn), 10);
    EXPECT_GT(Count(*picture, Newest(*picture) + 2, platform::colour::kBlack), 10);
  });
  for (const int dpi : {96, 192}) {
    for (const std::uint32_t width : {2U, 3U, 4U}) {
      Set("PulseWidth", width);
      Run([&] {
        machine.windowing.ChangeDpi("T_frmBrisanto", dpi, {0, 0, 274 * dpi / 96, 135 * dpi / 96});
        Scan({1024, 0});
        const auto picture = MeterTest::Graph();
        const int inside = picture->Extent().height - 2 * dpi / 96;
        const int bar = static_cast<int>(width) * dpi / 96;
        EXPECT_EQ(Count(*picture, kIn), bar * (inside - 2)) << width << " at " << dpi;
      });
    }
  }
}

TEST_F(Graph, ASeeThroughScaleHasARimThatIsNotBackground) {
  Set("ScaleShow", 1);
  Set("GraphColor_Background", "clWhite");
  for (const std::uint32_t transparent : {0U, 1U}) {
    Set("Transparent", transparent);
    Run([&] { EXPECT_EQ(Count(*MeterTest::Graph(), 0xFFFFFE) > 0, transparent != 0); });
  }
}

// As a loopback counts, which moves the same both ways.
TEST_F(Graph, EachOfTheSixColoursIsSeenIn3DAtEqualAmounts) {
  Set("Pulse3D", 1);
  for (const std::uint32_t width : {3U, 4U, 8U}) {
    Set("PulseWidth", width);
    for (const char* name :
         {"GraphColor_Download", "GraphColor_DownloadLight", "GraphColor_DownloadShadow",
          "GraphColor_Upload", "GraphColor_UploadLight", "GraphColor_UploadShadow"}) {
      const std::string before = StoredText(name);
      Set(name, "clFuchsia");
      Run([&] {
        Scan({1024, 1024});
        EXPECT_GT(Count(*MeterTest::Graph(), 0xFF00FF), 0) << name << " at " << width;
      });
      Set(name, before);
    }
  }
}

TEST_F(Graph, GridLinesFallOnMultiplesOfTheirSpacing) {
  struct Row {
    const char* why;
    std::uint32_t visible;
    std::uint32_t space;
    std::uint32_t style;
    std::vector<int> lines;
  };
  const std::vector<Row> rows = {
      {"each 25", 1, 25, 0, {25, 50, 75, 100, 125}},
      {"a style that does not exist is solid", 1, 50, 7, {50, 100}},
      {"wider than the meter", 1, 500, 0, {}},
      {"none", 1, 0, 0, {}},
      {"less than none", 1, 0xFFFFFFFF, 0, {}},
      {"off", 0, 25, 0, {}},
  };
  Set("hLineColor", "clFuchsia");
  Set("vLineColor", "clLime");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Set("hGridVisible", row.visible);
    Set("hLineSpace", row.space);
    Set("cmbHLineStyle", row.style);
    Set("vGridVisible", row.visible);
    Set("vLineSpace", row.space);
    Set("cmbVLineStyle", row.style);
    Run([&] {
      const auto picture = MeterTest::Graph();
      std::vector<int> lines;
      for (int y = 0; y < picture->Extent().height; ++y) {
        if (picture->Pixel({0, y}) == 0xFF00FF) lines.push_back(y);
      }
      EXPECT_EQ(lines, row.lines);
      for (const int x : row.lines) {
        EXPECT_EQ(picture->Pixel({x, 1}), 0x00FF00U);
        EXPECT_NE(picture->Pixel({x, 0}), 0x00FF00U) << "vertical lines stay inside the frame";
      }
    });
  }
}

TEST_F(Graph, IsComposedOncePerScanAndOnlyCopiedByARepaint) {
  Set("vGridVisible", 1);
  Run([&] {
    Scan({1024, 0});
    MeterTest::Graph();
    machine.notebook.Restart();
    for (int i = 0; i < 5; ++i) MeterTest::Graph();
    EXPECT_EQ(machine.notebook.registry.round_trips, 0);
  });
}

TEST_F(Graph, OddStoredValuesAreDrawnAsTheNearestThatCanBe) {
  for (const char* name : {"PulseWidth", "PulseSpace", "BorderWidth", "BevelWidth", "BevelInner",
                           "GraphScaleType", "SpeedLimit"}) {
    for (const std::uint32_t value : {0U, 1U, 99U, 4000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
      Set(name, value);
      Run([&] {
        Scan({1024, 512});
        EXPECT_EQ(MeterTest::Graph()->Extent(), Widget("_tlkInterMeter").ClientSize());
      });
    }
    machine.registry.Remove(test::kSettingsKey, name);
  }
  EXPECT_FALSE(machine.files.BytesBesideProgram("err.log").has_value());
}

}  // namespace
