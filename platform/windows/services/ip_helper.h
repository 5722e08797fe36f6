// The system's declarations of network interfaces, which are complete in this order only.
#pragma once

#include "platform/windows/win32.h"

// clang-format off
#include <ws2ipdef.h>
#include <iphlpapi.h>
#include <netioapi.h>
// clang-format on
