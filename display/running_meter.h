// The parts of the running meter that a changed option is pushed into.
#pragma once

#include <cstdint>

#include "alerts/notifications.h"
#include "display/adapter_menus.h"
#include "display/graph/kxintermeter.h"
#include "display/numeric_line.h"
#include "display/transparency.h"
#include "display/tray/tray_icon.h"
#include "language/language.h"
#include "settings/store.h"
#include "toolkit/controls/label.h"
#include "toolkit/forms/docking_magnet.h"
#include "toolkit/hint_window.h"

namespace display {

class T_frmBrisanto;

// All belong to the meter window and live as long as it does.
struct RunningMeter {
  T_frmBrisanto& window;
  settings::Store& store;
  language::Language& language;
  TKxInterMeter& graph;
  toolkit::Label& label;  // shows the numeric line
  NumericLine& line;
  TrayIcon& tray;
  Transparency& transparency;
  toolkit::DockingMagnet& magnet;
  toolkit::HintWindow& hints;
  std::int64_t& SpeedCap;  // of the sampler, bytes per scan; 0 for none
  AdapterMenus& adapters;
  alerts::Notifications& notifications;
};

}  // namespace display
