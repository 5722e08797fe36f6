// The preferences from outside.
#pragma once

#include "tests/desktop/driver/win.h"

namespace desktop {

// The rows of the tree of pages, from the top, all of it expanded.
enum class PageRow {
  kGeneral,
  kGraph,
  kGraphColors,
  kGraphGrids,
  kGraphOther,
  kNumeric,
  kTextColors,
  kTextOther,
  kAlerts,
  kNotification,
  kBandwidthAlert,
  kInterfaces,
  kAdmin,
  kOther,
  kSpeedUp,
  kScript,
  kSpeedUpToo,
  kResetSettings,
};

// Selects a row of the tree of the preferences.
void ChoosePage(HWND preferences, PageRow row);

}  // namespace desktop
