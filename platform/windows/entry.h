// The process entry, without its Windows types.
#pragma once

namespace platform::windows {

// Defined by the program; its result is the exit code of the process.
int Main();

}  // namespace platform::windows
