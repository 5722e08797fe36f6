// What happens when the bandwidth limit is reached.
#pragma once

#include "alerts/reactions.h"
#include "display/quantity/quantity.h"
#include "settings/language.h"
#include "settings/store.h"
#include "toolkit/action.h"

namespace toolkit {
class Application;
}

namespace alerts {

class BandwidthAlert {
 public:
  // All outlive the alert.
  BandwidthAlert(toolkit::Application& app, settings::Store& store, display::Quantity& quantity,
                 const settings::Language& language, Reactions& reactions);

  // The scan's step. Returns when the window that it may show is closed; scans
  // go on meanwhile.
  void Check();

  toolkit::Action Action{"BandwidthAlert"};

 private:
  void BandwidthAlertExecute();
  void ShowMessage();

  toolkit::Application& app_;
  settings::Store& store_;
  display::Quantity& quantity_;
  const settings::Language& language_;
  Reactions& reactions_;
};

}  // namespace alerts
