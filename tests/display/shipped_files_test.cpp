// The pictures and sounds that lie beside the program are such as it can use.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "display/tray/pictures.h"

namespace {

std::string ReadAsset(const std::string& name) {
  std::ifstream file(SOURCE_FOLDER "/assets/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(ShippedFiles, TheTrayPicturesAreFourDifferentOnesThatLeaveRoomForTheTaskbar) {
  const auto bitmap = display::DecodeBitmap(ReadAsset("Icons/default.bmp"));
  ASSERT_TRUE(bitmap.has_value());
  EXPECT_EQ(bitmap->size, (platform::Size{63, 16}));
  const platform::Colour see_through = bitmap->At({0, 15});
  const auto pixel = [&](int picture, int x, int y) {
    const int column = picture * 16 + x;
    return column < 63 ? bitmap->At({column, y}) : see_through;
  };
  const auto differing = [&](int a, int b) {
    int pixels = 0;
    for (int i = 0; i < 256; ++i) pixels += pixel(a, i % 16, i / 16) != pixel(b, i % 16, i / 16);
    return pixels;
  };
  for (const auto& [a, b] : {std::pair{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}}) {
    EXPECT_GT(differing(a, b), 8) << a << " and " << b << " look alike";
  }
  for (int picture = 0; picture < 4; ++picture) {
    int clear = 0;
    for (int i = 0; i < 256; ++i) clear += pixel(picture, i % 16, i / 16) == see_through;
    EXPECT_GT(clear, 30);
    EXPECT_LT(clear, 128);
  }
}

TEST(ShippedFiles, TheSoundsAreShortWaves) {
  struct Row {
    const char* name;
    std::size_t most_milliseconds;
  };
  for (const Row& row : {Row{"warning.wav", 700}, Row{"ticking.wav", 80}}) {
    SCOPED_TRACE(row.name);
    const std::string wave = ReadAsset(row.name);
    ASSERT_GT(wave.size(), 44U);
    EXPECT_EQ(wave.substr(0, 4) + wave.substr(8, 8), "RIFFWAVEfmt ");
    constexpr std::size_t kBytesAMillisecond = 44;  // 22050 Hz, 16 bits, one channel
    EXPECT_LT(wave.size(), 44 + row.most_milliseconds * kBytesAMillisecond);
  }
}

}  // namespace
