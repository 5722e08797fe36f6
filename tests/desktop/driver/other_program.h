// Another program, played by a thread: it has windows, and takes hot keys and the clipboard.
#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/windows/system_handles.h"
#include "tests/desktop/driver/win.h"

namespace desktop {

class OtherProgram {
 public:
  OtherProgram();
  // What it opened goes with it.
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  // Runs `work` on the program's thread, and waits until it is done.
  void Do(const std::function<void()>& work);
  // Opens a window with a title, which is seen and has the foreground only when `area` is not
  // empty.
  HWND Open(const wchar_t* title, const RECT& area = {});

 private:
  void Run();

  platform::windows::KernelHandle done_;
  DWORD thread_id_ = 0;
  std::vector<HWND> windows_;
  std::thread thread_;
};

// The text in the clipboard; empty when it has none. Waits until nobody keeps it open.
[[nodiscard]] std::string ClipboardText();

}  // namespace desktop
