#include "tests/desktop/driver/clipboard.h"

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/win.h"

namespace desktop {
namespace {

void Open() {
  Await("the clipboard", [] { return ::OpenClipboard(nullptr) != FALSE; });
}

}  // namespace

std::string ClipboardText() {
  Open();
  std::string text;
  if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
    text = platform::windows::FromWide(static_cast<const wchar_t*>(::GlobalLock(data)));
    ::GlobalUnlock(data);
  }
  ::CloseClipboard();
  return text;
}

void ClearClipboard() {
  Open();
  ::EmptyClipboard();
  ::CloseClipboard();
}

}  // namespace desktop
