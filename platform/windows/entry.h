// The process entry, without its Windows types.
#pragma once

namespace platform::windows {

// The program defines this function; it returns the exit code of the process.
int Main();

}  // namespace platform::windows
