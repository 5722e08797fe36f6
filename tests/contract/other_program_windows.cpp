#include "tests/contract/other_program_windows.h"

namespace contract {
namespace {

constexpr UINT kWork = WM_APP + 1;  // w: the function; l: the event to set when it is done
constexpr UINT kHang = WM_APP + 2;

}  // namespace

OtherProgram::OtherProgram()
    : ready_(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      recover_(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      thread_([this] { Run(); }) {
  ::WaitForSingleObject(ready_, INFINITE);
}

OtherProgram::~OtherProgram() {
  Recover();
  ::PostThreadMessageW(thread_id_, WM_QUIT, 0, 0);
  thread_.join();
  ::CloseHandle(ready_);
  ::CloseHandle(recover_);
}

void OtherProgram::Do(const std::function<void()>& work) {
  ::PostThreadMessageW(thread_id_, kWork, reinterpret_cast<WPARAM>(&work), 0);
  ::WaitForSingleObject(ready_, INFINITE);
}

HWND OtherProgram::Open(const wchar_t* title) {
  HWND window = nullptr;
  Do([&] {
    window = ::CreateWindowExW(0, L"STATIC", title, WS_POPUP | WS_CAPTION, 0, 0, 100, 50, nullptr,
                               nullptr, nullptr, nullptr);
    windows_.push_back(window);
  });
  return window;
}

void OtherProgram::Hang() {
  hanging_ = true;
  ::PostThreadMessageW(thread_id_, kHang, 0, 0);
  ::WaitForSingleObject(ready_, INFINITE);
}

void OtherProgram::Recover() {
  if (hanging_) ::SetEvent(recover_);
  hanging_ = false;
}

void OtherProgram::Run() {
  thread_id_ = ::GetCurrentThreadId();
  MSG message{};
  ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // makes the queue
  ::SetEvent(ready_);
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (message.hwnd == nullptr && message.message == kWork) {
      (*reinterpret_cast<const std::function<void()>*>(message.wParam))();
      ::SetEvent(ready_);
    } else if (message.hwnd == nullptr && message.message == kHang) {
      ::SetEvent(ready_);
      ::WaitForSingleObject(recover_, INFINITE);
    } else {
      ::DispatchMessageW(&message);
    }
  }
  for (const HWND window : windows_) ::DestroyWindow(window);
}

}  // namespace contract
