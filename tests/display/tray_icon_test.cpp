// The icon beside the clock: its pictures, the files that they come from, and its clicks.
#include "display/tray/pictures.h"
#include "tests/meter.h"

namespace {

using platform::Colour;

constexpr Colour kRed = 0x0000FF;
constexpr Colour kBlue = 0xFF0000;
constexpr Colour kWhite = 0xFFFFFF;

void Append(std::string& bytes, std::uint32_t value, int size) {
  for (; size > 0; --size, value >>= 8U) bytes += static_cast<char>(value & 0xFFU);
}

// A bitmap with a header of so many bytes; `behind` is its palette, or its masks where it has some.
struct Bitmap {
  std::uint32_t width, height, bits;
  std::string pixels;
  std::vector<std::uint32_t> behind = {};
  std::uint32_t header = 40;

  [[nodiscard]] std::string Bytes() const {
    std::string bytes;
    const std::uint32_t kind = bits > 8 && !behind.empty() ? 3 : 0;
    for (const std::uint32_t value : {header, width, height, 1 | bits << 16U, kind}) {
      Append(bytes, value, 4);
    }
    bytes.resize(40);
    for (const std::uint32_t value : behind) Append(bytes, value, 4);
    bytes.resize(std::max<std::size_t>(bytes.size(), header));
    std::string file = "BM";
    Append(file, 0, 8);
    Append(file, static_cast<std::uint32_t>(14 + bytes.size()), 4);
    return file + bytes + pixels;
  }
};

TEST(DecodeBitmap, ReadsPalettesAndRowsFromEitherEnd) {
  std::vector<std::uint32_t> palette;
  for (std::uint32_t i = 0; i < 256; ++i) palette.push_back(i << 16U | (255 - i) << 8U | 7);
  const std::string pixels("\x92\xA5\0\0\x57\x31\0\0", 8);
  const auto colour = [](std::uint32_t index) { return 7U << 16U | (255 - index) << 8U | index; };
  // The bits, and the index of the second pixel in each row.
  for (const auto& [bits, first, second] :
       {std::array{1U, 0U, 1U}, {4U, 2U, 7U}, {8U, 0xA5U, 0x31U}}) {
    for (const int height : {2, -2}) {
      const auto picture = display::DecodeBitmap(
          Bitmap{2, static_cast<std::uint32_t>(height), bits, pixels, palette}.Bytes());
      ASSERT_TRUE(picture.has_value());
      const int first_row = height < 0 ? 0 : 1;
      EXPECT_EQ(picture->At({1, first_row}), colour(first));
      EXPECT_EQ(picture->At({1, 1 - first_row}), colour(second));
    }
  }
}

TEST(DecodeBitmap, ReadsColoursOfEveryWidth) {
  struct Row {
    const char* why;
    std::uint32_t header, bits;
    std::vector<std::uint32_t> masks;  // red, green, blue; without them the usual ones
    std::uint32_t pixel;
    std::optional<Colour> colour;
  };
  const std::vector<std::uint32_t> k565{0xF800, 0x7E0, 0x1F};
  const std::vector<std::uint32_t> kRgb{0xFF0000, 0xFF00, 0xFF};
  const Row rows[] = {
      {"16 bits", 40, 16, {}, 0x7C10, 0x8400FF},
      {"24 bits", 40, 24, {}, 0x112233, 0x332211},
      {"32 bits", 40, 32, {}, 0xAA112233, 0x332211},
      {"16 bits with masks", 40, 16, k565, 0x07FF, 0xFFFF00},
      {"of version 4", 108, 32, kRgb, 0xAA112233, 0x332211},
      {"of version 5, in another order", 124, 32, {0xFF, 0xFF00, 0xFF0000}, 0x112233, 0x112233},
      {"ten bits a colour", 124, 32, {0x3FF00000, 0xFFC00, 0x3FF}, 0x3FF00001, 0x0000FF},
      {"without green", 40, 32, {0xFF0000, 0, 0xFF}, 0x112233, 0x330011},
      {"24 bits have no masks", 40, 24, kRgb, 0x112233, std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    std::string pixel;
    Append(pixel, row.pixel, 4);
    const auto picture =
        display::DecodeBitmap(Bitmap{1, 1, row.bits, pixel, row.masks, row.header}.Bytes());
    EXPECT_EQ(picture ? std::optional(picture->At({0, 0})) : std::nullopt, row.colour);
  }
}

// 63 x 16 pixels, or so many times that: four pictures, each of one colour.
std::string Pictures(const std::vector<Colour>& colours, std::uint32_t times = 1) {
  const std::uint32_t width = 63 * times;
  std::string row;
  for (std::uint32_t x = 0; x < width; ++x) {
    for (const unsigned shift : {16U, 8U, 0U}) Append(row, colours[x / (16 * times)] >> shift, 1);
  }
  row.resize((row.size() + 3) / 4 * 4);
  std::string pixels;
  for (std::uint32_t y = 0; y < 16 * times; ++y) pixels += row;
  return Bitmap{width, 16 * times, 24, pixels}.Bytes();
}

class Tray : public test::Meter {
 protected:
  Colour At(int x, int y) { return machine.notification_area.Picture()->Pixel({x, y}); }
  int Bar(int x, Colour colour) {
    int height = 0;
    for (int y = 0; y < 16; ++y) height += At(x, y) == colour ? 1 : 0;
    return height;
  }
  bool Empty() {
    const auto pixels = Pixels(*machine.notification_area.Picture());
    return std::ranges::count(pixels, kRed) + std::ranges::count(pixels, kBlue) == 0;
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
    // The highest, and both sides of a half, a third, a quarter and a fifth of it.
    for (const std::uint32_t amount :
         {6000U, 3000U, 2999U, 2000U, 1999U, 1500U, 1499U, 1200U, 1199U, 1U, 0U}) {
      Scan({amount, amount});
    }
    machine.interface_table.AddRow(platform::memory::MakeRow("Another"));
    Scan({});
    EXPECT_EQ(Drawn(*machine.notification_area.Picture(),
                    {{kRed, 'd'}, {kBlue, 'u'}, {kWhite, '.'}, {0, '#'}}),
              R"(
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
    EXPECT_TRUE(Empty());
    Scan({1, 0});
    EXPECT_EQ(Bar(14, kRed), 5);
    Scan({99, 0});
    EXPECT_EQ(Bar(13, kRed), 1) << "the newest counts";
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
    EXPECT_EQ(UpdatesOf({}), 0);
    Scan({5000, 0});
    machine.notification_area.picture_size = 32;
    EXPECT_EQ(UpdatesOf({5000, 0}), 2) << "another size";
    EXPECT_EQ(Extent(), (platform::Size{32, 32}));
    EXPECT_TRUE(At(28, 12) == kRed && At(29, 13) == kRed && At(28, 3) == kWhite);
    machine.notification_area.picture_size = 20;
    Scan({5000, 0});
    EXPECT_EQ(At(19, 6), 0x808080U) << "the frame reaches the edge";
    for (int x = 0; x < 20; ++x) EXPECT_EQ(At(x, 10), 0x808080U) << "without a gap";
  });
}

TEST_F(Tray, ActivityIsShownByFourPicturesAsLargeAsTheUserLikes) {
  Set("IconType", 0);
  for (const std::uint32_t times : {1U, 2U, 4U}) {
    SCOPED_TRACE(times);
    UsePictures(Pictures({1, 2, 3, 4}, times));
    Run([&] {
      EXPECT_EQ(At(3, 3), 1U);
      const std::pair<test::Traffic, Colour> rows[] = {
          {{100, 100}, 4}, {{100, 0}, 3}, {{0, 100}, 2}, {{}, 1}};
      for (const auto& [traffic, shown] : rows) {
        Scan(traffic);
        EXPECT_EQ(At(0, 0), shown);
        EXPECT_EQ(At(15, 0), shown == 4 ? 1 : shown) << "the last picture is a column short";
      }
      EXPECT_EQ(UpdatesOf({}), 0) << "nothing has changed";
      Choose("Clear Graph");
      EXPECT_EQ(UpdatesOf({}), 1) << "a histogram was shown";
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

TEST_F(Tray, APictureFileThatIsNoneIsReplacedInUse) {
  const std::string good = Pictures({0x555555, 1, 2, 3});
  UsePictures(good);
  Set("IconType", 0);
  const std::string path = machine.files.ProgramFolder() + "mine.bmp";
  // Another one, with this byte in this place.
  const auto with = [](std::size_t at, char byte) {
    return Pictures({0x666666, 1, 2, 3}).replace(at, 1, 1, byte);
  };
  Set("TrayIconFile", path);
  for (const auto& [why, bytes] : {std::pair{"a good one", with(0, 'B')},
                                   {"no bitmap", with(0, 'X')},
                                   {"cut off", with(0, 'B').substr(0, good.size() - 1)},
                                   {"one column less", with(18, 62)},
                                   {"compressed", with(30, 1)},
                                   {"two thousand million columns", with(21, 0x7F)},
                                   {"larger than a picture can be", std::string(3U << 20, '\0')}}) {
    SCOPED_TRACE(why);
    machine.files.Put(path, bytes);
    Run([&, is_good = bytes == with(0, 'B')] {
      EXPECT_EQ(At(3, 3), is_good ? 0x666666U : 0x555555U);
    });
  }
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
    machine.notification_area.Click();
    EXPECT_TRUE(meter.visible && App().ShowMainForm);
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
