// Opens the statistics windows.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "stats/statistics_form.h"

namespace stats {
class T_frmConnInfo;
}

namespace display {

class StatisticsWindows {
 public:
  // What `context` names outlives the windows.
  //   open_settings  opens the preferences, used by the link in a window
  StatisticsWindows(const stats::StatisticsContext& context, std::function<void()> open_settings);
  ~StatisticsWindows();

  // Shows the window "DL-UL Statistics", or raises it when it is open.
  void OpenMachine();

  // Shows the window of the adapter with this description and returns when it is closed. While an
  // adapter's window is open, that one is raised instead, whichever adapter it shows.
  void OpenAdapter(const std::string& description);

 private:
  stats::StatisticsContext context_;
  std::function<void()> open_settings_;
  std::unique_ptr<stats::T_frmConnInfo> machine_;  // null unless it is open
};

}  // namespace display
