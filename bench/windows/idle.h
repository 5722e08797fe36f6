// The program while nothing happens.
#pragma once

#include "bench/report.h"

namespace bench {

// How often the idle program wakes, with its real timers.
void CountWakeUps(Report& report);

// The bare calls of an idle scan once a second, until the process is ended. They work on a copy of
// the program's values, so that the program, which runs beside this one, keeps its own.
[[noreturn]] void RunBareIdle();

}  // namespace bench
