#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "display/tray/pictures.h"

namespace {

using display::DecodeBitmap;
using platform::Colour;

void Append(std::string& bytes, std::uint32_t value, int size) {
  for (; size > 0; --size, value >>= 8U) bytes += static_cast<char>(value & 0xFFU);
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
