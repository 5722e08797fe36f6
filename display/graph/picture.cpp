#include "display/graph/picture.h"

#include <algorithm>
#include <string>

namespace display {
namespace {

constexpr int kScaleGap = 3;  // pixels between scale text and bars

struct BarColours {
  platform::Colour face;
  platform::Colour light;   // left and upper edge
  platform::Colour shadow;  // right edge
};

// What a user or a damaged store may have put in is drawn as the nearest width that can be drawn.
int PulseWidth(const GraphLook& look) { return std::max(1, look.PulseWidth); }
int SlotWidth(const GraphLook& look) { return PulseWidth(look) + std::max(0, look.PulseSpace); }

platform::Rect PaintFrame(platform::Canvas& canvas, const GraphLook& look) {
  const platform::Size size = canvas.Extent();
  const platform::Rect all{0, 0, size.width, size.height};
  canvas.Fill(all, look.DisplayColor);
  const platform::Rect border =
      toolkit::DrawBevel(canvas, all, look.BevelOuter, look.BevelWidth, look.DisplayColor);
  const platform::Rect inner = border.Shrunk(std::max(0, look.BorderWidth));
  if (look.BorderWidth > 0) {
    canvas.Fill(border, look.BorderColor);
    canvas.Fill(inner, look.DisplayColor);
  }
  return toolkit::DrawBevel(canvas, inner, look.BevelInner, look.BevelWidth, look.DisplayColor);
}

// The column of the scale is as wide as its widest text, so that the bars do not jump sideways when
// the scale changes.
struct ScaleColumn {
  platform::Rect column;  // empty: no scale
  platform::Rect bars;
};

ScaleColumn DivideArea(platform::Canvas& canvas, const GraphLook& look, const platform::Rect& area,
                       std::string_view decimal_separator) {
  const std::string widest = "88" + std::string(decimal_separator) + "8 MB";
  const platform::Size text = canvas.TextSize(widest, look.Font);
  const int width = text.width + 2 * kScaleGap;
  // A meter too small for scale and bars shows the bars.
  if (!look.ScaleShow || width * 2 > area.width || text.height > area.height) return {{}, area};
  ScaleColumn divided{area, area};
  divided.column.width = width;
  divided.bars.width -= width;
  if (look.ScalePosition == ScalePosition::kRight) {
    divided.column.left = divided.bars.Right();
  } else {
    divided.bars.left += width;
  }
  return divided;
}

// Of the background to the eye, but not to the shape of a window that leaves the background out.
platform::Colour HaloColour(const GraphLook& look) { return look.DisplayColor ^ 1; }

void PaintScaleText(platform::Canvas& canvas, const GraphLook& look, const platform::Rect& box,
                    const std::string& text) {
  const auto write = [&](int right, int down, platform::Colour colour) {
    canvas.Text({box.left + right, box.top + down, box.width, box.height}, text, look.Font, colour,
                platform::TextAlign::kRight);
  };
  // On a desktop of the letters' own colour they would be lost.
  for (int down = -1; look.Transparent && down <= 1; ++down) {
    for (int right = -1; right <= 1; ++right) write(right, down, HaloColour(look));
  }
  write(0, 0, look.FontColour);
}

void PaintScale(platform::Canvas& canvas, const GraphLook& look, const platform::Rect& column,
                const GraphScale& scale, std::string_view decimal_separator) {
  const int height = canvas.TextSize("8", look.Font).height;
  const auto write = [&](int top, std::int64_t amount) {
    PaintScaleText(canvas, look,
                   {column.left + kScaleGap, top, column.width - 2 * kScaleGap, height},
                   ScaleText(amount, look.ScaleUnits, decimal_separator));
  };
  write(column.top, scale.high);
  if (column.height >= 2 * height) write(column.Bottom() - height, scale.low);
  if (column.height >= 4 * height) {
    write(column.top + (column.height - height) / 2, scale.low + (scale.high - scale.low) / 2);
  }
}

enum class BarEdges {
  kNone,
  kEnds,   // light on top, shadow at the foot
  kSides,  // light at the left and on top, shadow at the right
};

// A narrow bar would lose most of its own colour to edges at its sides.
BarEdges EdgesOf(const GraphLook& look) {
  if (!look.Pulse3D || PulseWidth(look) < 2) return BarEdges::kNone;
  return PulseWidth(look) <= look.FlatPulseWidth ? BarEdges::kEnds : BarEdges::kSides;
}

// What is too low for face and edges has its own colour.
void PaintBar(platform::Canvas& canvas, const platform::Rect& bar, const BarColours& colours,
              BarEdges edges) {
  canvas.Fill(bar, colours.face);
  if (edges == BarEdges::kNone || bar.height < 2) return;
  canvas.Fill({bar.left, bar.top, bar.width, 1}, colours.light);
  if (edges == BarEdges::kSides) {
    canvas.Fill({bar.left, bar.top, 1, bar.height}, colours.light);
    canvas.Fill({bar.Right() - 1, bar.top, 1, bar.height}, colours.shadow);
  } else if (bar.height > 2) {
    canvas.Fill({bar.left, bar.Bottom() - 1, bar.width, 1}, colours.shadow);
  }
}

// The smaller amount stands in front of the larger one and leaves its left side and its top
// visible, so that both are seen whatever their sizes. Beside the smaller one that side has no
// light: it is all that is left of the larger one's own colour when both are the same.
void PaintPulse(platform::Canvas& canvas, const GraphLook& look, const platform::Rect& slot,
                int in_height, int out_height) {
  const bool in_behind = in_height >= out_height;
  const BarColours in{look.InColor, look.InLight, look.InShadow};
  const BarColours out{look.OutColor, look.OutLight, look.OutShadow};
  const BarColours& behind = in_behind ? in : out;
  int back = std::max(in_height, out_height);
  int front = std::min(in_height, out_height);
  const auto bar = [&slot](int inset, int height) {
    return platform::Rect{slot.left + inset, slot.Bottom() - height, slot.width - inset, height};
  };
  if (front == back && front > 0) {
    if (front > 1) {
      --front;
    } else if (back < slot.height) {
      ++back;
    }
  }
  const BarEdges edges = EdgesOf(look);
  if (back > 0) PaintBar(canvas, bar(0, back), behind, edges);
  if (front <= 0) return;
  const int seen = edges == BarEdges::kEnds ? std::max(1, slot.width / 3) : 1;
  const int inset = std::min(seen, slot.width - 1);
  if (edges == BarEdges::kSides) {
    canvas.Fill({slot.left, slot.Bottom() - front, inset, front}, behind.face);
  }
  PaintBar(canvas, bar(inset, front), in_behind ? out : in, edges);
}

void PaintBars(platform::Canvas& canvas, const GraphLook& look, const platform::Rect& area,
               std::span<const GraphSample> samples, const GraphScale& scale) {
  const int width = PulseWidth(look);
  int right = area.Right();
  for (auto sample = samples.rbegin(); sample != samples.rend() && right > area.left; ++sample) {
    const int left = std::max(right - width, area.left);
    PaintPulse(canvas, look, {left, area.top, right - left, area.height},
               scale.HeightOf(sample->in, area.height), scale.HeightOf(sample->out, area.height));
    right -= SlotWidth(look);
  }
}

}  // namespace

int FrameWidth(const GraphLook& look) {
  const int bevels = (look.BevelInner != toolkit::BevelCut::kNone ? 1 : 0) +
                     (look.BevelOuter != toolkit::BevelCut::kNone ? 1 : 0);
  return bevels * std::max(0, look.BevelWidth) + std::max(0, look.BorderWidth);
}

std::size_t SamplesThatFit(const GraphLook& look, int width) {
  return static_cast<std::size_t>((std::max(0, width) + SlotWidth(look) - 1) / SlotWidth(look));
}

void PaintGraph(platform::Canvas& canvas, const GraphLook& look,
                std::span<const GraphSample> samples, std::string_view decimal_separator) {
  const platform::Rect area = PaintFrame(canvas, look);
  if (area.Empty()) return;
  const ScaleColumn divided = DivideArea(canvas, look, area, decimal_separator);
  const std::size_t fit = SamplesThatFit(look, divided.bars.width);
  const std::span<const GraphSample> in_sight = samples.last(std::min(fit, samples.size()));
  const GraphScale scale = ScaleFor(in_sight, look);
  if (!divided.column.Empty()) {
    PaintScale(canvas, look, divided.column, scale, decimal_separator);
  }
  PaintBars(canvas, look, divided.bars, in_sight, scale);
}

namespace {

struct Run {
  int left;
  int right;
  friend bool operator==(const Run&, const Run&) = default;
};

std::vector<Run> RunsOf(const std::vector<platform::Colour>& row, platform::Colour background) {
  std::vector<Run> runs;
  for (auto at = row.begin(); at != row.end();) {
    const auto first =
        std::find_if(at, row.end(), [&](platform::Colour c) { return c != background; });
    at = std::find(first, row.end(), background);
    if (first == at) break;
    runs.push_back({static_cast<int>(first - row.begin()), static_cast<int>(at - row.begin())});
  }
  return runs;
}

}  // namespace

std::vector<platform::Rect> VisibleParts(const platform::Bitmap& picture,
                                         platform::Colour background) {
  const platform::Size size = picture.Extent();
  std::vector<platform::Rect> parts;
  std::vector<platform::Colour> row(static_cast<std::size_t>(size.width));
  std::vector<Run> above;
  for (int y = 0; y < size.height; ++y) {
    picture.ReadRow(y, row);
    std::vector<Run> runs = RunsOf(row, background);
    if (y > 0 && runs == above) {
      // Bars hardly change from row to row, so the parts of the row above become higher.
      for (std::size_t i = parts.size() - runs.size(); i < parts.size(); ++i) ++parts[i].height;
      continue;
    }
    for (const Run& run : runs) parts.push_back({run.left, y, run.right - run.left, 1});
    above = std::move(runs);
  }
  return parts;
}

}  // namespace display
