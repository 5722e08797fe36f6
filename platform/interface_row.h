// Reads the text in a row of the interface table.
#pragma once

#include <string>

#include "platform/interface_table.h"

namespace platform {

// Returns the bytes of the description, in the system's code page, without the terminating NUL. On
// Windows `dwDescrLen` counts that NUL and under Wine it does not, so the text ends at the first
// NUL or where the length says, whichever comes first. It has at most 256 bytes, whatever length
// the row states.
[[nodiscard]] std::string DescriptionBytes(const InterfaceRow& row);

}  // namespace platform
