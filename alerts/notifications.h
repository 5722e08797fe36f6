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
  // All outlive the notifications.
  Notifications(toolkit::Application& app, settings::Store& store,
                const language::Language& language, Reactions& reactions);

  // The scan's step: counts the scans in a row that were at or below, at or above the stored number
  // of bytes. Switched off, it stops the timer and leaves the counts as they are.
  void CheckNotifications(const engine::ScanAmounts& scan);

  // Compares the counts with the stored seconds, once a second while a rule watches something.
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

  // Scans in a row that the rule holds for.
  std::int64_t LessUploadedTicks = 0;
  std::int64_t LessDownloadedTicks = 0;
  std::int64_t MoreUploadedTicks = 0;
  std::int64_t MoreDownloadedTicks = 0;
};

}  // namespace alerts
