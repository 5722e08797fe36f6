// The machine's own address.
#pragma once

#include <string>

#include "platform/clipboard.h"
#include "platform/sockets.h"
#include "settings/store.h"

namespace engine {

// The last of the addresses that the machine's name has, as dotted text; empty when there is none.
// May block as long as the look-up does.
[[nodiscard]] std::string GetLocalIP(platform::Sockets& sockets);

// The start's step: copies the address if the user wants that ("CopyIP").
void CopyLocalIPIfWanted(settings::Store& store, platform::Sockets& sockets,
                         platform::Clipboard& clipboard);

}  // namespace engine
