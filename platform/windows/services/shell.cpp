#include <string>

#include "platform/windows/services/services.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace platform::windows {

bool Shell::Open(std::string_view path) {
  const std::wstring file = ToWide(path);
  if (::GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES) return false;
  SHELLEXECUTEINFOW what{};
  what.cbSize = sizeof(what);
  what.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  what.lpVerb = L"open";
  what.lpFile = file.c_str();
  what.nShow = SW_SHOWNORMAL;
  return ::ShellExecuteExW(&what) != FALSE;
}

}  // namespace platform::windows
