#include <algorithm>
#include <memory>
#include <string>

#include "platform/wave_file.h"
#include "platform/windows/services/services.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"
// This header must follow the system's header, which it needs.
#include <mmsystem.h>

namespace platform::windows {
namespace {

constexpr std::size_t kLargestSound = 64U << 20;  // bytes; the system's player loads it whole

// Returns whether the file may be on another machine, so that opening it may wait for a machine
// that does not answer. The system takes slashes as well as backslashes.
bool IsRemote(std::wstring path) {
  std::replace(path.begin(), path.end(), L'/', L'\\');
  if (path.starts_with(L"\\\\")) return true;
  const std::wstring root = path.substr(0, path.find(L'\\') + 1);
  return !root.empty() && ::GetDriveTypeW(root.c_str()) == DRIVE_REMOTE;
}

// The function is looked up at the first sound: its library loads a dozen others, and most runs
// play no sound. The library stays loaded, since a sound goes on after the call.
void Start(const std::wstring& path) {
  const auto bytes = Files().Load(FromWide(path), kLargestSound);
  if (!bytes || !IsWaveFile(*bytes)) return;
  using Player = BOOL(WINAPI*)(LPCWSTR, UINT);
  const auto play = Function<Player>(
      ::LoadLibraryExW(L"winmm.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32), "sndPlaySoundW");
  if (play != nullptr) play(path.c_str(), SND_ASYNC | SND_NODEFAULT);
}

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
