// The parts of the running meter that the preferences work on.
#pragma once

#include "display/adapter_menus.h"
#include "display/numeric_line.h"
#include "display/option_table.h"
#include "language/language.h"
#include "settings/store.h"

namespace display {

class T_frmBrisanto;

// All belong to the meter window and live as long as it does.
struct RunningMeter {
  T_frmBrisanto& window;
  settings::Store& store;
  language::Language& language;
  OptionTable& options;
  NumericLine& line;
  AdapterMenus& adapters;
};

}  // namespace display
