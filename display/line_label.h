// Shows the numeric line in the meter window.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/canvas.h"
#include "toolkit/controls/control.h"

namespace display {

// The caption is the whole line. What is too wide is painted with each of its texts on a line of
// its own, where the label is high enough; else its left end is in sight, and the whole is the
// hint.
class LineLabel final : public toolkit::Control {
 public:
  LineLabel(toolkit::Control& parent, std::string_view name);

  // Measures the line anew and asks for a repaint, as after a change of the label's size or font.
  void Refresh();

 private:
  struct Lines {
    std::vector<std::string_view> texts;  // of the caption; empty when it was not measured yet
    platform::Size size;                  // pixels
    platform::Size room;                  // what the label had
    platform::FontStyle font;
  };

  void Paint(platform::Canvas& canvas) override;
  void CaptionChanged() override { Refresh(); }
  void Resized() override { Refresh(); }
  // Returns the lines that the caption is painted in, measured on `canvas` when they are not known.
  const Lines& Broken(platform::Canvas& canvas, platform::Size room);
  [[nodiscard]] int LeftEdge(int width, int room);

  std::unique_ptr<platform::Bitmap> scratch_;  // to measure texts on
  Lines lines_;
  int left_ = 0;  // pixels; where the text was painted last
};

}  // namespace display
