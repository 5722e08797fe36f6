// The window "DL-UL Statistics": what the whole machine moved, and how the bandwidth limit stands.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "alerts/bandwidth_details.h"
#include "platform/clock.h"
#include "platform/sockets.h"
#include "stats/statistics_form.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/label.h"

namespace stats {

// The machine's address for a window that asks twice a second.
class HostAddress {
 public:
  // Both arguments outlive the object.
  HostAddress(platform::Sockets& sockets, platform::Clock& clock)
      : sockets_(sockets), clock_(clock) {}

  // Returns the last address of the machine's name, or an empty text when the look-up fails. The
  // look-up holds up the one thread, so after a slow one the last answer stands for twenty times as
  // long as the look-up took.
  [[nodiscard]] const std::string& Get();

 private:
  platform::Sockets& sockets_;
  platform::Clock& clock_;
  std::string address_;
  std::int64_t not_before_ = 0;  // steady milliseconds
};

inline constexpr std::string_view kConnInfoForm = "T_frmConnInfo";

class T_frmConnInfo final : public StatisticsForm {
 public:
  // Makes the window hidden and filled.
  explicit T_frmConnInfo(const StatisticsContext& context);

  // Opens the preferences; while it is empty, the link does nothing.
  std::function<void()> OpenSettings;
  // Runs when the window was closed, whichever way. It may destroy the window.
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

  toolkit::TabSheet BandwidthTab{PageControl1, "BandwidthTab"};
  toolkit::LinkLabel Label1{BandwidthTab, "Label1"};
  alerts::BandwidthDetails details_;
  toolkit::CheckBox ISBAShown{BandwidthTab, "ISBAShown"};
};

}  // namespace stats
