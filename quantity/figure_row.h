// A row of a group of figures: what it is, its value, its unit.
#pragma once

#include <string_view>

#include "quantity/quantity.h"
#include "toolkit/controls/label.h"

namespace quantity {

struct FigureRow {
  // The names of the controls.
  struct Names {
    std::string_view caption;
    std::string_view value;
    std::string_view unit;
  };
  // How the rows of a group are divided, in design pixels; the caption takes so much of what is
  // left beside the unit.
  struct Columns {
    int unit_width;
    int gap;
    int caption_percent;
  };

  // Made as a zero, "0,0" and "kB". The value stands in a sunken box.
  FigureRow(toolkit::Control& parent, const Names& names, const platform::TextStyle& caption_style,
            const platform::TextStyle& unit_style);

  // Design pixels. Where the unit is hidden the value takes its place.
  void Place(const platform::Rect& bounds, const Columns& columns);

  void SetColour(platform::Colour colour);
  void SetFontColour(platform::Colour colour);

  void Show(const QuantityText& text);
  void ShowZero();  // the unit stays

  toolkit::Label caption;
  toolkit::Label value;
  toolkit::Label unit;
};

}  // namespace quantity
