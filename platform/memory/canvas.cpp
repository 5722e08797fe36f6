#include "platform/memory/canvas.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>

#include "platform/text.h"

namespace platform::memory {
namespace {

constexpr int kLargestSide = 16384;

// Returns the numbers of pixels that a pen one pixel wide paints and leaves out, in turns.
std::span<const int> DashesOf(PenStyle style) {
  static constexpr std::array<int, 2> kDash = {18, 6};
  static constexpr std::array<int, 2> kDot = {3, 3};
  static constexpr std::array<int, 4> kDashDot = {9, 6, 3, 6};
  static constexpr std::array<int, 6> kDashDotDot = {9, 3, 3, 3, 3, 3};
  switch (style) {
    case PenStyle::kSolid:
      return {};
    case PenStyle::kDash:
      return kDash;
    case PenStyle::kDot:
      return kDot;
    case PenStyle::kDashDot:
      return kDashDot;
    case PenStyle::kDashDotDot:
      return kDashDotDot;
  }
  return {};
}

bool PenIsDown(std::span<const int> dashes, int step) {
  if (dashes.empty()) return true;
  int length = 0;
  for (const int dash : dashes) length += dash;
  int rest = step % length;
  for (std::size_t i = 0; i < dashes.size(); ++i) {
    if (rest < dashes[i]) return i % 2 == 0;
    rest -= dashes[i];
  }
  return true;
}

int LetterWidth(const FontStyle& font) { return std::max(1, font.height * 6 / 10); }

}  // namespace

Raster::Raster(Size size, Screen& screen)
    : size_(size),
      screen_(screen),
      pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)) {}

Colour Raster::Pixel(Point at) const {
  if (!Rect{0, 0, size_.width, size_.height}.Contains(at)) return colour::kBlack;
  return pixels_[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(size_.width) +
                 static_cast<std::size_t>(at.x)];
}

void Raster::ReadRow(int y, std::span<Colour> row) const {
  const auto start = pixels_.begin() + static_cast<std::ptrdiff_t>(y) * size_.width;
  std::copy_n(start, row.size(), row.begin());
}

void Raster::Set(Point at, Colour rgb) {
  if (!Rect{0, 0, size_.width, size_.height}.Contains(at)) return;
  pixels_[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(size_.width) +
          static_cast<std::size_t>(at.x)] = rgb;
}

void Raster::Fill(const Rect& area, Colour colour) {
  const Colour rgb = screen_.Resolve(colour);
  if (area == Rect{0, 0, size_.width, size_.height}) texts_.clear();  // painted over
  const int right = std::min(area.Right(), size_.width);
  const int bottom = std::min(area.Bottom(), size_.height);
  for (int y = std::max(0, area.top); y < bottom; ++y) {
    for (int x = std::max(0, area.left); x < right; ++x) Set({x, y}, rgb);
  }
}

void Raster::Line(Point from, Point to, Colour colour, PenStyle style) {
  const Colour rgb = screen_.Resolve(colour);
  const std::span<const int> dashes = DashesOf(style);
  const int dx = std::abs(to.x - from.x);
  const int dy = std::abs(to.y - from.y);
  const int step_x = from.x < to.x ? 1 : -1;
  const int step_y = from.y < to.y ? 1 : -1;
  int error = dx - dy;
  Point at = from;
  for (int step = 0; at != to; ++step) {
    if (PenIsDown(dashes, step)) Set(at, rgb);
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

void Raster::Text(const Rect& box, std::string_view text, const FontStyle& font, Colour colour,
                  TextAlign align) {
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

Size Raster::TextSize(std::string_view text, const FontStyle& font) {
  return {static_cast<int>(ToUtf16(text).size()) * LetterWidth(font), font.height};
}

void Raster::Draw(const Bitmap& bitmap, Point at) {
  const Size extent = bitmap.Extent();
  for (int y = 0; y < extent.height; ++y) {
    for (int x = 0; x < extent.width; ++x) Set({at.x + x, at.y + y}, bitmap.Pixel({x, y}));
  }
  if (const auto* raster = dynamic_cast<const Raster*>(&bitmap)) {
    texts_.insert(texts_.end(), raster->texts_.begin(), raster->texts_.end());
  }
}

std::unique_ptr<Bitmap> Graphics::CreateBitmap(Size size) {
  const bool possible = size.width >= 1 && size.height >= 1 && size.width <= kLargestSide &&
                        size.height <= kLargestSide;
  if (notebook_.Fails() || !possible) return nullptr;
  ++created;
  return std::make_unique<Raster>(size, screen_);
}

}  // namespace platform::memory
