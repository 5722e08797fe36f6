#include "platform/canvas.h"

#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

using platform::Bitmap;
using platform::Colour;
using platform::FontStyle;
using platform::PenStyle;
using platform::Point;
using platform::Rect;
using platform::Size;
using platform::TextAlign;
namespace colour = platform::colour;

class CanvasTest : public testing::Test {
 protected:
  std::unique_ptr<Bitmap> White(Size size) {
    std::unique_ptr<Bitmap> bitmap = desk_->Platform().graphics.CreateBitmap(size);
    bitmap->GetCanvas().Fill({0, 0, size.width, size.height}, colour::kWhite);
    return bitmap;
  }

  // The smallest rectangle with all pixels that are not white.
  static Rect Ink(const Bitmap& bitmap) {
    int left = bitmap.Extent().width, top = bitmap.Extent().height, right = 0, bottom = 0;
    for (int y = 0; y < bitmap.Extent().height; ++y) {
      for (int x = 0; x < bitmap.Extent().width; ++x) {
        if (bitmap.Pixel({x, y}) == colour::kWhite) continue;
        left = std::min(left, x);
        top = std::min(top, y);
        right = std::max(right, x + 1);
        bottom = std::max(bottom, y + 1);
      }
    }
    if (right == 0) return {};
    return {left, top, right - left, bottom - top};
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
};

TEST_F(CanvasTest, ALineLeavesOutItsEndPoint) {
  struct Row {
    const char* why;
    Point from, to;
    Rect ink;
  };
  static constexpr Row kRows[] = {
      {"to the right", {1, 4}, {7, 4}, {1, 4, 6, 1}},
      {"to the left", {7, 4}, {1, 4}, {2, 4, 6, 1}},
      {"down", {3, 0}, {3, 5}, {3, 0, 1, 5}},
      {"up", {3, 5}, {3, 0}, {3, 1, 1, 5}},
      {"slanted", {0, 0}, {6, 6}, {0, 0, 6, 6}},
      {"no way to go", {4, 4}, {4, 4}, {}},
      {"from outside to outside", {-3, 2}, {40, 2}, {0, 2, 10, 1}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    const auto bitmap = White({10, 10});
    bitmap->GetCanvas().Line(row.from, row.to, colour::kRed);
    EXPECT_EQ(Ink(*bitmap), row.ink);
  }
}

TEST_F(CanvasTest, ABrokenLineLeavesItsGapsAsTheyWere) {
  for (const PenStyle style :
       {PenStyle::kDash, PenStyle::kDot, PenStyle::kDashDot, PenStyle::kDashDotDot}) {
    SCOPED_TRACE(static_cast<int>(style));
    const auto bitmap = White({100, 3});
    bitmap->GetCanvas().Line({0, 1}, {100, 1}, colour::kBlue, style);
    int drawn = 0;
    int left_alone = 0;
    for (int x = 0; x < 100; ++x) {
      drawn += bitmap->Pixel({x, 1}) == colour::kBlue ? 1 : 0;
      left_alone += bitmap->Pixel({x, 1}) == colour::kWhite ? 1 : 0;
    }
    EXPECT_GT(drawn, 0);
    EXPECT_GT(left_alone, 0);
    EXPECT_EQ(drawn + left_alone, 100);
  }
}

TEST_F(CanvasTest, AFillIsClippedToTheCanvas) {
  struct Row {
    const char* why;
    Rect area, ink;
  };
  static constexpr Row kRows[] = {
      {"inside", {2, 3, 4, 5}, {2, 3, 4, 5}},
      {"over two edges", {-5, -5, 8, 7}, {0, 0, 3, 2}},
      {"far beyond all edges", {-1000, -1000, 5000, 5000}, {0, 0, 10, 10}},
      {"outside", {10, 0, 5, 5}, {}},
      {"without width", {2, 2, 0, 5}, {}},
      {"turned inside out", {6, 6, -3, -3}, {}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    const auto bitmap = White({10, 10});
    bitmap->GetCanvas().Fill(row.area, colour::kRed);
    EXPECT_EQ(Ink(*bitmap), row.ink);
  }
}

TEST_F(CanvasTest, TextStaysInItsBoxOnTheSideThatIsAskedFor) {
  const FontStyle font{"Tahoma", 11, false};
  constexpr Rect kBox{20, 10, 160, 30};
  struct Row {
    const char* why;
    TextAlign align;
    const char* text;
    int slack_left, slack_right;  // a letter may keep a little distance from its edge
  };
  static constexpr Row kRows[] = {
      {"left", TextAlign::kLeft, "HH", 4, 200},
      {"right", TextAlign::kRight, "HH", 200, 4},
      {"too long for its box", TextAlign::kLeft, "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH", 4, 4},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    const auto bitmap = White({200, 50});
    bitmap->GetCanvas().Text(kBox, row.text, font, colour::kBlack, row.align);
    const Rect ink = Ink(*bitmap);
    ASSERT_FALSE(ink.Empty());
    EXPECT_GE(ink.left, kBox.left);
    EXPECT_LE(ink.Right(), kBox.Right());
    EXPECT_LE(ink.left - kBox.left, row.slack_left);
    EXPECT_LE(kBox.Right() - ink.Right(), row.slack_right);
    const int middle = ink.top + ink.height / 2;
    EXPECT_NEAR(middle, kBox.top + kBox.height / 2, 3) << "centred vertically";
  }
}

TEST_F(CanvasTest, TextOverAColourBringsNoBackgroundOfItsOwn) {
  const auto bitmap = White({60, 20});
  bitmap->GetCanvas().Fill({0, 0, 60, 20}, colour::kLime);
  bitmap->GetCanvas().Text({0, 0, 60, 20}, "I I", {"Tahoma", 11, false}, colour::kLime,
                           TextAlign::kCentre);
  for (int x = 0; x < 60; ++x) {
    for (int y = 0; y < 20; ++y) ASSERT_EQ(bitmap->Pixel({x, y}), colour::kLime);
  }
}

TEST_F(CanvasTest, TextIsMeasuredAsItStands) {
  const auto bitmap = White({1, 1});
  platform::Canvas& canvas = bitmap->GetCanvas();
  const FontStyle small{"Tahoma", 11, false};
  const FontStyle large{"Tahoma", 33, false};

  EXPECT_EQ(canvas.TextSize("", small).width, 0);
  EXPECT_GE(canvas.TextSize("", small).height, 11) << "the line is there without letters";
  EXPECT_GT(canvas.TextSize("a&b", small).width, canvas.TextSize("ab", small).width)
      << "an ampersand is a letter";
  EXPECT_GT(canvas.TextSize("abc", large).width, 2 * canvas.TextSize("abc", small).width);
  EXPECT_GT(canvas.TextSize("", large).height, 2 * canvas.TextSize("", small).height);
}

TEST_F(CanvasTest, ABitmapIsCopiedWholeAndClipped) {
  const auto source = White({4, 4});
  source->GetCanvas().Fill({0, 0, 2, 4}, colour::kRed);
  const auto target = White({10, 10});
  target->GetCanvas().Draw(*source, {-1, 8});
  EXPECT_EQ(Ink(*target), (Rect{0, 8, 1, 2}));
  EXPECT_EQ(target->Pixel({0, 9}), colour::kRed);
}

TEST_F(CanvasTest, ABitmapBeginsBlackAndIsBlackOutside) {
  const auto bitmap = desk_->Platform().graphics.CreateBitmap({3, 2});
  ASSERT_NE(bitmap, nullptr);
  EXPECT_EQ(bitmap->Extent(), (Size{3, 2}));
  EXPECT_EQ(bitmap->Pixel({2, 1}), colour::kBlack);
  bitmap->GetCanvas().Fill({0, 0, 3, 2}, 0x123456);
  EXPECT_EQ(bitmap->Pixel({2, 1}), 0x123456U);
  for (const Point outside : {Point{-1, 0}, Point{0, -1}, Point{3, 0}, Point{0, 2}}) {
    EXPECT_EQ(bitmap->Pixel(outside), colour::kBlack);
  }
}

TEST_F(CanvasTest, SystemColoursAreDrawnAsTheScreenHasThem) {
  const auto bitmap = White({1, 1});
  bitmap->GetCanvas().Fill({0, 0, 1, 1}, colour::kHighlight);
  EXPECT_EQ(bitmap->Pixel({0, 0}), desk_->Platform().screen.Resolve(colour::kHighlight));
  EXPECT_EQ(desk_->Platform().screen.Resolve(colour::kSilver), colour::kSilver);
}

TEST_F(CanvasTest, NoBitmapIsMadeOfAnImpossibleSize) {
  for (const Size size : {Size{0, 5}, Size{5, 0}, Size{-1, 5}, Size{16385, 1}, Size{1, 16385}}) {
    EXPECT_EQ(desk_->Platform().graphics.CreateBitmap(size), nullptr);
  }
  EXPECT_NE(desk_->Platform().graphics.CreateBitmap({16384, 1}), nullptr);
}

}  // namespace
}  // namespace contract
