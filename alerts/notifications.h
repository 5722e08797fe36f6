// The two rules that watch for too little and for too much traffic.
#pragma once

#include <cstdint>

#include "alerts/reactions.h"
#include "alerts/traffic_rule.h"
#include "engine/traffic_state.h"
#include "language/language.h"
#include "settings/store.h"
#include "toolkit/action.h"
#include "toolkit/timer.h"

namespace alerts {

class Notifications {
 public:
  // All arguments outlive the notifications.
  Notifications(toolkit::Application& app, settings::Store& store,
                const language::Language& language, Reactions& reactions);

  // The notifications' step of a scan: counts the scans in a row whose bytes were at or below
  // ("Less") or at or above ("More") the stored threshold. When notifications are switched off, it
  // stops the timer and leaves the counts as they are.
  void CheckNotifications(const engine::ScanAmounts& scan);

  // The timer compares the counts with the stored seconds, once a second while a rule watches
  // something.
  toolkit::Timer TimeOutTimer;

  toolkit::Action LessNotification{"LessNotification"};
  toolkit::Action MoreNotification{"MoreNotification"};

 private:
  void TimeOutTimerTimer();
  void LessNotificationExecute() { Execute(kLessRule); }
  void MoreNotificationExecute() { Execute(kMoreRule); }

  void Execute(const TrafficRule& rule);
  void FireWhenDue(std::int64_t& ticks, const TrafficRule& rule, const toolkit::Action& action);

  settings::Store& store_;
  const language::Language& language_;
  Reactions& reactions_;

  // The number of scans in a row for which the rule holds.
  std::int64_t LessUploadedTicks = 0;
  std::int64_t LessDownloadedTicks = 0;
  std::int64_t MoreUploadedTicks = 0;
  std::int64_t MoreDownloadedTicks = 0;
};

}  // namespace alerts
