#include "platform/windows/services/services.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace platform::windows {

bool Session::SetPrivilege(std::string_view name, Privilege wanted) {
  HANDLE raw = nullptr;
  if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &raw)) {
    return false;
  }
  const KernelHandle token(raw);
  TOKEN_PRIVILEGES privileges{};
  privileges.PrivilegeCount = 1;
  if (!::LookupPrivilegeValueW(nullptr, ToWide(name).c_str(), &privileges.Privileges[0].Luid)) {
    return false;
  }
  privileges.Privileges[0].Attributes = wanted == Privilege::kEnable ? SE_PRIVILEGE_ENABLED : 0;
  const BOOL adjusted = ::AdjustTokenPrivileges(token.get(), FALSE, &privileges, sizeof(privileges),
                                                nullptr, nullptr);
  // The call also succeeds when the token does not hold the privilege.
  return adjusted != FALSE && ::GetLastError() == ERROR_SUCCESS;
}

std::uint32_t Session::EndSession(std::uint32_t flags) {
  if (::ExitWindowsEx(flags, 0)) return 0;
  const DWORD code = ::GetLastError();
  return code != 0 ? code : static_cast<std::uint32_t>(ERROR_GEN_FAILURE);
}

}  // namespace platform::windows
