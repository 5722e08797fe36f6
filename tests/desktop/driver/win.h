// The system's headers for what drives the desktop, in the one order that works.
#pragma once

#include "platform/windows/win32.h"
