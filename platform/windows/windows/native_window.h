// A window of the system whose messages go to an object, and the classes of such windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/windows/lifetime.h"
#include "platform/windows/win32.h"

namespace platform::windows {

// Returns the module that the program's classes and resources belong to.
[[nodiscard]] HINSTANCE ThisModule();

// A class of windows whose messages go to NativeWindow. It is registered while the object lives,
// and its windows must be destroyed before it. The constructor throws std::runtime_error when the
// system refuses.
class WindowClass {
 public:
  explicit WindowClass(std::string_view name);
  ~WindowClass();
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;

  [[nodiscard]] const wchar_t* name() const { return name_.c_str(); }

 private:
  std::wstring name_;
};

struct Message {
  UINT id = 0;
  WPARAM w = 0;
  LPARAM l = 0;
};

// The styles for CreateWindowEx. A new window has the size zero.
struct WindowStyle {
  DWORD style = 0;
  DWORD extended = 0;
};

// Owns one window. When the system destroys the window first (because its parent was destroyed),
// the object stays without a window.
class NativeWindow {
 public:
  NativeWindow() = default;
  virtual ~NativeWindow();
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;

  // Returns null before the window is created and after the system has destroyed it.
  [[nodiscard]] HWND hwnd() const { return hwnd_; }

  // Returns the object that owns `hwnd`, or null when no object of this program does.
  [[nodiscard]] static NativeWindow* Of(HWND hwnd);

  static LRESULT CALLBACK Procedure(HWND hwnd, UINT id, WPARAM w, LPARAM l) noexcept;

 protected:
  // Both throw std::runtime_error when the system refuses. `parent` is the owner of a pop-up.
  void Create(const WindowClass& window_class, const WindowStyle& style, HWND parent,
              const std::wstring& text);
  // Makes a control of the system's class `control`. Handle gets its messages first.
  void CreateControl(const wchar_t* control, const WindowStyle& style, HWND parent);

  // Returns the answer to a message, or nullopt to leave it to the system. The object may be
  // destroyed inside. An exception that leaves Handle is dropped.
  virtual std::optional<LRESULT> Handle(const Message& message) = 0;

  // Lets the system handle a message now rather than after Handle.
  LRESULT CallSystem(const Message& message);

  [[nodiscard]] Lifetime& lifetime() { return lifetime_; }

 private:
  void Attach(HWND hwnd);
  void Detach();

  HWND hwnd_ = nullptr;
  WNDPROC system_ = &::DefWindowProcW;  // handles the other messages; a control's own procedure
  Lifetime lifetime_;
};

// Gives the foreground from a window that closes back to the one that had it before, unless that
// window is gone, hidden or disabled, or the user works in another window. Otherwise the system
// would choose the program's topmost window.
inline void GiveForegroundBack(HWND from, HWND before) {
  if (::IsWindowVisible(before) && ::IsWindowEnabled(before) && ::GetForegroundWindow() == from) {
    ::SetForegroundWindow(before);
  }
}

}  // namespace platform::windows
