// A window of the system whose messages go to an object.
#pragma once

#include <optional>
#include <string>

#include "platform/windows/lifetime.h"
#include "platform/windows/win32.h"
#include "platform/windows/windows/window_class.h"

namespace platform::windows {

struct Message {
  UINT id = 0;
  WPARAM w = 0;
  LPARAM l = 0;
};

// How a window is created; as for CreateWindowEx. Its size is zero.
struct WindowStyle {
  DWORD style = 0;
  DWORD extended = 0;
};

// Owns one window. When the system takes the window away first (its parent was destroyed), the
// object stays, without one.
class NativeWindow {
 public:
  NativeWindow() = default;
  virtual ~NativeWindow();
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;

  // Null before it is created and after the system took it away.
  [[nodiscard]] HWND hwnd() const { return hwnd_; }

  // The object that owns `hwnd`; null when none of this program does.
  [[nodiscard]] static NativeWindow* Of(HWND hwnd);

  static LRESULT CALLBACK Procedure(HWND hwnd, UINT id, WPARAM w, LPARAM l) noexcept;

 protected:
  // Both throw std::runtime_error when the system refuses. `parent` is the owner of a pop-up.
  void Create(const WindowClass& window_class, const WindowStyle& style, HWND parent,
              const std::wstring& text);
  // A control of the system's class `control`; Handle sees its messages first.
  void CreateControl(const wchar_t* control, const WindowStyle& style, HWND parent);

  // The answer to a message, or nothing to leave it to the system. The object may be destroyed
  // inside; what escapes as an exception ends here.
  virtual std::optional<LRESULT> Handle(const Message& message) = 0;

  // What the system does with a message, now rather than after Handle.
  LRESULT CallSystem(const Message& message);

  [[nodiscard]] Lifetime& lifetime() { return lifetime_; }

 private:
  void Attach(HWND hwnd);
  void Detach();

  HWND hwnd_ = nullptr;
  WNDPROC system_ = &::DefWindowProcW;  // what handles the rest: a control's own procedure
  Lifetime lifetime_;
};

}  // namespace platform::windows
