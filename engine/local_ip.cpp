#include "engine/local_ip.h"

#include "platform/text.h"

namespace engine {

std::string GetLocalIP(platform::Sockets& sockets) {
  constexpr std::uint16_t kVersion11 = 0x0101;
  if (!sockets.Start(kVersion11)) return {};
  const auto addresses = sockets.HostAddresses(sockets.HostName());
  // The library stays started after a failed look-up, as it always did; a next success does not
  // depend on it.
  if (!addresses) return {};
  std::string last = addresses->empty() ? std::string() : addresses->back();
  sockets.Cleanup();
  return last;
}

void CopyText(platform::Clipboard& clipboard, std::string_view text) {
  clipboard.SetText(platform::CutCharacters(text, 255));
}

void CopyLocalIPIfWanted(settings::Store& store, platform::Sockets& sockets,
                         platform::Clipboard& clipboard) {
  if (store.Read(settings::setting::CopyIP)) CopyText(clipboard, GetLocalIP(sockets));
}

}  // namespace engine
