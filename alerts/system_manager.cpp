#include "alerts/system_manager.h"

namespace alerts {
namespace {

constexpr std::string_view kShutdownPrivilege = "SeShutdownPrivilege";

}  // namespace

std::uint32_t Shutdown::Execute() {
  if (OnBeforeShutdown) OnBeforeShutdown();
  if (Confirm && (!OnConfirm || !OnConfirm(ConfirmText))) return 0;
  platform::Session& session = app_.Platform().session;
  session.SetPrivilege(kShutdownPrivilege, platform::Privilege::kEnable);
  const std::uint32_t result = session.EndSession(static_cast<std::uint32_t>(Exittype));
  session.SetPrivilege(kShutdownPrivilege, platform::Privilege::kDisable);
  if (result == 0) {
    app_.Terminate();
  } else if (OnError) {
    OnError(result);
  }
  return result;
}

}  // namespace alerts
