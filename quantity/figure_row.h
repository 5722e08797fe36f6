// A row of a group of figures: a caption, a value and a unit.
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
  // How the rows of a group are divided, in design pixels. The caption takes `caption_percent` of
  // the width that is left beside the unit.
  struct Columns {
    int unit_width;
    int gap;
    int caption_percent;
  };

  // Makes the row with the value "0,0" and the unit "kB". The value stands in a sunken box.
  FigureRow(toolkit::Control& parent, const Names& names, const platform::TextStyle& caption_style,
            const platform::TextStyle& unit_style);

  // `bounds` is in design pixels. When the unit is hidden, the value takes its place.
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
