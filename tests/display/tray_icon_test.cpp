#include "tests/meter.h"

namespace {

using platform::Colour;

constexpr Colour kRed = 0x0000FF;
constexpr Colour kBlue = 0xFF0000;
constexpr Colour kWhite = 0xFFFFFF;

void Append(std::string& bytes, std::uint32_t value, int size) {
  for (; size > 0; --size, value >>= 8U) bytes += static_cast<char>(value & 0xFFU);
}

// A bitmap of 24 bits whose columns have these colours.
std::string BitmapOf(const std::vector<Colour>& columns, int height) {
  const std::size_t stride = (columns.size() * 3 + 3) / 4 * 4;
  std::string bytes = "BM";
  Append(bytes, 0, 8);
  Append(bytes, 54, 4);
  Append(bytes, 40, 4);
  Append(bytes, static_cast<std::uint32_t>(columns.size()), 4);
  Append(bytes, static_cast<std::uint32_t>(height), 4);
  Append(bytes, 1, 2);
  Append(bytes, 24, 2);
  Append(bytes, 0, 24);
  for (int y = 0; y < height; ++y) {
    std::string row;
    for (const Colour colour : columns) {
      Append(row, colour >> 16U, 1);
      Append(row, colour >> 8U, 1);
      Append(row, colour, 1);
    }
    row.resize(stride);
    bytes += row;
  }
  return bytes;
}

// 63 x 16 pixels, or so many times that: four pictures, each of one colour.
std::string Pictures(std::vector<Colour> colours, int times = 1) {
  std::vector<Colour> columns;
  for (int x = 0; x < 63 * times; ++x) {
    columns.push_back(colours[static_cast<std::size_t>(x / (16 * times))]);
  }
  return BitmapOf(columns, 16 * times);
}

class Tray : public test::Meter {
 protected:
  Colour At(int x, int y) {
    const platform::memory::Raster* picture = machine.notification_area.Picture();
    return picture != nullptr ? picture->Pixel({x, y}) : 0xDEAD;
  }
  int Bar(int x, Colour colour) {
    int height = 0;
    for (int y = 0; y < 16; ++y) height += At(x, y) == colour ? 1 : 0;
    return height;
  }
  int Bars() {
    int height = 0;
    for (int x = 0; x < 16; ++x) height += Bar(x, kRed) + Bar(x, kBlue);
    return height;
  }
  platform::Size Extent() { return machine.notification_area.Picture()->Extent(); }
  // How often a scan gives the shell a picture.
  int UpdatesOf(test::Traffic traffic) {
    const int before = machine.notification_area.picture_updates;
    Scan(traffic);
    return machine.notification_area.picture_updates - before;
  }
  void UsePictures(const std::string& bytes) {
    machine.files.Put(machine.files.ProgramFolder() + "Icons\\default.bmp", bytes);
  }
};

TEST_F(Tray, TheHistogramIsDrawnPixelByPixel) {
  Run([&] {
    EXPECT_EQ(Bars(), 0);
    // The highest, and both sides of a half, a third, a quarter and a fifth of it.
    for (const std::uint32_t amount :
         {6000, 3000, 2999, 2000, 1999, 1500, 1499, 1200, 1199, 1, 0}) {
      Scan({amount, amount});
    }
    machine.interface_table.AddRow(platform::memory::MakeRow("Another"));
    Scan({});
    std::string drawn = "\n";
    for (int y = 0; y < 16; ++y) {
      for (int x = 0; x < 16; ++x) {
        const Colour colour = At(x, y);
        drawn += colour == kRed     ? 'd'
                 : colour == kBlue  ? 'u'
                 : colour == kWhite ? '.'
                 : colour == 0      ? '#'
                                    : '+';
      }
      drawn += "\n";
    }
    EXPECT_EQ(drawn, R"(
###############+
#..............+
#..dd..........+
#..dddd........+
#..dddddd......+
#..dddddddd....+
#..dddddddddd..+
###############+
++++++++++++++++
#..............+
#..uu..........+
#..uuuu........+
#..uuuuuu......+
#..uuuuuuuu....+
#..uuuuuuuuuu..+
++++++++++++++++
)");
    Scan({});
    Scan({});
    EXPECT_EQ(Bar(1, kRed) + Bar(1, kBlue), 10);
    Scan({1, 0});
    EXPECT_EQ(Bar(14, kRed), 1);
    EXPECT_EQ(Bar(2, kRed), 5) << "the highest is out of sight, and forgotten";
    Choose("Clear Graph");
    EXPECT_EQ(Bars(), 0);
    Scan({1, 0});
    EXPECT_EQ(Bar(14, kRed), 5);
  });
  EXPECT_FALSE(machine.notification_area.Present()) << "the icon goes with the program";
}

TEST_F(Tray, TheShellIsGivenOnlyWhatItDoesNotShow) {
  Run([&] {
    EXPECT_EQ(UpdatesOf({}), 0) << "an idle line";
    EXPECT_EQ(UpdatesOf({5000, 0}), 1) << "the upper half";
    EXPECT_EQ(UpdatesOf({5000, 800}), 2);
    machine.notification_area.busy = true;
    for (int i = 0; i < 20; ++i) Scan({});
    EXPECT_EQ(UpdatesOf({}), 2) << "what was not taken is given again";
    machine.notification_area.busy = false;
    EXPECT_EQ(UpdatesOf({}), 2);
    EXPECT_EQ(Bar(1, kRed), 0);
    EXPECT_EQ(UpdatesOf({}), 0);
    Scan({5000, 0});
    machine.notification_area.picture_size = 32;
    EXPECT_EQ(UpdatesOf({5000, 0}), 2) << "another size";
    EXPECT_EQ(Extent(), (platform::Size{32, 32}));
    EXPECT_EQ(At(28, 12), kRed);
    EXPECT_EQ(At(29, 13), kRed);
    EXPECT_EQ(At(28, 3), kWhite);
    machine.notification_area.picture_size = 20;
    Scan({5000, 0});
    for (int x = 0; x < 20; ++x) EXPECT_NE(At(x, 8), 0xDEADU);
    EXPECT_EQ(At(19, 6), 0x808080U) << "the frame reaches the edge";
  });
}

TEST_F(Tray, ActivityIsShownByFourPicturesAsLargeAsTheUserLikes) {
  constexpr Colour kPictures[] = {0x111111, 0x222222, 0x333333, 0x444444};
  Set("IconType", 0);
  for (const int times : {1, 2, 4}) {
    SCOPED_TRACE(times);
    UsePictures(Pictures({kPictures[0], kPictures[1], kPictures[2], kPictures[3]}, times));
    Run([&] {
      EXPECT_EQ(At(3, 3), kPictures[0]);
      Scan({100, 100});
      EXPECT_EQ(At(3, 3), kPictures[3]);
      Scan({100, 0});
      EXPECT_EQ(At(3, 3), kPictures[2]);
      Scan({0, 100});
      EXPECT_EQ(At(3, 3), kPictures[1]);
      Scan({});
      EXPECT_EQ(At(3, 3), kPictures[0]);
      EXPECT_EQ(UpdatesOf({}), 0) << "nothing has changed";
      machine.notification_area.picture_size = 32;
      EXPECT_EQ(UpdatesOf({}), 1);
      EXPECT_EQ(Extent(), (platform::Size{32, 32}));
      machine.notification_area.busy = true;
      EXPECT_EQ(UpdatesOf({0, 1}) + UpdatesOf({0, 1}), 2) << "what was not taken is given again";
      machine.notification_area.busy = false;
      machine.notification_area.picture_size = 16;
    });
  }
}

TEST_F(Tray, APictureFileThatIsNoneIsReplacedInUseAndNotInTheStore) {
  const std::string good = Pictures({0x555555, 1, 2, 3});
  UsePictures(good);
  Set("IconType", 0);
  const std::string path = machine.files.ProgramFolder() + "mine.bmp";
  struct Row {
    const char* why;
    std::string bytes;
    Colour shown = 0x555555;
  };
  std::string compressed = good;
  compressed[30] = 1;
  std::string huge = good;
  huge[21] = 0x7F;  // two thousand million columns
  const std::vector<Row> rows = {
      {"a good one", Pictures({0x666666, 1, 2, 3}), 0x666666},
      {"empty", ""},
      {"no bitmap", std::string(2000, 'x')},
      {"cut off", good.substr(0, good.size() - 1)},
      {"another size", BitmapOf({1, 2, 3}, 16)},
      {"one column less", BitmapOf(std::vector<Colour>(62, 1), 16)},
      {"compressed", compressed},
      {"larger than any screen", huge},
      {"larger than a picture can be", std::string(3U << 20, '\0')},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    machine.files.Put(path, row.bytes);
    Set("TrayIconFile", path);
    Run([&] { EXPECT_EQ(At(3, 3), row.shown); });
    EXPECT_EQ(StoredText("TrayIconFile"), path);
  }
  Set("TrayIconFile", "C:\\nowhere.bmp");
  Run([&] { EXPECT_EQ(At(3, 3), 0x555555U); });
  const auto loads = [&] {
    const int before = machine.files.loads;
    Run([] {});
    return machine.files.loads - before;
  };
  Set("IconType", 1);
  const int without = loads();
  Set("StartIconMode", 1);
  EXPECT_EQ(loads(), without + 2) << "its file and the built-in one are looked at";
  machine.files.Remove(machine.files.ProgramFolder() + "Icons\\default.bmp");
  Set("IconType", 0);
  Run([&] { EXPECT_EQ(At(14, 6), kWhite) << "without any picture the empty histogram"; });
}

TEST_F(Tray, AnotherIconTypeIsLeftAlone) {
  Set("IconType", 2);
  Run([&] {
    EXPECT_EQ(UpdatesOf({5000, 5000}), 0);
    EXPECT_EQ(Bar(14, kRed), 0);
    Set("IconType", 1);
    Scan({10, 0});
    EXPECT_EQ(Bar(14, kRed), 5);
    EXPECT_EQ(Bar(13, kRed), 0) << "the history stood still meanwhile";

    UsePictures(Pictures({1, 2, 0x333333, 4}));
    Set("IconType", 0);
    Scan({10, 0});
    EXPECT_EQ(At(3, 3), 0x333333U) << "the pictures are loaded when they are first wanted";
  });
}

TEST_F(Tray, ClicksShowAndHideTheMeterAndOpenTheMenu) {
  Run([&] {
    const auto& meter = Widget("T_frmBrisanto");
    machine.notification_area.Click();
    EXPECT_FALSE(meter.visible || App().ShowMainForm);
    Scan({100, 0});
    EXPECT_FALSE(meter.visible);
    machine.notification_area.Click();
    EXPECT_TRUE(meter.visible && App().ShowMainForm);
    EXPECT_EQ(meter.shown_with, platform::Activation::kLeaveFocus);
    for (const char* name : {"_tlkInterMeter", "_tlkDLULMeter"}) {
      User().DoubleClick(name);
      EXPECT_FALSE(meter.visible) << name;
      ChooseInTray("Show / Hide Graph");
      EXPECT_TRUE(meter.visible);
    }
    EXPECT_EQ(machine.menus.last_at, (platform::Point{900, 700}));
  });
}

}  // namespace
