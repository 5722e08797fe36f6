// A whole machine in memory: every service that the program uses, and what tests see of it.
#pragma once

#include "platform/memory/clipboard.h"
#include "platform/memory/clock.h"
#include "platform/memory/files.h"
#include "platform/memory/interface_table.h"
#include "platform/memory/locale.h"
#include "platform/memory/notebook.h"
#include "platform/memory/registry.h"
#include "platform/memory/single_instance.h"
#include "platform/memory/sockets.h"

namespace platform::memory {

// Tests reach into the services directly; the program under test gets them by their interfaces.
class Machine {
 public:
  Notebook notebook;  // first: the services write into it

  InterfaceTable interface_table{notebook};
  Registry registry{notebook};
  Sockets sockets{notebook};
  SingleInstance single_instance{notebook};
  Clock clock;
  Files files{notebook};
  Locale locale;
  Clipboard clipboard{notebook};
};

}  // namespace platform::memory
