#include "platform/windows/windows/native_window.h"

#include <stdexcept>

#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

constexpr WORD kApplicationIcon = 1;  // in the program's resources; none in tests

}  // namespace

HINSTANCE ThisModule() { return ::GetModuleHandleW(nullptr); }

WindowClass::WindowClass(std::string_view name) : name_(ToWide(name)) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  // No background brush and no redrawing by the class: windows paint themselves in one piece.
  description.style = CS_DBLCLKS;
  description.lpfnWndProc = &NativeWindow::Procedure;
  description.hInstance = ThisModule();
  description.hIcon = ::LoadIconW(ThisModule(), MAKEINTRESOURCEW(kApplicationIcon));
  description.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));  // IDC_ARROW
  description.lpszClassName = name_.c_str();
  if (::RegisterClassExW(&description) == 0) {
    throw std::runtime_error("RegisterClassEx failed with " + std::to_string(::GetLastError()) +
                             " for " + std::string(name));
  }
}

WindowClass::~WindowClass() { ::UnregisterClassW(name_.c_str(), ThisModule()); }

namespace {

NativeWindow* ObjectOf(HWND hwnd) {
  return reinterpret_cast<NativeWindow*>(::GetWindowLongPtrW(hwnd, GWLP_USERDATA));
}

void RequireWindow(HWND hwnd) {
  if (hwnd != nullptr) return;
  throw std::runtime_error("CreateWindowEx failed with " + std::to_string(::GetLastError()));
}

}  // namespace

NativeWindow::~NativeWindow() {
  const HWND hwnd = hwnd_;
  if (hwnd == nullptr) return;
  Detach();  // first, since messages of the destruction must not reach a half-destroyed object
  ::DestroyWindow(hwnd);
}

void NativeWindow::Create(const WindowClass& window_class, const WindowStyle& style, HWND parent,
                          const std::wstring& text) {
  const HWND hwnd = ::CreateWindowExW(style.extended, window_class.name(), text.c_str(),
                                      style.style, 0, 0, 0, 0, parent, nullptr, ThisModule(), this);
  RequireWindow(hwnd);
}

void NativeWindow::CreateControl(const wchar_t* control, const WindowStyle& style, HWND parent) {
  const HWND hwnd = ::CreateWindowExW(style.extended, control, nullptr, style.style, 0, 0, 0, 0,
                                      parent, nullptr, ThisModule(), nullptr);
  RequireWindow(hwnd);
  Attach(hwnd);
  system_ = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
}

NativeWindow* NativeWindow::Of(HWND hwnd) {
  // Only such a window is known to keep its owner in the user data. (The parts of a combo box, for
  // example, are the system's own.)
  const auto procedure = reinterpret_cast<LONG_PTR>(&Procedure);
  if (hwnd == nullptr || ::GetWindowLongPtrW(hwnd, GWLP_WNDPROC) != procedure) return nullptr;
  return ObjectOf(hwnd);
}

void NativeWindow::Attach(HWND hwnd) {
  hwnd_ = hwnd;
  ::SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void NativeWindow::Detach() {
  ::SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
  if (system_ != &::DefWindowProcW) {
    ::SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_));
  }
  hwnd_ = nullptr;
}

LRESULT NativeWindow::CallSystem(const Message& message) {
  return ::CallWindowProcW(system_, hwnd_, message.id, message.w, message.l);
}

LRESULT CALLBACK NativeWindow::Procedure(HWND hwnd, UINT id, WPARAM w, LPARAM l) noexcept {
  if (id == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(l);
    static_cast<NativeWindow*>(creation->lpCreateParams)->Attach(hwnd);
  }
  NativeWindow* object = ObjectOf(hwnd);
  if (object == nullptr) return ::DefWindowProcW(hwnd, id, w, l);
  const WNDPROC system = object->system_;  // the object may be gone after Handle
  if (id == WM_NCDESTROY) {
    object->Detach();
    return ::CallWindowProcW(system, hwnd, id, w, l);
  }
  try {
    if (const std::optional<LRESULT> answer = object->Handle({id, w, l})) return *answer;
  } catch (...) {
    // Handlers have their own guards. An exception that gets here anyway must not unwind through
    // the system's frames.
    return 0;
  }
  return ::CallWindowProcW(system, hwnd, id, w, l);
}

}  // namespace platform::windows
