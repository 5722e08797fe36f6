// Off-screen pictures and what can be drawn on them.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/colour.h"
#include "platform/geometry.h"

namespace platform {

struct FontStyle {
  std::string face = "Tahoma";  // when it is not installed, the system's nearest font is used
  int height = 11;              // pixels, character height without internal leading (96 dpi: 8 pt)
  bool bold = false;
  friend bool operator==(const FontStyle&, const FontStyle&) = default;
};

enum class PenStyle { kSolid, kDash, kDot, kDashDot, kDashDotDot };

enum class TextAlign { kLeft, kCentre, kRight };

class Bitmap;

// Draws on a bitmap or a window's back buffer. Points outside are clipped. System colours are
// resolved when they are drawn. A canvas is lent for one call or belongs to its bitmap.
class Canvas {
 public:
  virtual ~Canvas() = default;

  [[nodiscard]] virtual Size Extent() const = 0;
  // Returns the whole area.
  [[nodiscard]] Rect Area() const { return {0, 0, Extent().width, Extent().height}; }

  virtual void Fill(const Rect& area, Colour colour) = 0;

  // Draws a line one pixel wide without its end point. The gaps of a broken style are not painted.
  virtual void Line(Point from, Point to, Colour colour, PenStyle style = PenStyle::kSolid) = 0;

  // Draws one line of text, centred vertically in `box` and clipped to it, without a background.
  // "&" has no special meaning.
  virtual void Text(const Rect& box, std::string_view text, const FontStyle& font, Colour colour,
                    TextAlign align) = 0;
  [[nodiscard]] virtual Size TextSize(std::string_view text, const FontStyle& font) = 0;

  // Copies a whole bitmap with its top left corner at `at`.
  virtual void Draw(const Bitmap& bitmap, Point at) = 0;
};

// A picture in memory, 32 bits a pixel, black when it is new.
class Bitmap {
 public:
  virtual ~Bitmap() = default;

  [[nodiscard]] virtual Size Extent() const = 0;
  [[nodiscard]] virtual Canvas& GetCanvas() = 0;
  // Returns the colour of a pixel as 0x00BBGGRR, or black for a point outside.
  [[nodiscard]] virtual Colour Pixel(Point at) const = 0;
  // Copies the colours of row `y` into `row` from the left; much faster than pixel by pixel. `row`
  // is as long as the bitmap is wide, and `y` lies inside.
  virtual void ReadRow(int y, std::span<Colour> row) const = 0;
};

class Graphics {
 public:
  virtual ~Graphics() = default;

  // Returns null when a side is not 1 to 16384 pixels or memory is short.
  [[nodiscard]] virtual std::unique_ptr<Bitmap> CreateBitmap(Size size) = 0;
};

}  // namespace platform
