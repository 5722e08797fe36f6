#include "display/tray/tray_icon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "tests/display/meter.h"

namespace {

using display::DecodeBitmap;
using display::TrayHistory;
using platform::Colour;
using test::MeterTest;

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

TEST(TrayHistory, LevelsFallWithTheBandsOfTheMaximumInSight) {
  struct Row {
    const char* why;
    std::int64_t amount;
    int level;
  };
  static constexpr Row kRows[] = {
      {"the maximum itself", 6000, 1},
      {"half", 3000, 1},
      {"below half", 2999, 2},
      {"a third", 2000, 2},
      {"below a third", 1999, 3},
      {"a quarter", 1500, 3},
      {"below a quarter", 1499, 4},
      {"a fifth", 1200, 4},
      {"below a fifth", 1199, 5},
      {"one byte", 1, 5},
      {"nothing", 0, 0},
      {"less than nothing", -5, 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    TrayHistory dl(1);
    TrayHistory ul(9);
    for (TrayHistory* history : {&dl, &ul}) {
      history->Push(6000);
      history->Push(row.amount);
    }
    EXPECT_EQ(dl.Level(1), row.level);
    EXPECT_EQ(ul.Level(1), row.level == 0 ? 0 : row.level + 8);
  }
}

TEST(TrayHistory, OneBurstDoesNotFlattenTheIconForTheDay) {
  TrayHistory history(1);
  history.Push(1000000);
  for (int i = 0; i < 13; ++i) history.Push(10);
  EXPECT_EQ(history.Level(14), 1);
  EXPECT_EQ(history.Level(1), 5);
  history.Push(10);  // the burst is in slot 15 now: kept, not drawn
  EXPECT_EQ(history.Level(1), 1);
}

class Tray : public MeterTest {
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
  void UsePictures(const std::string& bytes) {
    machine.files.Put(machine.files.ProgramFolder() + "Icons\\default.bmp", bytes);
  }
};

TEST_F(Tray, TheHistogramIsFramedAndItsBarsMoveToTheLeft) {
  Run([&] {
    EXPECT_EQ(At(0, 0), 0U);
    EXPECT_EQ(At(15, 5), 0x808080U);
    EXPECT_EQ(At(5, 15), 0x808080U);
    EXPECT_EQ(At(5, 7), 0U);
    EXPECT_EQ(At(5, 8), 0x808080U);
    EXPECT_EQ(At(14, 6), kWhite);
    Scan({5000, 800});
    EXPECT_EQ(Bar(14, kRed), 5);
    EXPECT_EQ(Bar(14, kBlue), 5);
    EXPECT_EQ(At(14, 6), kRed);
    EXPECT_EQ(At(14, 1), kWhite) << "the end point of a line is not painted";
    EXPECT_EQ(At(14, 14), kBlue);
    for (int column = 13; column >= 1; --column) {
      Scan({});
      EXPECT_EQ(Bar(column, kRed), 5);
      EXPECT_EQ(Bar(column + 1, kRed), 0);
    }
    Scan({});
    for (int x = 0; x < 16; ++x) EXPECT_EQ(Bar(x, kRed) + Bar(x, kBlue), 0);
  });
  EXPECT_FALSE(machine.notification_area.Present()) << "the icon goes with the program";
}

TEST_F(Tray, AdaptersThatComeDoNotEmptyTheHistory) {
  Run([&] {
    Scan({5000, 0});
    machine.interface_table.AddRow(platform::memory::MakeRow("Another"));
    Scan({});
    EXPECT_EQ(Bar(13, kRed), 5);
  });
}

TEST_F(Tray, TheShellIsGivenOnlyWhatItDoesNotShow) {
  Run([&] {
    const auto updates_of = [&](test::Traffic traffic) {
      const int before = machine.notification_area.picture_updates;
      Scan(traffic);
      return machine.notification_area.picture_updates - before;
    };
    EXPECT_EQ(updates_of({}), 0) << "an idle line";
    EXPECT_EQ(updates_of({5000, 0}), 1) << "the upper half";
    EXPECT_EQ(updates_of({5000, 800}), 2);
    machine.notification_area.busy = true;
    for (int i = 0; i < 20; ++i) Scan({});
    EXPECT_EQ(updates_of({}), 2) << "what was not taken is given again";
    machine.notification_area.busy = false;
    EXPECT_EQ(updates_of({}), 2);
    EXPECT_EQ(Bar(1, kRed), 0);
    EXPECT_EQ(updates_of({}), 0);
    machine.notification_area.picture_size = 32;
    EXPECT_EQ(updates_of({}), 2) << "another size";
  });
}

TEST_F(Tray, ClearGraphEmptiesTheHistogram) {
  Run([&] {
    Scan({5000, 800});
    Choose("Clear Graph");
    for (int x = 0; x < 16; ++x) EXPECT_EQ(Bar(x, kRed) + Bar(x, kBlue), 0);
    Scan({1, 0});
    EXPECT_EQ(Bar(14, kRed), 5) << "the burst before is forgotten";
  });
}

TEST_F(Tray, PicturesMayBeAsLargeAsTheUserLikes) {
  Set("IconType", 0U);
  for (const int times : {1, 2, 4}) {
    SCOPED_TRACE(times);
    UsePictures(Pictures({0x111111, 0x222222, 0x333333, 0x444444}, times));
    Run([&] {
      Scan({100, 100});
      EXPECT_EQ(At(3, 3), 0x444444U);
    });
  }
}

TEST_F(Tray, ActivityIsShownByFourPictures) {
  constexpr Colour kPictures[] = {0x111111, 0x222222, 0x333333, 0x444444};
  UsePictures(Pictures({kPictures[0], kPictures[1], kPictures[2], kPictures[3]}));
  Set("IconType", 0U);
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
    const int updates = machine.notification_area.picture_updates;
    Scan({});
    EXPECT_EQ(machine.notification_area.picture_updates, updates) << "nothing has changed";
    machine.notification_area.picture_size = 32;
    Scan({});
    EXPECT_EQ(machine.notification_area.Picture()->Extent(), (platform::Size{32, 32}));
  });
}

TEST_F(Tray, APictureFileThatIsNoneIsReplacedInUseAndNotInTheStore) {
  const std::string good = Pictures({0x555555, 1, 2, 3});
  UsePictures(good);
  Set("IconType", 0U);
  const std::string path = machine.files.ProgramFolder() + "mine.bmp";
  struct Row {
    const char* why;
    std::string bytes;
  };
  std::string compressed = good;
  compressed[30] = 1;
  std::string huge = good;
  huge[21] = 0x7F;  // two thousand million columns
  const std::vector<Row> rows = {
      {"empty", ""},
      {"no bitmap", std::string(2000, 'x')},
      {"cut off", good.substr(0, good.size() - 1)},
      {"another size", BitmapOf({1, 2, 3}, 16)},
      {"compressed", compressed},
      {"larger than any screen", huge},
      {"larger than a picture can be", std::string(3U << 20, '\0')},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    machine.files.Put(path, row.bytes);
    Set("TrayIconFile", path);
    Run([&] { EXPECT_EQ(At(3, 3), 0x555555U); });
    EXPECT_EQ(StoredText("TrayIconFile"), path);
  }
  Set("TrayIconFile", "C:\\nowhere.bmp");
  Run([&] { EXPECT_EQ(At(3, 3), 0x555555U); });
  machine.files.Remove(machine.files.ProgramFolder() + "Icons\\default.bmp");
  Run([&] { EXPECT_EQ(At(14, 6), kWhite) << "without any picture the empty histogram"; });
}

TEST_F(Tray, AnotherIconTypeIsLeftAlone) {
  Set("IconType", 2);
  Run([&] {
    const int updates = machine.notification_area.picture_updates;
    Scan({5000, 5000});
    EXPECT_EQ(machine.notification_area.picture_updates, updates);
    EXPECT_EQ(Bar(14, kRed), 0);
    Set("IconType", 1);
    Scan({10, 0});
    EXPECT_EQ(Bar(14, kRed), 5);
    EXPECT_EQ(Bar(13, kRed), 0) << "the history stood still meanwhile";

    UsePictures(Pictures({1, 2, 0x333333, 4}));
    Set("IconType", 0U);
    Scan({10, 0});
    EXPECT_EQ(At(3, 3), 0x333333U) << "the pictures are loaded when they are first wanted";
  });
}

TEST_F(Tray, IsEnlargedByWholePixelsWhereTheScreenAsksForMore) {
  machine.notification_area.picture_size = 32;
  Run([&] {
    Scan({5000, 0});
    EXPECT_EQ(machine.notification_area.Picture()->Extent(), (platform::Size{32, 32}));
    EXPECT_EQ(At(28, 12), kRed);
    EXPECT_EQ(At(29, 13), kRed);
    EXPECT_EQ(At(28, 3), kWhite);
    machine.notification_area.picture_size = 20;
    Scan({5000, 0});
    for (int x = 0; x < 20; ++x) EXPECT_NE(At(x, 8), 0xDEADU);
    EXPECT_EQ(At(19, 6), 0x808080U) << "the frame reaches the edge";
  });
}

TEST_F(Tray, TheHintCarriesTheLineWithEveryTick) {
  Set("SOM1", 1);
  Set("SOM2", 0U);
  Run([&] {
    EXPECT_EQ(machine.notification_area.hint, "Korvane Tremolux");
    Scan({1024, 0});
    EXPECT_EQ(machine.notification_area.hint, "Korvane Tremolux [ DL:1 kB UL:0,0 kB ]");
    Set("SOM1", 0U);
    Scan({1024, 0});
    EXPECT_EQ(machine.notification_area.hint, "Korvane Tremolux ");
  });
}

TEST_F(Tray, ClicksShowAndHideTheMeterAndOpenTheMenu) {
  Run([&] {
    machine.notification_area.Click();
    EXPECT_FALSE(Widget("T_frmBrisanto").visible);
    EXPECT_FALSE(App().ShowMainForm);
    Scan({100, 0});
    EXPECT_FALSE(Widget("T_frmBrisanto").visible);
    machine.notification_area.Click();
    EXPECT_TRUE(Widget("T_frmBrisanto").visible);
    EXPECT_EQ(Widget("T_frmBrisanto").shown_with, platform::Activation::kLeaveFocus);
    machine.windowing.DoubleClick("_tlkInterMeter");
    EXPECT_FALSE(Widget("T_frmBrisanto").visible);
    machine.menus.WillChoose("Show / Hide Graph");
    machine.notification_area.RightClick({900, 700});
    EXPECT_EQ(machine.menus.last_at, (platform::Point{900, 700}));
    EXPECT_TRUE(Widget("T_frmBrisanto").visible);
  });
}

TEST(DecodeBitmap, ReadsPalettesAndRowsFromTheTop) {
  std::string bytes = "BM";
  Append(bytes, 0, 8);
  Append(bytes, 54 + 16 * 4, 4);
  Append(bytes, 40, 4);
  Append(bytes, 3, 4);
  Append(bytes, static_cast<std::uint32_t>(-2), 4);  // the first row is the upper one
  Append(bytes, 1, 2);
  Append(bytes, 4, 2);
  Append(bytes, 0, 24);
  for (std::uint32_t i = 0; i < 16; ++i) Append(bytes, i << 16U, 4);  // red i, in the file's order
  bytes += std::string("\x12\x30\x00\x00\x45\x60\x00\x00", 8);
  const auto picture = DecodeBitmap(bytes);
  ASSERT_TRUE(picture.has_value());
  EXPECT_EQ(picture->At({0, 0}), 1U);
  EXPECT_EQ(picture->At({2, 0}), 3U);
  EXPECT_EQ(picture->At({1, 1}), 5U);
}

TEST(DecodeBitmap, ReadsColoursOfEveryWidth) {
  struct Row {
    const char* why;
    std::uint32_t header;
    std::uint32_t bits;
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
      {"32 bits with masks", 40, 32, kRgb, 0xAA112233, 0x332211},
      {"of version 4", 108, 32, kRgb, 0xAA112233, 0x332211},
      {"of version 5, in another order", 124, 32, {0xFF, 0xFF00, 0xFF0000}, 0x112233, 0x112233},
      {"ten bits a colour", 124, 32, {0x3FF00000, 0xFFC00, 0x3FF}, 0x3FF00001, 0x0000FF},
      {"without green", 40, 32, {0xFF0000, 0, 0xFF}, 0x112233, 0x330011},
      {"24 bits have no masks", 40, 24, kRgb, 0x112233, std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    std::string header;
    Append(header, row.header, 4);
    Append(header, 1, 4);
    Append(header, 1, 4);
    Append(header, 1, 2);
    Append(header, row.bits, 2);
    Append(header, row.masks.empty() ? 0 : 3, 4);
    header.resize(40);
    for (const std::uint32_t mask : row.masks) Append(header, mask, 4);
    header.resize(std::max<std::size_t>(header.size(), row.header));
    std::string bytes = "BM";
    Append(bytes, 0, 8);
    Append(bytes, static_cast<std::uint32_t>(14 + header.size()), 4);
    bytes += header;
    Append(bytes, row.pixel, 4);
    const auto picture = DecodeBitmap(bytes);
    ASSERT_EQ(picture.has_value(), row.colour.has_value());
    if (!picture) continue;
    EXPECT_EQ(picture->At({0, 0}), row.colour);
  }
}

}  // namespace
