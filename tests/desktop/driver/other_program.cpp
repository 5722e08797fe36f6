#include "tests/desktop/driver/other_program.h"

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

constexpr UINT kWork = WM_APP + 1;  // w: the function

}  // namespace

OtherProgram::OtherProgram()
    : done_(::CreateEventW(nullptr, FALSE, FALSE, nullptr)), thread_([this] { Run(); }) {
  ::WaitForSingleObject(done_.get(), INFINITE);
}

OtherProgram::~OtherProgram() {
  ::PostThreadMessageW(thread_id_, WM_QUIT, 0, 0);
  thread_.join();
}

void OtherProgram::Do(const std::function<void()>& work) {
  ::PostThreadMessageW(thread_id_, kWork, reinterpret_cast<WPARAM>(&work), 0);
  ::WaitForSingleObject(done_.get(), INFINITE);
}

HWND OtherProgram::Open(const wchar_t* title, const RECT& area) {
  HWND window = nullptr;
  const bool seen = ::IsRectEmpty(&area) == FALSE;
  Do([&] {
    const DWORD style = seen ? WS_POPUP | WS_VISIBLE : WS_POPUP | WS_CAPTION;
    window = ::CreateWindowExW(0, L"STATIC", title, style, area.left, area.top, WidthOf(area),
                               HeightOf(area), nullptr, nullptr, nullptr, nullptr);
    windows_.push_back(window);
    if (seen) ::SetForegroundWindow(window);
  });
  if (seen) Await("the other program in front", [=] { return ::GetForegroundWindow() == window; });
  return window;
}

void OtherProgram::Run() {
  thread_id_ = ::GetCurrentThreadId();
  MSG message{};
  ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // makes the queue
  ::SetEvent(done_.get());
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    ::DispatchMessageW(&message);
    if (message.hwnd != nullptr || message.message != kWork) continue;
    (*reinterpret_cast<const std::function<void()>*>(message.wParam))();
    ::SetEvent(done_.get());
  }
  for (const HWND window : windows_) ::DestroyWindow(window);
}

std::string ClipboardText() {
  Await("the clipboard", [] { return ::OpenClipboard(nullptr) != FALSE; });
  std::string text;
  if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
    text = platform::windows::FromWide(static_cast<const wchar_t*>(::GlobalLock(data)));
    ::GlobalUnlock(data);
  }
  ::CloseClipboard();
  return text;
}

}  // namespace desktop
