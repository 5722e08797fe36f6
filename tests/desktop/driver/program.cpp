#include "tests/desktop/driver/program.h"

#include <filesystem>
#include <stdexcept>

#include "platform/windows/services/services.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/wait.h"

namespace desktop {

using platform::windows::KernelHandle;

std::wstring OwnFolder() {
  return platform::windows::ToWide(platform::windows::Files().ProgramFolder());
}

std::wstring ProgramPath() {
  for (const std::filesystem::path& folder :
       {std::filesystem::current_path(), std::filesystem::path(OwnFolder())}) {
    const std::filesystem::path path = folder / "Tremolux.exe";
    if (std::filesystem::exists(path)) return path.wstring();
  }
  throw std::runtime_error("no Tremolux.exe here");
}

bool ProgramRuns() {
  return static_cast<bool>(KernelHandle(::OpenMutexW(SYNCHRONIZE, FALSE, L"Korvane Tremolux")));
}

Program::Program(const std::wstring& path, const std::wstring& arguments) {
  std::wstring line = L"\"" + path + L"\" " + arguments;  // the system writes into it
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION started{};
  // Now and then Wine loses a new process before its program begins, which it calls an internal
  // error: nothing of the program has run then, so it is started again.
  for (int attempts = 5; ::CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0,
                                          nullptr, nullptr, &startup, &started) == FALSE;) {
    const DWORD error = ::GetLastError();
    if (error != ERROR_INTERNAL_ERROR || --attempts == 0) {
      platform::windows::ThrowSystemError("CreateProcess", error);
    }
  }
  ::CloseHandle(started.hThread);
  process_ = KernelHandle(started.hProcess);
  id_ = started.dwProcessId;
}

Program::~Program() {
  if (Running()) Kill();
}

bool Program::Running() const { return ::WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT; }

DWORD Program::AwaitEnd() {
  Await("the end of the program", [this] { return !Running(); });
  DWORD code = STILL_ACTIVE;
  ::GetExitCodeProcess(process_.get(), &code);
  return code;
}

void Program::Kill() {
  ::TerminateProcess(process_.get(), 1);
  ::WaitForSingleObject(process_.get(), kAmpleMs);
}

}  // namespace desktop
