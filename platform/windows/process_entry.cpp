#include <cstdlib>

#include "platform/windows/machine.h"
#include "platform/windows/win32.h"

namespace __gnu_cxx {  // NOLINT(*-reserved-identifier)

// What the library does when an exception leaves the process. The library's own function writes the
// name of the exception's type to a console, which this program does not have, and for that brings
// 45 KiB into the executable.
void __verbose_terminate_handler() { std::abort(); }  // NOLINT(*-reserved-identifier,*-naming)

}  // namespace __gnu_cxx

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*arguments*/,
                    int /*show*/) {
  return platform::windows::Main();
}
