#include "stats/host_address.h"

#include "engine/local_ip.h"

namespace stats {
namespace {

constexpr std::int64_t kSlowMs = 50;
constexpr std::int64_t kRestFactor = 20;

}  // namespace

const std::string& HostAddress::Get() {
  const std::int64_t begin = clock_.SteadyMilliseconds();
  if (begin < not_before_) return address_;
  address_ = engine::GetLocalIP(sockets_);
  const std::int64_t end = clock_.SteadyMilliseconds();
  const std::int64_t took = end - begin;
  if (took > kSlowMs) not_before_ = end + kRestFactor * took;
  return address_;
}

}  // namespace stats
