// The layout of forms as data.
//
// A form's layout is a list of rows, one for each control, applied in one go. The order of Tab is
// not in it: it is that in which the controls were made, so members of a form are declared in
// reading order.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/geometry.h"
#include "toolkit/controls/control.h"

namespace toolkit {

struct LayoutRow {
  Control& control;
  platform::Rect bounds;  // design pixels, on its parent
  std::string_view caption = {};
  std::string_view hint = {};
};

// An empty caption or hint leaves the present one.
void ApplyLayout(std::initializer_list<LayoutRow> rows);

// What is wrong with the places of all controls on `root`, one line each, for tests: a control that
// has no size, leaves its parent, or covers another visible one.
[[nodiscard]] std::vector<std::string> LayoutFaults(Control& root);

}  // namespace toolkit
