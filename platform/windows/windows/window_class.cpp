#include "platform/windows/windows/window_class.h"

#include <stdexcept>

#include "platform/windows/wide.h"
#include "platform/windows/windows/native_window.h"

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

}  // namespace platform::windows
