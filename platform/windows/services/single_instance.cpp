#include <utility>

#include "platform/windows/services/services.h"
#include "platform/windows/wide.h"

namespace platform::windows {

bool SingleInstance::ClaimFirst(std::string_view name) {
  const std::wstring wide_name = ToWide(name);
  KernelHandle mutex(::CreateMutexW(nullptr, TRUE, wide_name.c_str()));
  const DWORD code = ::GetLastError();
  if (!mutex) return true;
  // Kept only when it is ours: one that is held open here would make this copy look like the first
  // to a third one after the first has ended.
  if (code == ERROR_ALREADY_EXISTS) return false;
  claimed_.push_back(std::move(mutex));
  return true;
}

}  // namespace platform::windows
