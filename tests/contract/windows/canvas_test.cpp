// What is drawn, and where.
#include "platform/canvas.h"

#include <algorithm>

#include "tests/contract/world.h"

namespace contract {
namespace {

using platform::Bitmap;
using platform::Colour;
using platform::FontStyle;
using platform::PenStyle;
using platform::Rect;
using platform::Size;
using platform::TextAlign;
namespace colour = platform::colour;

class Canvas : public ContractTest {
 protected:
  std::unique_ptr<Bitmap> White(Size size) {
    std::unique_ptr<Bitmap> bitmap = Platform().graphics.CreateBitmap(size);
    bitmap->GetCanvas().Fill({0, 0, size.width, size.height}, colour::kWhite);
    return bitmap;
  }
  // From the first to behind the last pixel of row 20 that is not white.
  static std::pair<std::ptrdiff_t, std::ptrdiff_t> Ink(const Bitmap& bitmap) {
    std::vector<Colour> row(static_cast<std::size_t>(bitmap.Extent().width));
    bitmap.ReadRow(20, row);
    const auto inked = [](Colour c) { return c != colour::kWhite; };
    return {std::find_if(row.begin(), row.end(), inked) - row.begin(),
            row.rend() - std::find_if(row.rbegin(), row.rend(), inked)};
  }
};

TEST_F(Canvas, ALineLeavesOutItsEndPointAndABrokenOneItsGaps) {
  const auto bitmap = White({100, 1});
  bitmap->GetCanvas().Line({7, 0}, {1, 0}, colour::kRed);
  EXPECT_EQ(bitmap->Pixel({7, 0}), colour::kRed);
  EXPECT_EQ(bitmap->Pixel({1, 0}), colour::kWhite);
  for (const PenStyle style :
       {PenStyle::kDash, PenStyle::kDot, PenStyle::kDashDot, PenStyle::kDashDotDot}) {
    SCOPED_TRACE(static_cast<int>(style));
    bitmap->GetCanvas().Fill({-5, -5, 500, 500}, colour::kWhite);
    bitmap->GetCanvas().Line({0, 0}, {100, 0}, colour::kBlue, style);
    std::vector<Colour> row(100);
    bitmap->ReadRow(0, row);
    const auto drawn = std::count(row.begin(), row.end(), colour::kBlue);
    EXPECT_TRUE(drawn > 0 && drawn < 100);
  }
}

TEST_F(Canvas, TextStaysInItsBoxOnTheSideThatIsAskedFor) {
  const FontStyle font{"Tahoma", 11, false};
  constexpr Rect kBox{20, 5, 160, 30};
  struct Row {
    const char* why;
    TextAlign align;
    std::string text;
    int slack_left, slack_right;  // a letter may keep a little distance from its edge
  };
  const Row rows[] = {
      {"left", TextAlign::kLeft, "HH", 4, 200},
      {"right", TextAlign::kRight, "HH", 200, 4},
      {"too long for its box", TextAlign::kLeft, std::string(41, 'H'), 4, 12},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    const auto bitmap = White({200, 40});
    bitmap->GetCanvas().Text(kBox, row.text, font, colour::kBlack, row.align);
    bitmap->GetCanvas().Text(kBox, "I I", font, colour::kWhite,
                             TextAlign::kCentre);  // only letters
    const auto [left, right] = Ink(*bitmap);
    EXPECT_TRUE(left >= kBox.left && left <= kBox.left + row.slack_left) << left;
    EXPECT_TRUE(right <= kBox.Right() && right >= kBox.Right() - row.slack_right) << right;
  }
  const auto bitmap = White({1, 1});
  const auto size = [&](const char* text) { return bitmap->GetCanvas().TextSize(text, font); };
  EXPECT_EQ(size("").width, 0);
  EXPECT_GE(size("").height, 11) << "the line is there without letters";
  EXPECT_GT(size("a&b").width, size("ab").width) << "an ampersand is a letter";
}

TEST_F(Canvas, ABitmapBeginsBlackIsBlackOutsideAndIsCopiedWhole) {
  const auto source = Platform().graphics.CreateBitmap({3, 2});
  EXPECT_EQ(source->Pixel({2, 1}), colour::kBlack);
  source->GetCanvas().Fill({1, 0, 2, 9}, 0x123456);
  EXPECT_EQ(source->Pixel({2, 1}), 0x123456U);
  EXPECT_EQ(source->Pixel({3, 0}), colour::kBlack);
  const auto target = White({3, 3});
  target->GetCanvas().Draw(*source, {-1, 1});
  EXPECT_EQ(target->Pixel({1, 2}), 0x123456U);
  EXPECT_EQ(target->Pixel({0, 0}), colour::kWhite);
  source->GetCanvas().Fill({0, 0, 1, 1}, colour::kHighlight);
  EXPECT_EQ(source->Pixel({0, 0}), Platform().screen.Resolve(colour::kHighlight));
  for (const Size size : {Size{0, 5}, Size{5, 0}, Size{-1, 5}, Size{16385, 1}, Size{1, 16385}}) {
    EXPECT_EQ(Platform().graphics.CreateBitmap(size), nullptr);
  }
  EXPECT_NE(Platform().graphics.CreateBitmap({16384, 1}), nullptr);
}

}  // namespace
}  // namespace contract
