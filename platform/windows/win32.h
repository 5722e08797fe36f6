// Includes the system's headers, and is the only file that includes windows.h. Only files of this
// folder may include it: the macros rename everything that has the name of a Windows call.
#pragma once

// Complete in this order only. The sockets come first, or windows.h declares an older version of
// them.
// clang-format off
#include <winsock2.h>
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>
#include <ws2ipdef.h>
#include <iphlpapi.h>
#include <netioapi.h>
// clang-format on
