#include "alerts/shutdown.h"

#include "toolkit/application.h"

namespace alerts {
namespace {

constexpr std::string_view kShutdownPrivilege = "SeShutdownPrivilege";

// The flags of ExitWindowsEx.
std::uint32_t FlagsOf(ExitType type) {
  switch (type) {
    case ExitType::xLogoff:
      return 0;
    case ExitType::xReboot:
      return 2;
    case ExitType::xShutDown:
      return 1;
    case ExitType::xPowerOff:
      return 8;
    case ExitType::xForce:
      return 4;
  }
  return 0;
}

}  // namespace

std::uint32_t Shutdown::Execute() {
  if (OnBeforeShutdown) OnBeforeShutdown();
  if (Confirm && (!OnConfirm || !OnConfirm(ConfirmText))) return 0;
  platform::Session& session = app_.Platform().session;
  session.SetPrivilege(kShutdownPrivilege, platform::Privilege::kEnable);
  const std::uint32_t result = session.EndSession(FlagsOf(Exittype));
  session.SetPrivilege(kShutdownPrivilege, platform::Privilege::kDisable);
  if (result == 0) {
    app_.Terminate();
  } else if (OnError) {
    OnError(result);
  }
  return result;
}

}  // namespace alerts
