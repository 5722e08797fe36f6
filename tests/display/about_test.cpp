#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "display/images.h"
#include "platform/memory/canvas.h"
#include "program/product.h"
#include "tests/display/meter.h"
#include "toolkit/controls/layout.h"

namespace {

class About : public test::MeterTest {};

TEST_F(About, TellsNameAndVersionOnceAtATime) {
  Run([&] {
    machine.message_loop.Then([&] {
      EXPECT_EQ(Widget("T_frmAbout").text, "About Korvane Tremolux");
      EXPECT_EQ(Widget("lblProduct").text, "Korvane Tremolux");
      EXPECT_EQ(Widget("lblVersion").text, "Version " + std::string(program::kVersion));
      EXPECT_EQ(toolkit::LayoutFaults(*App().Modals().Top()), std::vector<std::string>());
      machine.menus.WillChoose("About Korvane Tremolux");
      machine.notification_area.RightClick({900, 700});
      EXPECT_EQ(Widget("T_frmAbout").raised, 1);
      machine.windowing.PressEnter("T_frmAbout");
    });
    Choose("About Korvane Tremolux");
    EXPECT_FALSE(machine.windowing.Exists("T_frmAbout"));
  });
  EXPECT_EQ(machine.message_loop.starved, 0);
}

// The bitmap of 16 by 16 pixels in the icon file: blue, green, red, opacity, the lowest row first.
TEST(ProgramImage, IsTheProgramsIcon) {
  std::ifstream file(SOURCE_FOLDER "/assets/tremolux.ico", std::ios::binary);
  const std::string icon{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  const auto byte = [&icon](std::size_t at) { return static_cast<unsigned char>(icon.at(at)); };
  ASSERT_EQ(byte(6), 16) << "the smallest comes first";
  const std::size_t pixels = byte(18) + byte(19) * 256U + 40;

  constexpr platform::Colour kClear = 0x123456;
  platform::memory::Screen screen;
  platform::memory::Raster raster({16, 16}, screen);
  raster.Fill({0, 0, 16, 16}, kClear);
  display::kProgramImage.Draw(0, raster, {0, 0}, 96);
  for (int y = 0; y < 16; ++y) {
    for (int x = 0; x < 16; ++x) {
      const std::size_t at = pixels + static_cast<std::size_t>((15 - y) * 16 + x) * 4;
      const platform::Colour colour = byte(at + 2) | byte(at + 1) << 8U | byte(at) << 16U;
      EXPECT_EQ(raster.Pixel({x, y}), byte(at + 3) == 0 ? kClear : colour) << x << ", " << y;
    }
  }
}

}  // namespace
