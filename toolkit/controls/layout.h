// The layout of forms as data.
//
// A form's layout is a list of rows, one for each control, applied in one call. It does not hold
// the order of Tab, which is the order in which the controls were made; so the members of a form
// are declared in reading order.
#pragma once

#include <initializer_list>
#include <string_view>

#include "platform/geometry.h"
#include "toolkit/controls/control.h"

namespace toolkit {

struct LayoutRow {
  Control& control;
  platform::Rect bounds;  // design pixels, relative to the control's parent
  std::string_view caption = {};
  std::string_view hint = {};
};

// Gives each control its bounds, caption and hint. An empty caption or hint leaves the present one.
void ApplyLayout(std::initializer_list<LayoutRow> rows);

}  // namespace toolkit
