// The live picture of the tray icon: the last fourteen scans, with download above and upload below.
#pragma once

#include <array>
#include <cstdint>

#include "platform/canvas.h"

namespace display {

inline constexpr int kTrayPictureSize = 16;  // pixels, both ways

// The amounts of the latest scans of one direction and how tall each is drawn.
class TrayHistory {
 public:
  // `tallest_level`: the y coordinate at which the tallest bar ends; the shortest ends four below.
  explicit constexpr TrayHistory(int tallest_level) : tallest_level_(tallest_level) {}

  // Adds the newest scan, in bytes; the others move on by one slot, and the fifteenth is dropped.
  void Push(std::int64_t amount);
  void Clear() { slots_ = {}; }

  // Returns the y coordinate at which the bar of a slot ends, or 0 for no bar. Slots are 1 (the
  // newest) to 14; the fifteenth is kept but never drawn.
  [[nodiscard]] int Level(int slot) const;

 private:
  [[nodiscard]] std::int64_t Maximum() const;

  static constexpr int kDrawnSlots = 14;

  int tallest_level_;
  std::array<std::int64_t, kDrawnSlots + 2> slots_{};  // [0] is not used
};

class TrayHistogram {
 public:
  // The form in which one direction is drawn.
  struct Half {
    std::array<int, 14> levels{};  // where the bars end, the newest first; 0 for none
    platform::Colour colour = 0;
    friend bool operator==(const Half&, const Half&) = default;
  };

  // Adds the bytes of one scan.
  void Push(std::int64_t dl, std::int64_t ul);
  void Clear();

  [[nodiscard]] Half Upper(platform::Colour receiving) const;
  [[nodiscard]] Half Lower(platform::Colour sending) const;

  // Each draws on a canvas of 16 x 16 pixels and leaves the rest of it as it is.
  static void DrawFrame(platform::Canvas& canvas);
  static void DrawUpper(platform::Canvas& canvas, const Half& half);
  static void DrawLower(platform::Canvas& canvas, const Half& half);

 private:
  TrayHistory dl_{1};  // bars end at 1 to 5
  TrayHistory ul_{9};  // bars end at 9 to 13
};

}  // namespace display
