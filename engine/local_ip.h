// The machine's own address.
#pragma once

#include <string>

#include "platform/clipboard.h"
#include "platform/sockets.h"
#include "settings/store.h"

namespace engine {

// Returns the last of the addresses that the machine's name has, as dotted text, or an empty text
// when there is none. Blocks as long as the look-up takes.
[[nodiscard]] std::string GetLocalIP(platform::Sockets& sockets);

// A step of the program's start: copies the address to the clipboard if the user wants that
// ("CopyIP").
void CopyLocalIPIfWanted(settings::Store& store, platform::Sockets& sockets,
                         platform::Clipboard& clipboard);

}  // namespace engine
