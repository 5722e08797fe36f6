#include "platform/windows/services/services.h"
#include "platform/windows/win32.h"

namespace platform::windows {

DateTime Clock::Now() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return EncodeDateTime(now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond,
                        now.wMilliseconds);
}

std::int64_t Clock::SteadyMilliseconds() { return static_cast<std::int64_t>(::GetTickCount64()); }

}  // namespace platform::windows
