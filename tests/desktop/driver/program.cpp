#include "tests/desktop/driver/program.h"

#include <stdexcept>

#include "platform/windows/system_error.h"
#include "tests/desktop/driver/wait.h"

namespace desktop {
namespace {

using platform::windows::KernelHandle;
using platform::windows::ThrowSystemError;

constexpr wchar_t kExecutable[] = L"Tremolux.exe";

bool IsFile(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::wstring CurrentFolder() {
  wchar_t folder[MAX_PATH] = {};
  ::GetCurrentDirectoryW(MAX_PATH, folder);
  return std::wstring(folder) + L"\\";
}

// A new process of `command`. Now and then Wine loses one before its program begins, which it calls
// an internal error: nothing of the program has run then, so it is started again.
PROCESS_INFORMATION StartProcess(const std::wstring& path, const std::wstring& command) {
  constexpr int kAttempts = 5;
  for (int attempt = 1;; ++attempt) {
    std::wstring line = command;  // the system writes into it
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started{};
    if (::CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                         &startup, &started) != FALSE) {
      return started;
    }
    const DWORD error = ::GetLastError();
    if (error != ERROR_INTERNAL_ERROR || attempt == kAttempts) {
      ThrowSystemError("CreateProcess", error);
    }
  }
}

}  // namespace

std::wstring OwnFolder() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring folder = path;
  return folder.substr(0, folder.rfind(L'\\') + 1);
}

std::wstring ProgramPath() {
  wchar_t named[MAX_PATH] = {};
  if (::GetEnvironmentVariableW(L"TREMOLUX_EXE", named, MAX_PATH) > 0) return named;
  for (const std::wstring& folder : {CurrentFolder(), OwnFolder()}) {
    if (IsFile(folder + kExecutable)) return folder + kExecutable;
  }
  throw std::runtime_error(
      "no Tremolux.exe here; name it in the environment variable TREMOLUX_EXE");
}

bool ProgramRuns() {
  return static_cast<bool>(KernelHandle(::OpenMutexW(SYNCHRONIZE, FALSE, L"Korvane Tremolux")));
}

Program::Program(const std::wstring& path, const std::wstring& arguments) {
  const PROCESS_INFORMATION started = StartProcess(path, L"\"" + path + L"\" " + arguments);
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
  DWORD code = 0;
  if (::GetExitCodeProcess(process_.get(), &code) == FALSE) {
    ThrowSystemError("GetExitCodeProcess", ::GetLastError());
  }
  return code;
}

void Program::Kill() {
  ::TerminateProcess(process_.get(), 1);
  ::WaitForSingleObject(process_.get(), kAmpleMs);
}

}  // namespace desktop
