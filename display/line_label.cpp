#include "display/line_label.h"

#include <algorithm>
#include <cstdlib>

#include "toolkit/application.h"

namespace display {
namespace {

// Design pixels.
constexpr int kMargin = 2;        // before a text that is cut
constexpr int kSteadyWithin = 8;  // the text stays where it is while it is centred as well as this

// The texts of the modes: each begins with a bracket.
std::vector<std::string_view> TextsOf(std::string_view line) {
  std::vector<std::string_view> texts;
  while (!line.empty()) {
    const std::size_t end = line.find("][");
    const std::size_t length = end == std::string_view::npos ? line.size() : end + 1;
    texts.push_back(line.substr(0, length));
    line.remove_prefix(length);
  }
  return texts;
}

}  // namespace

LineLabel::LineLabel(toolkit::Control& parent, std::string_view name)
    : Control(parent, name), scratch_(App().Platform().graphics.CreateBitmap({1, 1})) {
  AttachSurface(name);
}

void LineLabel::Refresh() {
  lines_.texts.clear();
  Invalidate();
  if (scratch_ == nullptr) return;
  const platform::Size room = ClientPixels();
  SetHint(Broken(scratch_->GetCanvas(), room).size.width > room.width ? Caption() : "");
}

const LineLabel::Lines& LineLabel::Broken(platform::Canvas& canvas, platform::Size room) {
  const platform::FontStyle font = Scale(Font());
  if (!lines_.texts.empty() && lines_.room == room && lines_.font == font) return lines_;
  const platform::Size whole = canvas.TextSize(Caption(), font);
  lines_ = {{Caption()}, whole, room, font};
  if (whole.width <= room.width) return lines_;
  std::vector<std::string_view> texts = TextsOf(Caption());
  const int height = whole.height * static_cast<int>(texts.size());
  if (height > room.height) return lines_;
  lines_.texts = std::move(texts);
  lines_.size = {0, height};
  for (const std::string_view text : lines_.texts) {
    lines_.size.width = std::max(lines_.size.width, canvas.TextSize(text, font).width);
  }
  return lines_;
}

// Centred, but the amounts change each second and the text shall not tremble.
int LineLabel::LeftEdge(int width, int room) {
  if (width > room) return Scale(kMargin);
  const int centred = (room - width) / 2;
  const bool stays = std::abs(centred - left_) <= Scale(kSteadyWithin) && left_ + width <= room;
  return stays ? left_ : centred;
}

void LineLabel::Paint(platform::Canvas& canvas) {
  const platform::Size room = canvas.Extent();
  canvas.Fill(canvas.Area(), Colour());
  const Lines& lines = Broken(canvas, room);
  left_ = LeftEdge(lines.size.width, room.width);
  const int height = lines.size.height / static_cast<int>(lines.texts.size());
  int top = (room.height - lines.size.height) / 2;
  for (const std::string_view text : lines.texts) {
    canvas.Text({left_, top, room.width - left_, height}, text, Scale(Font()), FontColour(),
                platform::TextAlign::kLeft);
    top += height;
  }
}

}  // namespace display
