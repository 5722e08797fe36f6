#include "platform/windows/sound.h"

#include <memory>
#include <string>

#include "platform/windows/wide.h"
#include "platform/windows/win32.h"
// After the system's header, which it needs.
#include <mmsystem.h>

namespace platform::windows {
namespace {

// Whether opening the file may take as long as a machine that does not answer.
bool IsRemote(const std::wstring& path) {
  if (path.starts_with(L"\\\\")) return true;
  const std::wstring root = path.substr(0, path.find(L'\\') + 1);
  return !root.empty() && ::GetDriveTypeW(root.c_str()) == DRIVE_REMOTE;
}

void Start(const std::wstring& path) { ::sndPlaySoundW(path.c_str(), SND_ASYNC | SND_NODEFAULT); }

DWORD WINAPI StartLater(void* path) {
  const std::unique_ptr<std::wstring> owned(static_cast<std::wstring*>(path));
  Start(*owned);
  return 0;
}

}  // namespace

void Sound::Play(std::string_view path) {
  if (path.empty()) return;
  auto wide = std::make_unique<std::wstring>(ToWide(path));
  if (!IsRemote(*wide)) {
    Start(*wide);
    return;
  }
  // The asynchronous call still opens the file before it returns; a scan cannot wait for a share
  // that is gone.
  if (::QueueUserWorkItem(&StartLater, wide.get(), WT_EXECUTELONGFUNCTION)) (void)wide.release();
}

void Sound::Beep() { ::MessageBeep(MB_OK); }

}  // namespace platform::windows
