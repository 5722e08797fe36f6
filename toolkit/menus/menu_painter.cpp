#include "toolkit/menus/menu_painter.h"

#include <algorithm>

#include "platform/marked_text.h"
#include "platform/text.h"
#include "toolkit/application.h"
#include "toolkit/design_pixels.h"

namespace toolkit {
namespace {

// Sizes in design pixels.
constexpr int kIconWidth = 24;
constexpr int kItemHeight = 22;
constexpr int kSeparatorHeight = 5;
constexpr int kTextIndent = 6;
constexpr int kShortCutGap = 24;
constexpr int kArrowWidth = 18;
constexpr int kLargestText = 480;  // a longer text is cut: a menu has to fit on the screen
const platform::FontStyle kFont{"Tahoma", 11, false};

platform::FontStyle FontAt(int dpi) { return {kFont.face, ScaleTo(dpi, kFont.height), kFont.bold}; }

// Returns the text, or as much of it as fits with an ellipsis behind it.
std::string Fitted(const std::string& text, int width, platform::Canvas& canvas,
                   const platform::FontStyle& font) {
  if (canvas.TextSize(text, font).width <= width) return text;
  std::size_t fits = 0;
  std::size_t too_many = text.size();
  const auto cut = [&](std::size_t characters) {
    return platform::CutCharacters(text, characters) + "\xE2\x80\xA6";
  };
  while (fits + 1 < too_many) {
    const std::size_t middle = (fits + too_many) / 2;
    (canvas.TextSize(cut(middle), font).width <= width ? fits : too_many) = middle;
  }
  return cut(fits);
}

// Paints a check mark: two strokes, each two pixels thick at 96 dpi.
void PaintCheck(platform::Canvas& canvas, platform::Point centre, int dpi,
                platform::Colour colour) {
  const int unit = std::max(1, ScaleTo(dpi, 1));
  for (int step = 0; step < 7; ++step) {
    const int x = centre.x + (step - 3) * unit;
    const int rise = step < 2 ? step : 4 - step;  // down to the right, then up
    canvas.Fill({x, centre.y + rise * unit, unit, 2 * unit}, colour);
  }
}

void PaintDot(platform::Canvas& canvas, platform::Point centre, int dpi, platform::Colour colour) {
  const int unit = std::max(1, ScaleTo(dpi, 1));
  canvas.Fill({centre.x - 3 * unit, centre.y - 2 * unit, 6 * unit, 4 * unit}, colour);
  canvas.Fill({centre.x - 2 * unit, centre.y - 3 * unit, 4 * unit, 6 * unit}, colour);
}

platform::Colour TextColour(const platform::MenuEntry& entry,
                            const platform::MenuEntryState& state) {
  if (!entry.enabled) return platform::colour::kGrayText;
  return state.highlighted ? platform::colour::kHighlightText : platform::colour::kMenuText;
}

}  // namespace

platform::Size MenuPainter::Measure(const platform::MenuEntry& entry, platform::Canvas& canvas,
                                    int dpi) {
  if (entry.separator) return {ScaleTo(dpi, kIconWidth), ScaleTo(dpi, kSeparatorHeight)};
  const platform::FontStyle font = FontAt(dpi);
  int width = ScaleTo(dpi, kIconWidth + 2 * kTextIndent + kArrowWidth) +
              std::min(canvas.TextSize(platform::ReadMarks(entry.text).shown, font).width,
                       ScaleTo(dpi, kLargestText));
  if (!entry.shortcut.empty()) {
    width += ScaleTo(dpi, kShortCutGap) + canvas.TextSize(entry.shortcut, font).width;
  }
  return {width, ScaleTo(dpi, kItemHeight)};
}

void MenuPainter::Paint(const platform::MenuEntry& entry, const platform::MenuEntryState& state,
                        platform::Canvas& canvas, const platform::Rect& area) {
  const int dpi = state.dpi;
  const platform::Rect column{area.left, area.top, ScaleTo(dpi, kIconWidth), area.height};
  canvas.Fill(area, platform::colour::kMenu);
  canvas.Fill(column, platform::colour::kButtonFace);
  const int text_left = column.Right() + ScaleTo(dpi, kTextIndent);
  if (entry.separator) {
    const int y = area.top + area.height / 2;
    canvas.Line({text_left, y}, {area.Right(), y}, platform::colour::kButtonShadow);
    return;
  }
  const bool marked = state.highlighted && entry.enabled;
  if (marked) canvas.Fill(area, platform::colour::kHighlight);
  PaintMark(entry, state, canvas, column);
  const platform::FontStyle font = FontAt(dpi);
  const platform::Colour colour = TextColour(entry, state);
  const int text_right = area.Right() - ScaleTo(dpi, kArrowWidth);
  const platform::Rect box{text_left, area.top, text_right - text_left, area.height};
  const platform::MarkedText text = platform::ReadMarks(entry.text);
  const std::string shown = Fitted(text.shown, box.width, canvas, font);
  canvas.Text(box, shown, font, colour, platform::TextAlign::kLeft);
  canvas.Text(box, entry.shortcut, font, colour, platform::TextAlign::kRight);
  if (text.key_at < shown.size()) {
    const int before = canvas.TextSize(shown.substr(0, text.key_at), font).width;
    const int width = canvas.TextSize(text.Key(), font).width;
    const int y = area.top + (area.height + canvas.TextSize(shown, font).height) / 2 - 1;
    canvas.Line({text_left + before, y}, {text_left + before + width, y}, colour);
  }
}

void MenuPainter::PaintMark(const platform::MenuEntry& entry, const platform::MenuEntryState& state,
                            platform::Canvas& canvas, const platform::Rect& column) {
  const platform::Point centre{column.left + column.width / 2, column.top + column.height / 2};
  if (entry.checked) {
    const platform::Colour colour = TextColour(entry, state);
    if (entry.radio) {
      PaintDot(canvas, centre, state.dpi, colour);
    } else {
      PaintCheck(canvas, centre, state.dpi, colour);
    }
  } else if (entry.image >= 0) {
    const int half = ScaleTo(state.dpi, kImageSize) / 2;
    images_.Draw(entry.image, canvas, {centre.x - half, centre.y - half}, state.dpi);
  }
}

void MenuPainter::Highlighted(const platform::MenuEntry* entry, const platform::Rect& area) {
  app_.Guard([&] {
    const int dpi = app_.Platform().screen.MonitorOf(area).dpi;
    if (entry == nullptr) {
      app_.Hints().ShowBeside("", area, dpi);
    } else {
      app_.Hints().ShowBeside(entry->hint, area, dpi, !entry->children.empty());
    }
  });
}

}  // namespace toolkit
