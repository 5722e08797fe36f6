#include "quantity/figure_row.h"

namespace quantity {

FigureRow::FigureRow(toolkit::Control& parent, const Names& names,
                     const platform::TextStyle& caption_style,
                     const platform::TextStyle& unit_style)
    : caption(parent, names.caption, caption_style),
      value(parent, names.value, toolkit::kSunkenText),
      unit(parent, names.unit, unit_style) {
  ShowZero();
  unit.SetCaption("kB");
}

void FigureRow::Place(const platform::Rect& bounds, const Columns& columns) {
  const int inner = bounds.width - columns.unit_width - 2 * columns.gap;
  const int caption_width = inner * columns.caption_percent / 100;
  const int value_left = bounds.left + caption_width + columns.gap;
  const int unit_left = bounds.left + bounds.width - columns.unit_width;
  const int value_right = unit.Visible() ? unit_left - columns.gap : unit_left + columns.unit_width;
  caption.SetBounds({bounds.left, bounds.top, caption_width, bounds.height});
  value.SetBounds({value_left, bounds.top, value_right - value_left, bounds.height});
  unit.SetBounds({unit_left, bounds.top, columns.unit_width, bounds.height});
}

void FigureRow::SetColour(platform::Colour colour) {
  for (toolkit::Label* label : {&caption, &value, &unit}) label->SetColour(colour);
}

void FigureRow::SetFontColour(platform::Colour colour) {
  for (toolkit::Label* label : {&caption, &value, &unit}) label->SetFontColour(colour);
}

void FigureRow::Show(const QuantityText& text) {
  value.SetCaption(text.number);
  unit.SetCaption(text.unit);
}

// The text has a comma, like that of a zero amount.
void FigureRow::ShowZero() { value.SetCaption("0,0"); }

}  // namespace quantity
