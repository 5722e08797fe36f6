// Another program, played by a thread: it has windows, takes hot keys, and can hang.
#pragma once

#include <functional>
#include <thread>
#include <vector>

#include "platform/windows/win32.h"

namespace contract {

class OtherProgram {
 public:
  OtherProgram();
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  // Runs `work` on the program's thread, and waits until it is done.
  void Do(const std::function<void()>& work);
  [[nodiscard]] HWND Open(const wchar_t* title);
  // From now on it takes no messages, or takes them again.
  void Hang();
  void Recover();

 private:
  void Run();

  HANDLE ready_;
  HANDLE recover_;
  DWORD thread_id_ = 0;
  bool hanging_ = false;
  std::vector<HWND> windows_;
  std::thread thread_;
};

}  // namespace contract
