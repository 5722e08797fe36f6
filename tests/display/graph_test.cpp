#include "tests/meter.h"

namespace {

using platform::Colour;

constexpr Colour kIn = 0x0000CD;
constexpr Colour kOut = 0xFF0000;

class GraphPicture : public test::Meter {
 protected:
  GraphPicture() {
    Set("vGridVisible", 0);
    Set("ScaleShow", 0);
    Set("Pulse3D", 0);
    Set("WindowMode", 0);
    Set("ZeroBased", 1);
  }
  // Pixels of a colour in the picture.
  std::ptrdiff_t Count(Colour colour) {
    const auto pixels = Pixels(*Graph());
    return std::count(pixels.begin(), pixels.end(), colour);
  }
};

// Download, its light and its shadow are "d", "l" and "s", upload is the same in capitals, "." the
// background, "#" the border, "|" and "-" the grid.
const std::map<Colour, char> kLetters = {{1, 'd'}, {2, 'l'}, {3, 's'}, {4, 'U'}, {5, 'L'},
                                         {6, 'S'}, {7, '.'}, {8, '#'}, {9, '|'}, {10, '-'}};

TEST_F(GraphPicture, IsDrawnPixelByPixel) {
  int number = 0;
  for (const std::string name : {"Download", "DownloadLight", "DownloadShadow", "Upload",
                                 "UploadLight", "UploadShadow", "Background", "Border"}) {
    Set("GraphColor_" + name, "$" + std::to_string(++number));
  }
  Set("vLineColor", "$9");
  Set("hLineColor", "$A");
  const auto draw = [&] {
    std::string drawn;
    Run([&] {
      Window().Window().SetSizeLimits({}, {});
      Window().SetWindowBounds({0, 0, 38, 14});
      for (const test::Traffic traffic :
           {test::Traffic{1024, 0}, {0, 512}, {}, {1024, 1024}, {300, 700}})
        Scan(traffic);
      drawn = Drawn(*Graph(), kLetters);
      Choose("Clear Graph");
      EXPECT_EQ(Drawn(*Graph(), kLetters).find_first_of("dlsULS"), std::string::npos);
    });
    return drawn;
  };
  for (const char* line : {"hGridVisible", "vGridVisible"}) Set(line, 1);
  for (const char* space : {"hLineSpace", "vLineSpace"}) Set(space, 5);
  Set("cmbHLineStyle", 2);
  Set("cmbVLineStyle", 0);
  for (const auto& [name, value] :
       {std::pair{"Pulse3D", 1}, {"PulseWidth", 5}, {"PulseSpace", 1}, {"BorderWidth", 2}})
    Set(name, value);
  EXPECT_EQ(draw(), R"(
####################################
####################################
##...|llls|....|....|..ll|ls..|...#|
##...|ddds|....|....|..dL|LS..|...#|
##...|ddds|....|....|..dL|US..|...#|
---..|---s|.---|..--|..d-|-S.L|--S#|
##...|ddds|LLLL|....|..dL|US.L|UUS#|
##...|ddds|LUUU|....|..dL|US.L|UUS#|
##...|ddds|LUUU|....|..dL|US.U|lls#|
##...|ddds|LUUU|....|..dL|US.U|dds#|
---###---###---###---###---###---###
####################################
)");
  for (const char* none : {"BorderWidth", "ZeroBased", "BevelOuter"}) Set(none, 0);
  Set("PulseWidth", 3);  // a narrow bar has its edges at top and foot
  EXPECT_EQ(draw(), R"(
++++++++++++++++++++++++++++++++++++
+....|....|....|lll.|....|..ll|....|
+....|....|....|ddd.|....|..dL|....|
+....|....|....|ddd.|....|..dU|....|
+....|....|....|ddd.|....|..dU|....|
---..|---.|.---|dd--|...-|-.dU|--LL|
+....|....|....|ddd.|LL..|..dU|.UUU|
+....|....|....|ddd.|UU..|..dU|.UUU|
+....|....|....|ddd.|UU..|..dU|.UUU|
+....|....|....|ddd.|UU..|..dU|.Ull|
---..|---.|.---|ss--|SS.-|-.sS|--dd|
++++++++++++++++++++++++++++++++++++
)");
}

TEST_F(GraphPicture, DownloadAndUploadAreBothSeenWhateverTheirSizes) {
  for (const test::Traffic traffic : {test::Traffic{1000, 1000}, {1000, 1}, {1, 1000}}) {
    for (const std::uint32_t width : {1U, 2U, 3U}) {
      Set("PulseWidth", width);
      Run([&] {
        Scan(traffic);
        EXPECT_TRUE(Count(kIn) > 0 && Count(kOut) > 0) << traffic.in << "/" << traffic.out;
      });
    }
  }
}

TEST_F(GraphPicture, TheScaleComesDownWhenThePeakHasLeftThePicture) {
  Set("ScaleShow", 1);
  const auto scale = [&] {
    std::string texts;
    const auto picture = Graph();
    for (const auto& drawn : picture->Texts()) {
      texts += drawn.text + " at";
      for (const int side : {drawn.box.left, drawn.box.top, drawn.box.width, drawn.box.height})
        texts += " " + std::to_string(side);
      texts += ", ";
    }
    return texts;
  };
  Run([&] {
    Scan({100 * 1024, 0});
    EXPECT_EQ(scale(), "100 kB at 4 1 35 9, 0 kB at 4 123 35 9, 50 kB at 4 62 35 9, ");
    for (const auto& [scans, highest] : {std::pair(30, "100 kB"), {80, "1 kB"}}) {
      for (int i = 0; i < scans; ++i) Scan({1024, 0});
      EXPECT_EQ(Graph()->Texts().front().text, highest);
    }
    Scan({3U << 30U, 0});  // more than an input holds is the largest
    Window().SetWindowBounds({0, 0, 150, 47});
    EXPECT_EQ(scale(), "2 GB at 4 1 35 9, 0 kB at 4 35 35 9, 1 GB at 4 18 35 9, ");
    Window().SetWindowBounds({0, 0, 150, 25});
    EXPECT_EQ(scale(), "2 GB at 4 1 35 9, 0 kB at 4 13 35 9, ");
  });
}

TEST_F(GraphPicture, ASeeThroughScaleHasARimThatIsNotBackground) {
  Set("ScaleShow", 1);
  Set("GraphColor_Background", "clWhite");
  for (const std::uint32_t transparent : {0U, 1U}) {
    Set("Transparent", transparent);
    Run([&] { EXPECT_EQ(Count(0xFFFFFE) > 0, transparent != 0); });
  }
}

TEST_F(GraphPicture, GridLinesOfOddSpacingAreLeftOutAndOfOddStylesAreSolid) {
  Set("hLineColor", "clFuchsia");
  Set("hGridVisible", 1);
  Set("cmbHLineStyle", 7);
  for (const auto& [space, lines] : {std::pair{25, 5}, {500, 0}, {0, 0}, {-1, 0}}) {
    Set("hLineSpace", space);
    Run([&, space = space, lines = lines] {
      EXPECT_EQ(Count(0xFF00FF) / Graph()->Extent().width, lines) << space;
    });
  }
}

TEST_F(GraphPicture, OddStoredValuesAreDrawnAsTheNearestThatCanBe) {
  Run([&] {
    for (const char* name : {"PulseWidth", "PulseSpace", "BorderWidth", "BevelWidth", "BevelInner",
                             "GraphScaleType", "SpeedLimit"}) {
      for (const std::int64_t value : {0LL, 4LL, 99LL, 4000LL, 0x7FFFFFFFLL, 0x80000000LL, -1LL}) {
        Set(name, value);
        Window().ApplyDisplaySettings();
        Scan({1024, 512});
        EXPECT_EQ(Graph()->Extent(), Widget("_tlkInterMeter").ClientSize());
      }
      machine.registry.Remove(test::kSettingsKey, name);
    }
  });
  EXPECT_EQ(ErrorLog(), "");
}

}  // namespace
