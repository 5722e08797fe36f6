// A raster in memory that follows the system's drawing rules.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/memory/notebook.h"
#include "platform/memory/screen.h"

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
  Raster(Size size, Screen& screen);

  [[nodiscard]] Size Extent() const override { return size_; }
  [[nodiscard]] Canvas& GetCanvas() override { return *this; }
  [[nodiscard]] Colour Pixel(Point at) const override;

  void ReadRow(int y, std::span<Colour> row) const override;

  void Fill(const Rect& area, Colour colour) override;
  void Line(Point from, Point to, Colour colour, PenStyle style) override;
  // Draws letters as blocks, so that tests see where there is text; Texts() has the words.
  void Text(const Rect& box, std::string_view text, const FontStyle& font, Colour colour,
            TextAlign align) override;
  [[nodiscard]] platform::Size TextSize(std::string_view text, const FontStyle& font) override;
  void Draw(const Bitmap& bitmap, Point at) override;

  [[nodiscard]] const std::vector<DrawnText>& Texts() const { return texts_; }

 private:
  void Set(Point at, Colour rgb);

  Size size_;
  Screen& screen_;
  std::vector<Colour> pixels_;
  std::vector<DrawnText> texts_;
};

class Graphics final : public platform::Graphics {
 public:
  Graphics(Notebook& notebook, Screen& screen) : notebook_(notebook), screen_(screen) {}

  [[nodiscard]] std::unique_ptr<Bitmap> CreateBitmap(Size size) override;

  // The number of bitmaps made so far.
  int created = 0;

 private:
  Notebook& notebook_;
  Screen& screen_;
};

}  // namespace platform::memory
