// The bandwidth alert window, which tells the user that the bandwidth limit is reached.
#pragma once

#include "alerts/bandwidth_details.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/panel.h"
#include "toolkit/controls/sign.h"
#include "toolkit/forms/form.h"
#include "toolkit/refresh_faults.h"
#include "toolkit/timer.h"

namespace alerts {

inline constexpr std::string_view kBandWidthAlertForm = "T_frmBandWidthAlert";

class T_frmBandWidthAlert final : public toolkit::Form {
 public:
  // Makes the window hidden; its figures are filled in at the first tick of the timer. All
  // arguments outlive the window.
  T_frmBandWidthAlert(toolkit::Application& app, settings::Store& store,
                      quantity::Quantity& quantity, const language::Language& language);

  void Localise() override;

 private:
  void FormCreate();
  void FormShow() override;
  void Timer1Timer();
  void btnDetailsClick();
  void SetDetailsShown(bool shown);
  void LocaliseDetailsButton();

  quantity::Quantity& quantity_;
  const language::Language& language_;

  toolkit::Sign Image1;
  toolkit::Panel MessagePanel{*this, "MessagePanel"};
  toolkit::Memo Memo1{MessagePanel, "Memo1",
                      platform::Border::kNone};  // stays empty: the message is in the balloon
  toolkit::Button btnDetails{*this, "btnDetails"};
  toolkit::Button OkBtn{*this, "OkBtn"};
  BandwidthDetails details_;
  toolkit::RefreshFaults faults_;
  toolkit::Timer Timer1;
  bool details_shown_ = false;
};

}  // namespace alerts
