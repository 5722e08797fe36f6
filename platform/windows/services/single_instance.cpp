#include <utility>

#include "platform/windows/services/services.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {

bool SingleInstance::ClaimFirst(std::string_view name) {
  const std::wstring wide_name = ToWide(name);
  KernelHandle mutex(::CreateMutexW(nullptr, TRUE, wide_name.c_str()));
  const DWORD code = ::GetLastError();
  if (!mutex) return true;
  // The mutex is kept only when this process made it: a handle held open here would make a third
  // copy take this one for the first after the first has ended.
  if (code == ERROR_ALREADY_EXISTS) return false;
  claimed_.push_back(std::move(mutex));
  return true;
}

}  // namespace platform::windows
