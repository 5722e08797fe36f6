// The program under test, as a process.
#pragma once

#include <string>

#include "platform/windows/system_handles.h"
#include "tests/desktop/driver/win.h"

namespace desktop {

// The executable: what the environment variable TREMOLUX_EXE names, or else Tremolux.exe in the
// current folder, or beside the running program. Throws when there is none.
[[nodiscard]] std::wstring ProgramPath();
// The folder of the running program, with a backslash at its end.
[[nodiscard]] std::wstring OwnFolder();

// Whether a copy of the program runs already, whoever started it.
[[nodiscard]] bool ProgramRuns();

// One running copy; ended by force at the end, if it has not ended by then.
class Program {
 public:
  // Starts it, on the desktop of this process. Throws std::runtime_error when it cannot be started.
  // The program knows no arguments; other programs that are started here may.
  explicit Program(const std::wstring& path = ProgramPath(), const std::wstring& arguments = {});
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  [[nodiscard]] DWORD id() const { return id_; }
  [[nodiscard]] HANDLE process() const { return process_.get(); }
  [[nodiscard]] bool Running() const;

  // Waits for the process to end by itself and returns its exit code; throws when it goes on.
  DWORD AwaitEnd();
  // Ends it by force and waits until it is gone. What it has stored so far stays.
  void Kill();

 private:
  platform::windows::KernelHandle process_;
  DWORD id_ = 0;
};

}  // namespace desktop
