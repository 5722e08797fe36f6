// The allowance for a day, week or month, how much of it is used, and what comes when it is
// reached.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "alerts/reactions.h"
#include "engine/periods.h"
#include "language/language.h"
#include "quantity/quantity.h"
#include "settings/store.h"
#include "toolkit/action.h"
#include "toolkit/menus/popup_menu.h"

namespace toolkit {
class Application;
}

namespace alerts {

// Returns the limit in its unit, or 0 when none is stored.
[[nodiscard]] std::int64_t LimitNumber(settings::Store& store);

// Returns the limit in bytes, or nullopt when the stored unit does not exist.
[[nodiscard]] std::optional<std::int64_t> LimitBytes(settings::Store& store);

// Returns the period that the limit is for, or nullopt when the stored period does not exist.
[[nodiscard]] std::optional<engine::Period> ReadLimitPeriod(settings::Store& store);

// Return the bytes that moved so far in the period. They throw settings::ConversionError when the
// stored total is no number.
[[nodiscard]] std::int64_t PeriodTotalDL(settings::Store& store, engine::Period period);
[[nodiscard]] std::int64_t PeriodTotalUL(settings::Store& store, engine::Period period);

// The limit's step of a scan: when the counted total has reached the limit, marks the alert as
// shown ("BAShow") and then runs `alert`. The alert is given once in a period: every reset of a
// day, week or month clears the mark, whichever of them the limit is for, so a monthly limit that
// is exceeded alerts again each day.
void CheckBandwidthAlert(settings::Store& store, const std::function<void()>& alert);

// Reacts when the limit is reached.
class BandwidthAlert {
 public:
  // All arguments outlive the alert. `menu` is closed before the window shows.
  BandwidthAlert(toolkit::Application& app, settings::Store& store, quantity::Quantity& quantity,
                 const language::Language& language, Reactions& reactions,
                 toolkit::PopupMenu& menu);

  // The alert's step of a scan. When it shows the window, it returns when the window is closed;
  // scans go on meanwhile. While a menu is open it returns at once, and the window shows when the
  // menu is gone.
  void Check();

  toolkit::Action Action{"BandwidthAlert"};

 private:
  void BandwidthAlertExecute();
  void ShowMessage();
  void ShowWindow();

  toolkit::Application& app_;
  settings::Store& store_;
  quantity::Quantity& quantity_;
  const language::Language& language_;
  Reactions& reactions_;
  toolkit::PopupMenu& menu_;
};

}  // namespace alerts
