// Includes the system's header, and is the only file that does. Only files of this folder may
// include it: the header's macros rename everything that has the name of a Windows call.
#pragma once

// The sockets' header must come first, or windows.h declares an older version beside it.
// clang-format off
#include <winsock2.h>
#include <windows.h>
// clang-format on
