#include "engine/local_ip.h"

#include <cstdint>
#include <optional>

#include "toolkit/copy_text.h"

namespace engine {

std::string GetLocalIP(platform::Sockets& sockets) {
  constexpr std::uint16_t kVersion11 = 0x0101;
  if (!sockets.Start(kVersion11)) return {};
  const std::string host = sockets.HostName();
  const auto addresses = host.empty() ? std::nullopt : sockets.HostAddresses(host);
  // The library stays started after a failed look-up; starting it again costs nothing, and
  // nothing depends on it.
  if (!addresses) return {};
  std::string last = addresses->empty() ? std::string() : addresses->back();
  sockets.Cleanup();
  return last;
}

void CopyLocalIPIfWanted(settings::Store& store, platform::Sockets& sockets,
                         platform::Clipboard& clipboard) {
  if (store.Read(settings::setting::CopyIP)) toolkit::CopyText(clipboard, GetLocalIP(sockets));
}

}  // namespace engine
