// The window "DL-UL Statistics": what the whole machine moved, and how the bandwidth limit stands.
#pragma once

#include <functional>

#include "alerts/bandwidth_details.h"
#include "stats/host_address.h"
#include "stats/statistics_form.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/label.h"

namespace stats {

inline constexpr std::string_view kConnInfoForm = "T_frmConnInfo";

class T_frmConnInfo final : public StatisticsForm {
 public:
  // Made hidden and filled.
  explicit T_frmConnInfo(const StatisticsContext& context);

  // Opens the preferences; empty: nothing happens.
  std::function<void()> OpenSettings;
  // The window was closed, whichever way. It may be destroyed from here.
  std::function<void()> OnClosed;

  void Localise() override;

 private:
  void FormCreate();
  void SetDesignSize();
  void ArrangeBandwidthTab();
  void FormClose() override;
  void Timer1Timer() override;
  void Button3Click() override;
  void Label1Click();
  void ISBAShownClick();

  HostAddress host_address_;

  toolkit::TabSheet BandwidthTab;
  toolkit::LinkLabel Label1;
  alerts::BandwidthDetails details_;
  toolkit::CheckBox ISBAShown;
};

}  // namespace stats
