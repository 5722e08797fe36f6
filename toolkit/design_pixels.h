// Converts between design pixels (96 to the inch) and the pixels of a screen.
#pragma once

namespace toolkit {

inline constexpr int kDesignDpi = 96;

// Both round to the nearest, halves away from zero.
constexpr int ScaleTo(int dpi, int design_pixels) {
  const int half = design_pixels < 0 ? -kDesignDpi / 2 : kDesignDpi / 2;
  return (design_pixels * dpi + half) / kDesignDpi;
}

constexpr int UnscaleFrom(int dpi, int pixels) {
  const int half = pixels < 0 ? -dpi / 2 : dpi / 2;
  return (pixels * kDesignDpi + half) / dpi;
}

// Returns the character height, in design pixels, of a font of so many points.
constexpr int PointsToDesignPixels(int points) {
  constexpr int kPointsPerInch = 72;
  return (points * kDesignDpi + kPointsPerInch / 2) / kPointsPerInch;
}

}  // namespace toolkit
