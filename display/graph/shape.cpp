#include "display/graph/shape.h"

#include <algorithm>

namespace display {
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
