#include "platform/text.h"
#include "platform/windows/services/services.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace platform::windows {
namespace {

HWND HandleOf(WindowId window) { return reinterpret_cast<HWND>(window); }
WindowId IdOf(HWND hwnd) { return reinterpret_cast<WindowId>(hwnd); }

BOOL CALLBACK Collect(HWND hwnd, LPARAM list) noexcept {
  try {
    reinterpret_cast<std::vector<WindowId>*>(list)->push_back(IdOf(hwnd));
  } catch (...) {
    return FALSE;  // out of memory: only the windows found so far are listed
  }
  return TRUE;
}

}  // namespace

std::vector<WindowId> OtherWindows::TopLevel() {
  std::vector<WindowId> windows;
  ::EnumWindows(&Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

WindowTitle OtherWindows::Title(WindowId window, std::size_t characters) {
  // A character has at most two units; one more shows whether the title goes on, and the call puts
  // a NUL behind.
  std::wstring units(2 * characters + 2, L'\0');
  // GetWindowText would not do: it sends a message, and waits, when the window belongs to this
  // process.
  const int length =
      ::InternalGetWindowText(HandleOf(window), units.data(), static_cast<int>(units.size()));
  if (length <= 0) return {};
  units.resize(static_cast<std::size_t>(length));
  const std::string text = FromWide(units);
  WindowTitle title;
  title.text = CutCharacters(text, characters);
  title.longer = title.text.size() < text.size();
  return title;
}

TitleOutcome OtherWindows::SetTitle(WindowId window, std::string_view title, int patience_ms) {
  // SetWindowText would not do: it waits for ever.
  constexpr UINT kFlags = SMTO_ABORTIFHUNG | SMTO_BLOCK | SMTO_ERRORONEXIT;
  const std::wstring wide = ToWide(title);
  DWORD_PTR result = 0;
  ::SetLastError(ERROR_SUCCESS);
  const LRESULT answered =
      ::SendMessageTimeoutW(HandleOf(window), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide.c_str()),
                            kFlags, static_cast<UINT>(patience_ms), &result);
  const DWORD code = ::GetLastError();
  if (answered != 0) return TitleOutcome::kSet;
  // For a window that is known to hang the call fails at once, and not every system gives a reason.
  return code == ERROR_INVALID_WINDOW_HANDLE || code == ERROR_ACCESS_DENIED
             ? TitleOutcome::kRefused
             : TitleOutcome::kNoAnswer;
}

WindowId OtherWindows::Foreground() { return IdOf(::GetForegroundWindow()); }

}  // namespace platform::windows
