// Plane figures in pixels: x grows to the right, y downwards.
#pragma once

namespace platform {

struct Point {
  int x = 0;
  int y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  int width = 0;
  int height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  [[nodiscard]] constexpr int Right() const { return left + width; }   // first column outside
  [[nodiscard]] constexpr int Bottom() const { return top + height; }  // first row outside
  [[nodiscard]] constexpr bool Empty() const { return width <= 0 || height <= 0; }
  [[nodiscard]] constexpr bool Contains(Point p) const {
    return p.x >= left && p.x < Right() && p.y >= top && p.y < Bottom();
  }
  // Returns the rectangle with `margin` pixels less on each side; it may be empty.
  [[nodiscard]] constexpr Rect Shrunk(int margin) const {
    return {left + margin, top + margin, width - 2 * margin, height - 2 * margin};
  }
  friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace platform
