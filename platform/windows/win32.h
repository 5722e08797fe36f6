// The one way to the system's header. Only files of this folder may include it: the header's macros
// rename whatever bears the name of a call.
#pragma once

// winsock2.h must come before windows.h; it includes that one itself.
#include <windows.h>
#include <winsock2.h>
