// The one way to the system's header. Only files of this folder may include it: the header's macros
// rename whatever bears the name of a call.
#pragma once

// In this order: the sockets' header first, or windows.h declares an older one beside it.
// clang-format off
#include <winsock2.h>
#include <windows.h>
// clang-format on
