// A canvas that draws with GDI, and the fonts that it uses.
#pragma once

#include <memory>
#include <vector>

#include "platform/canvas.h"
#include "platform/windows/drawing/gdi.h"

namespace platform::windows {

// Fonts are made once and used often.
using SharedFont = std::shared_ptr<const Font>;

class FontCache {
 public:
  // Returns the font for `spec`, or the system's nearest one, or null when the system is out of
  // memory. A control that goes on using a font keeps the returned pointer, since the cache drops
  // the font that has not been asked for longest.
  [[nodiscard]] SharedFont Get(const FontStyle& spec);

 private:
  struct Entry {
    FontStyle spec;
    SharedFont font;
  };

  std::vector<Entry> entries_;  // the font that was asked for last stands at the end
};

// Returns the flag of DrawText for an alignment.
[[nodiscard]] UINT GdiAlign(TextAlign align);

// Draws on a device context. It owns neither the device context nor the fonts.
class GdiCanvas final : public Canvas {
 public:
  GdiCanvas(HDC dc, Size extent, FontCache& fonts) : dc_(dc), extent_(extent), fonts_(fonts) {}

  [[nodiscard]] Size Extent() const override { return extent_; }
  void Fill(const Rect& area, Colour colour) override;
  void Line(Point from, Point to, Colour colour, PenStyle style) override;
  void Text(const Rect& box, std::string_view text, const FontStyle& font, Colour colour,
            TextAlign align) override;
  [[nodiscard]] Size TextSize(std::string_view text, const FontStyle& font) override;
  // Draws a text like Text, but with the placement and "&" marks that DrawText's `format` asks for.
  void FormattedText(const Rect& box, std::string_view text, const FontStyle& font, Colour colour,
                     UINT format);
  [[nodiscard]] HDC dc() const { return dc_; }
  // The bitmap must come from this folder's Graphics.
  void Draw(const Bitmap& bitmap, Point at) override;

 private:
  HDC dc_;
  Size extent_;
  FontCache& fonts_;
};

}  // namespace platform::windows
