#include <cstring>

#include "platform/windows/handle.h"
#include "platform/windows/services/services.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace platform::windows {
namespace {

using Memory = Handle<ZeroIsNone<HGLOBAL, &::GlobalFree>>;

// Keeps the clipboard open as long as it lives. It is false when another program keeps the
// clipboard open.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) : opened_(::OpenClipboard(owner) != FALSE) {}
  ~OpenedClipboard() {
    if (opened_) ::CloseClipboard();
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  explicit operator bool() const { return opened_; }

 private:
  bool opened_;
};

// Returns the text with a terminating NUL, in the kind of memory that the clipboard takes.
Memory ToMemory(std::string_view text) {
  const std::wstring wide = ToWide(text);
  const std::size_t size = (wide.size() + 1) * sizeof(wchar_t);
  Memory memory(::GlobalAlloc(GMEM_MOVEABLE, size));
  if (!memory) return {};
  void* target = ::GlobalLock(memory.get());
  if (target == nullptr) return {};
  std::memcpy(target, wide.c_str(), size);
  ::GlobalUnlock(memory.get());
  return memory;
}

}  // namespace

bool Clipboard::SetText(std::string_view text) {
  // EmptyClipboard makes the window that opened the clipboard its owner, and without an owner the
  // system takes no data. A message-only window is enough; the text stays when the window is
  // destroyed.
  const Handle<ZeroIsNone<HWND, &::DestroyWindow>> owner(
      ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                        ::GetModuleHandleW(nullptr), nullptr));
  if (!owner) return false;
  Memory memory = ToMemory(text);
  if (!memory) return false;
  const OpenedClipboard clipboard(owner.get());
  if (!clipboard || ::EmptyClipboard() == FALSE) return false;
  if (::SetClipboardData(CF_UNICODETEXT, memory.get()) == nullptr) return false;
  (void)memory.release();  // the clipboard's from now on
  return true;
}

}  // namespace platform::windows
