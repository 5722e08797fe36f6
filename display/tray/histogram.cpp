#include "display/tray/histogram.h"

#include <algorithm>

namespace display {
namespace {

constexpr int kUpperBase = 6;  // the row in which the bars of a half begin
constexpr int kLowerBase = 14;
constexpr int kUpperTop = 1;  // where a half's columns end
constexpr int kLowerTop = 9;
constexpr int kNewestColumn = 14;
constexpr int kSlots = 14;

TrayHistogram::Half HalfOf(const TrayHistory& history, platform::Colour colour) {
  TrayHistogram::Half half;
  half.colour = colour;
  for (int slot = 1; slot <= kSlots; ++slot) {
    half.levels[static_cast<std::size_t>(slot - 1)] = history.Level(slot);
  }
  return half;
}

void DrawHalf(platform::Canvas& canvas, const TrayHistogram::Half& half, int base, int top) {
  canvas.Fill({1, top, kSlots, base - top + 1}, platform::colour::kWhite);
  int x = kNewestColumn;
  for (const int level : half.levels) {
    if (level > 0) canvas.Line({x, base}, {x, level}, half.colour);
    --x;
  }
}

}  // namespace

void TrayHistory::Push(std::int64_t amount) {
  for (std::size_t slot = slots_.size() - 1; slot >= 2; --slot) slots_[slot] = slots_[slot - 1];
  slots_[1] = amount;
}

// The maximum is that of the visible scans, not of all scans so far: otherwise one burst would
// flatten the icon for the day.
std::int64_t TrayHistory::Maximum() const {
  return *std::max_element(slots_.begin() + 1, slots_.begin() + 1 + kDrawnSlots);
}

int TrayHistory::Level(int slot) const {
  const std::int64_t amount = slots_[static_cast<std::size_t>(slot)];
  if (amount <= 0) return 0;
  const std::int64_t maximum = Maximum();
  // The bands begin at a half, a third, a quarter and a fifth of the maximum.
  int level = tallest_level_;
  for (int divisor = 2; divisor <= 5; ++divisor, ++level) {
    if (amount >= maximum / divisor) return level;
  }
  return level;
}

void TrayHistogram::Push(std::int64_t dl, std::int64_t ul) {
  dl_.Push(dl);
  ul_.Push(ul);
}

void TrayHistogram::Clear() {
  dl_.Clear();
  ul_.Clear();
}

void TrayHistogram::DrawFrame(platform::Canvas& canvas) {
  using platform::colour::kBlack;
  using platform::colour::kGrey;
  canvas.Line({0, 0}, {15, 0}, kBlack);
  canvas.Line({0, 0}, {0, 15}, kBlack);
  canvas.Line({15, 0}, {15, 15}, kGrey);
  canvas.Line({0, 15}, {16, 15}, kGrey);
  canvas.Line({0, 7}, {15, 7}, kBlack);
  canvas.Line({0, 8}, {15, 8}, kGrey);
}

TrayHistogram::Half TrayHistogram::Upper(platform::Colour receiving) const {
  return HalfOf(dl_, receiving);
}

TrayHistogram::Half TrayHistogram::Lower(platform::Colour sending) const {
  return HalfOf(ul_, sending);
}

void TrayHistogram::DrawUpper(platform::Canvas& canvas, const Half& half) {
  DrawHalf(canvas, half, kUpperBase, kUpperTop);
}

void TrayHistogram::DrawLower(platform::Canvas& canvas, const Half& half) {
  DrawHalf(canvas, half, kLowerBase, kLowerTop);
}

}  // namespace display
