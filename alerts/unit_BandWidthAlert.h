// The window that tells that the bandwidth limit is reached.
#pragma once

#include "alerts/bandwidth_details.h"
#include "alerts/refresh_faults.h"
#include "toolkit/button.h"
#include "toolkit/edit.h"
#include "toolkit/form.h"
#include "toolkit/panel.h"
#include "toolkit/sign.h"
#include "toolkit/timer.h"

namespace alerts {

inline constexpr std::string_view kBandWidthAlertForm = "T_frmBandWidthAlert";

class T_frmBandWidthAlert final : public toolkit::Form {
 public:
  // Made hidden, its figures filled in with the first tick. All outlive the
  // window.
  T_frmBandWidthAlert(toolkit::Application& app, settings::Store& store,
                      display::Quantity& quantity, const settings::Language& language);

  void Localise() override;

 private:
  void FormCreate();
  void FormShow() override;
  void Timer1Timer();
  void btnDetailsClick();
  void SetDetailsShown(bool shown);
  void LocaliseDetailsButton();

  const settings::Language& language_;

  toolkit::Sign Image1;
  toolkit::Panel MessagePanel;
  toolkit::Memo Memo1;  // stays empty: the message is in the balloon
  toolkit::Button btnDetails;
  toolkit::Button OkBtn;
  BandwidthDetails details_;
  RefreshFaults faults_;
  toolkit::Timer Timer1;
  bool details_shown_ = false;
};

}  // namespace alerts
