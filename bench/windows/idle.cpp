#include "bench/windows/idle.h"

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bench/windows/bare_scan.h"
#include "bench/windows/played_meter.h"
#include "bench/windows/timing.h"
#include "platform/windows/win32.h"
#include "tests/desktop/driver/input.h"

namespace bench {
namespace {

void HandleWaitingMessages() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

// Waits again and again for what comes; returns how often something came.
int WakeUpsWithin(double seconds) {
  const auto start = Clock::now();
  int wake_ups = 0;
  for (;;) {
    HandleWaitingMessages();
    const double left_ms = seconds * 1000 - MicrosecondsSince(start) / 1000;
    if (left_ms <= 0) return wake_ups;
    const DWORD came = ::MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(left_ms) + 1,
                                                     QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    if (came == WAIT_OBJECT_0) ++wake_ups;
  }
}

int RealAdapters() {
  ULONG size = 0;
  ::GetIfTable(nullptr, &size, FALSE);
  std::vector<std::byte> buffer(size);
  auto* table = reinterpret_cast<MIB_IFTABLE*>(buffer.data());
  return ::GetIfTable(table, &size, FALSE) == NO_ERROR ? static_cast<int>(table->dwNumEntries) : 0;
}

// The same work on a copy of the program's values, so that the program, which runs beside this one,
// keeps its own.
std::vector<RegistryOperation> AsCopied(std::vector<RegistryOperation> operations) {
  const std::wstring own = L"SOFTWARE\\Korvane";
  const std::wstring copy = L"SOFTWARE\\Benched";
  HKEY from = nullptr;
  HKEY to = nullptr;
  ::RegCreateKeyExW(HKEY_CURRENT_USER, own.c_str(), 0, nullptr, 0, KEY_READ, nullptr, &from,
                    nullptr);
  ::RegCreateKeyExW(HKEY_CURRENT_USER, copy.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &to,
                    nullptr);
  ::RegCopyTreeW(from, nullptr, to);
  ::RegCloseKey(from);
  ::RegCloseKey(to);
  for (RegistryOperation& operation : operations) {
    if (operation.path.starts_with(own)) operation.path.replace(0, own.size(), copy);
  }
  return operations;
}

}  // namespace

void CountWakeUps(Report& report) {
  constexpr double kStartSeconds = 3;
  constexpr double kSeconds = 20;
  platform::windows::Machine machine;
  toolkit::Application app(machine.platform());
  const display::T_frmBrisanto window(app);
  // Under Wine a pointer over the window is looked after by a timer of the system's.
  desktop::MoveMouse({0, 0});
  (void)WakeUpsWithin(kStartSeconds);
  report.Section("The idle program with its real timers, for 20 s");
  report.AtMost("wake-ups", WakeUpsWithin(kSeconds) / kSeconds, "a second", 2);
}

// The work of a scan in which nothing moves is recorded from the program's own window, which is
// gone then.
void RunBareIdle() {
  std::optional<BareScan> bare;
  {
    PlayedMeter meter(RealAdapters());
    meter.IdleScan();
    std::vector<RegistryOperation> even = meter.Record(&PlayedMeter::IdleScan);
    std::vector<RegistryOperation> odd = meter.Record(&PlayedMeter::IdleScan);
    bare.emplace(AsCopied(std::move(even)), AsCopied(std::move(odd)));
  }
  ::SetTimer(nullptr, 0, 1000, nullptr);
  MSG message;
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    // An icon that stays as it is, is not sent.
    if (message.message == WM_TIMER) {
      bare->ReadTableTwice();
      bare->WorkOnRegistry();
      bare->NextScan();
    }
    ::DispatchMessageW(&message);
  }
  std::exit(0);
}

}  // namespace bench
