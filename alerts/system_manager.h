// What the program does to the system itself: its end and its lock keys.
#pragma once

#include "alerts/shutdown.h"
#include "alerts/sys_keys.h"
#include "toolkit/application.h"

namespace alerts {

struct SystemManager {
  explicit SystemManager(toolkit::Application& app)
      : shutdown(app), sys_keys(app.Platform().keyboard) {}

  Shutdown shutdown;
  TQelSysKeys sys_keys;
};

}  // namespace alerts
