#include "tests/desktop/driver/other_program.h"

#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

constexpr UINT kWork = WM_APP + 1;  // w: the function
constexpr UINT kHang = WM_APP + 2;

}  // namespace

OtherProgram::OtherProgram()
    : done_(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      recover_(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      thread_([this] { Run(); }) {
  ::WaitForSingleObject(done_.get(), INFINITE);
}

OtherProgram::~OtherProgram() {
  Recover();
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

void OtherProgram::Hang() {
  hanging_ = true;
  ::PostThreadMessageW(thread_id_, kHang, 0, 0);
  ::WaitForSingleObject(done_.get(), INFINITE);
}

void OtherProgram::Recover() {
  if (hanging_) ::SetEvent(recover_.get());
  hanging_ = false;
}

void OtherProgram::Run() {
  thread_id_ = ::GetCurrentThreadId();
  MSG message{};
  ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // makes the queue
  ::SetEvent(done_.get());
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (message.hwnd != nullptr) {
      ::DispatchMessageW(&message);
      continue;
    }
    if (message.message == kWork) {
      (*reinterpret_cast<const std::function<void()>*>(message.wParam))();
    }
    if (message.message == kWork || message.message == kHang) ::SetEvent(done_.get());
    if (message.message == kHang) ::WaitForSingleObject(recover_.get(), INFINITE);
  }
  for (const HWND window : windows_) ::DestroyWindow(window);
}

}  // namespace desktop
