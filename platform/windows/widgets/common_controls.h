// The one way to the header of the common controls, which needs the system's before it.
#pragma once

// clang-format off
#include "platform/windows/win32.h"
#include <commctrl.h>
// clang-format on
