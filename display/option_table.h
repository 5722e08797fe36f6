// Applies the stored options to the running meter. The start, a new initialisation, a reset and
// every control of the preferences all use the one table in option_table.cpp.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "alerts/notifications.h"
#include "display/adapter_menus.h"
#include "display/graph/kxintermeter.h"
#include "display/numeric_line.h"
#include "display/transparency.h"
#include "display/tray/tray_icon.h"
#include "language/language.h"
#include "settings/scale_choice.h"
#include "settings/store.h"
#include "toolkit/controls/control.h"
#include "toolkit/forms/docking_magnet.h"
#include "toolkit/hint_window.h"

namespace display {

class T_frmBrisanto;

// The parts that the options act on. All belong to the meter window and live as long as it does.
struct MeterParts {
  T_frmBrisanto& window;
  settings::Store& store;
  TKxInterMeter& graph;
  toolkit::Control& label;  // shows the numeric line
  NumericLine& line;
  TrayIcon& tray;
  Transparency& transparency;
  toolkit::DockingMagnet& magnet;
  toolkit::HintWindow& hints;
  std::int64_t& SpeedCap;  // of the sampler, bytes per scan; 0 for none
  alerts::Notifications& notifications;
};

// The value of an option; its alternative depends on the type of the setting.
using OptionValue = std::variant<bool, std::int64_t, platform::Colour, std::string>;

// Whether the scale and the speed cap that goes with it are taken from the store too, or stay as
// they are.
enum class ScaleTaken { kFromStore, kAsItIs };

class OptionTable {
 public:
  // Everything that `parts` refers to outlives the table.
  explicit OptionTable(const MeterParts& parts) : parts_(parts) {}
  OptionTable(const OptionTable&) = delete;
  OptionTable& operator=(const OptionTable&) = delete;

  // Takes the stored appearance over: icon pictures, graph, docking, hints, scale, label and
  // averaging period, in this order.
  void ApplyStored(ScaleTaken scale);

  // Applies a value that the user has chosen: gives it to the meter, stores it, and then shows anew
  // what reads the store when it is shown. Throws std::runtime_error when the system refuses to
  // store the value.
  template <class Setting, class Value>
  void Change(const Setting& setting, const Value& value) {
    Run(setting.name, Moment::kChosen, value);
    parts_.store.Write(setting, value);
    Run(setting.name, Moment::kStored, value);
  }
  // Gives the meter a value that is stored already.
  template <class Setting, class Value>
  void Take(const Setting& setting, const Value& value) {
    Run(setting.name, Moment::kChosen, value);
    Run(setting.name, Moment::kStored, value);
  }

  // Gives the graph its scale, which two stored values make together, and with kFollows the sampler
  // its cap. A nullopt, which stands for a choice that the list does not have, changes nothing.
  enum class Cap { kFollows, kStays };
  void TakeScale(const std::optional<settings::AppliedScale>& scale, Cap cap);

  [[nodiscard]] const MeterParts& Parts() const { return parts_; }

 private:
  enum class Moment { kChosen, kStored };

  void Run(std::string_view name, Moment moment, const OptionValue& value);

  const MeterParts parts_;
};

// The parts of the running meter that the preferences work on. All belong to the meter window and
// live as long as it does.
struct RunningMeter {
  T_frmBrisanto& window;
  settings::Store& store;
  language::Language& language;
  OptionTable& options;
  NumericLine& line;
  AdapterMenus& adapters;
};

}  // namespace display
