// The meter window from outside.
#pragma once

#include <string>

#include "tests/desktop/driver/menu.h"
#include "tests/desktop/driver/program.h"
#include "tests/desktop/driver/win.h"

namespace desktop {

// The program with its meter window on the screen.
class Meter {
 public:
  // Starts the program and waits until the window is shown and what it starts with is stored.
  Meter();

  [[nodiscard]] Program& program() { return program_; }
  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] bool Visible() const { return ::IsWindowVisible(window_) != FALSE; }
  [[nodiscard]] bool OnTop() const;

  // Controls; null when there is none.
  [[nodiscard]] HWND graph() const;
  [[nodiscard]] HWND line() const;  // the numeric line
  // Length in pixels of one at 96 dpi.
  [[nodiscard]] LONG Scaled(LONG design) const;

  // The menu, opened by a right click on the meter.
  [[nodiscard]] OpenMenu Menu();
  // Chooses from it.
  void Choose(const MenuPath& path) { Menu().Choose(path); }

  // Waits until the program's window of this class has the foreground.
  HWND AwaitForm(const wchar_t* form) const;

  // The window that hears of clicks on the icon in the notification area, and the icon's place on
  // the screen.
  [[nodiscard]] HWND tray() const;
  [[nodiscard]] RECT TrayArea() const;

 private:
  Program program_;
  HWND window_ = nullptr;
};

// Returns when the program has come so many times to the middle of a scan, where it has measured
// and not yet updated the day. So after two the first of them is over, and after three one scan has
// begun and ended since the call.
void AwaitScans(int scans = 1);

}  // namespace desktop
