// A raster in memory that follows the system's drawing rules.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/memory/notebook.h"
#include "platform/memory/screen.h"
#include "platform/text.h"

namespace platform::memory {

// A text as it was drawn; pixels alone would not tell tests what it said.
struct DrawnText {
  Rect box;
  std::string text;
  FontStyle font;
  Colour colour;
  TextAlign align;
};

class Raster final : public Bitmap, public Canvas {
 public:
  Raster(Size size, Screen& screen)
      : size_(size), screen_(screen), pixels_(static_cast<std::size_t>(size.width * size.height)) {}

  Size Extent() const override { return size_; }
  Canvas& GetCanvas() override { return *this; }
  Colour Pixel(Point at) const override {
    return Area().Contains(at) ? pixels_[Index(at)] : colour::kBlack;
  }
  void ReadRow(int y, std::span<Colour> row) const override {
    std::copy_n(&pixels_[Index({0, y})], row.size(), row.begin());
  }
  void Fill(const Rect& area, Colour colour) override {
    const Colour rgb = screen_.Resolve(colour);
    if (area == Area()) texts_.clear();  // painted over
    const int right = std::min(area.Right(), size_.width);
    const int bottom = std::min(area.Bottom(), size_.height);
    for (int y = std::max(0, area.top); y < bottom; ++y) {
      for (int x = std::max(0, area.left); x < right; ++x) Set({x, y}, rgb);
    }
  }
  void Line(Point from, Point to, Colour colour, PenStyle style) override {
    const Colour rgb = screen_.Resolve(colour);
    const int dash = 1 + static_cast<int>(style);  // each broken line looks different
    const int dx = std::abs(to.x - from.x);
    const int dy = std::abs(to.y - from.y);
    const int step_x = from.x < to.x ? 1 : -1;
    const int step_y = from.y < to.y ? 1 : -1;
    int error = dx - dy;
    Point at = from;
    for (int step = 0; at != to; ++step) {
      if (style == PenStyle::kSolid || step % (2 * dash) < dash) Set(at, rgb);
      const int doubled = 2 * error;
      if (doubled > -dy) {
        error -= dy;
        at.x += step_x;
      }
      if (doubled < dx) {
        error += dx;
        at.y += step_y;
      }
    }
  }
  // Draws letters as blocks, so that tests see where there is text; Texts() has the words.
  void Text(const Rect& box, std::string_view text, const FontStyle& font, Colour colour,
            TextAlign align) override {
    texts_.push_back({box, std::string(text), font, colour, align});
    const Colour rgb = screen_.Resolve(colour);
    const Size extent = TextSize(text, font);
    int left = box.left;
    if (align == TextAlign::kCentre) left += (box.width - extent.width) / 2;
    if (align == TextAlign::kRight) left += box.width - extent.width;
    const int top = box.top + (box.height - extent.height) / 2;
    int column = 0;
    for (const char16_t letter : ToUtf16(text)) {
      for (int y = 0; letter != u' ' && y < font.height; ++y) {
        for (int x = 0; x + 1 < LetterWidth(font); ++x) {
          const Point at{left + column * LetterWidth(font) + x, top + y};
          if (box.Contains(at)) Set(at, rgb);
        }
      }
      ++column;
    }
  }
  platform::Size TextSize(std::string_view text, const FontStyle& font) override {
    return {static_cast<int>(ToUtf16(text).size()) * LetterWidth(font), font.height};
  }
  void Draw(const Bitmap& bitmap, Point at) override {
    const Size extent = bitmap.Extent();
    for (int y = 0; y < extent.height; ++y) {
      for (int x = 0; x < extent.width; ++x) Set({at.x + x, at.y + y}, bitmap.Pixel({x, y}));
    }
    if (const auto* raster = dynamic_cast<const Raster*>(&bitmap)) {
      texts_.insert(texts_.end(), raster->texts_.begin(), raster->texts_.end());
    }
  }

  [[nodiscard]] const std::vector<DrawnText>& Texts() const { return texts_; }

 private:
  void Set(Point at, Colour rgb) {
    if (Area().Contains(at)) pixels_[Index(at)] = rgb;
  }
  [[nodiscard]] std::size_t Index(Point at) const {
    return static_cast<std::size_t>(at.y) * static_cast<std::size_t>(size_.width) +
           static_cast<std::size_t>(at.x);
  }
  static int LetterWidth(const FontStyle& font) { return std::max(1, font.height * 6 / 10); }

  Size size_;
  Screen& screen_;
  std::vector<Colour> pixels_;
  std::vector<DrawnText> texts_;
};

class Graphics final : public platform::Graphics {
 public:
  Graphics(Notebook& notebook, Screen& screen) : notebook_(notebook), screen_(screen) {}

  std::unique_ptr<Bitmap> CreateBitmap(Size size) override {
    constexpr int kLargestSide = 16384;
    const bool possible = size.width >= 1 && size.height >= 1 && size.width <= kLargestSide &&
                          size.height <= kLargestSide;
    if (notebook_.Fails() || !possible) return nullptr;
    ++created;
    return std::make_unique<Raster>(size, screen_);
  }

  // The number of bitmaps made so far.
  int created = 0;

 private:
  Notebook& notebook_;
  Screen& screen_;
};

}  // namespace platform::memory
