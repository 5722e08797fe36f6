// The real program from outside: its file, its start, and what it costs while nothing happens.
//
//   bench_program          the idle program for a minute
//   bench_program --long   for ten minutes
//
// Tremolux.exe lies in the current folder, bench_scan.exe beside this program.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "bench/report.h"
#include "bench/windows/empty_window.h"
#include "bench/windows/executable_file.h"
#include "platform/windows/system_error.h"
#include "tests/desktop/driver/meter.h"
#include "tests/desktop/driver/program.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/registry_guard.h"
#include "tests/desktop/driver/screen.h"
#include "tests/desktop/driver/traffic.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"

namespace bench {
namespace {

using desktop::Meter;
using desktop::Program;
using desktop::SteadyMs;

std::wstring BenchScan() { return desktop::OwnFolder() + L"bench_scan.exe"; }

void CheckFile(Report& report) {
  const ExecutableFile file = ReadExecutable(desktop::ProgramPath());
  report.Section("The executable file");
  report.AtMost("size", static_cast<double>(file.size) / 1024, "KiB", 900);
  for (const std::string& library : file.imports) {
    report.Holds("imports " + library, IsSystemLibrary(library),
                 IsSystemLibrary(library) ? "system's own" : "not of the system");
  }
}

constexpr COLORREF kWhite = RGB(255, 255, 255);

// Until a program's window of this class has its white on the screen: that of the numeric line.
double MillisecondsToPaintedWindow(const std::wstring& path, const std::wstring& arguments,
                                   const wchar_t* window_class) {
  const double start = SteadyMs();
  Program program(path, arguments);
  desktop::Await("the painted window", [&] {
    const HWND window = desktop::FindTop(program.id(), window_class);
    if (window == nullptr || ::IsWindowVisible(window) == FALSE) return false;
    const RECT area = desktop::AreaOf(window);
    const HDC screen = ::GetDC(nullptr);
    const COLORREF pixel = ::GetPixel(screen, area.left + 6, area.bottom - 6);
    ::ReleaseDC(nullptr, screen);
    return pixel == kWhite;
  });
  return SteadyMs() - start;
}

void TimeStart(Report& report) {
  desktop::RegistryGuard::RemoveStored();
  std::vector<double> times;
  std::vector<double> empty;
  for (int start = 0; start < 8; ++start) {
    times.push_back(MillisecondsToPaintedWindow(desktop::ProgramPath(), {}, L"T_frmBrisanto"));
    empty.push_back(MillisecondsToPaintedWindow(BenchScan(), L"--empty", kEmptyWindow));
  }
  // The first ones find nothing warm and nothing stored.
  for (std::vector<double>* all : {&times, &empty}) {
    all->erase(all->begin());
    std::sort(all->begin(), all->end());
  }
  report.Section("The start, with everything warm; of 7");
  const double empty_median = empty[empty.size() / 2];
  report.Note("an empty window of a program with the same libraries, median", empty_median, "ms");
  report.Note("to the first painted meter window, best", times.front(), "ms");
  report.AtMost("to the first painted meter window, median (budget: 1.3 times)",
                times[times.size() / 2], "ms", 1.3 * empty_median);
}

double CpuMilliseconds(HANDLE process) {
  FILETIME created{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  if (::GetProcessTimes(process, &created, &ended, &kernel, &user) == FALSE) {
    platform::windows::ThrowSystemError("GetProcessTimes", ::GetLastError());
  }
  const auto ms = [](const FILETIME& time) {
    return static_cast<double>((static_cast<std::uint64_t>(time.dwHighDateTime) << 32U) |
                               time.dwLowDateTime) /
           10000;
  };
  return ms(kernel) + ms(user);
}

// Counts the program's scans: each writes one value, which is taken away again after each.
class ScanCounter {
 public:
  ScanCounter() { desktop::Remove(desktop::kSettingsKey, kValue); }
  void Look() {
    if (!desktop::IsStored(desktop::kSettingsKey, kValue)) return;
    ++scans;
    desktop::Remove(desktop::kSettingsKey, kValue);
  }
  int scans = 0;

 private:
  static constexpr char kValue[] = "InfoMaxUL";
};

void MeasureIdle(int seconds, Report& report) {
  // Nothing counts, so nothing moves.
  desktop::RegistryGuard::RemoveStored();
  desktop::Store("ExecuteTime", 1U);
  for (const desktop::AdapterRow& row : desktop::ReadAdapters()) desktop::Store(row.name, 0U);
  Meter meter;
  Program bare(BenchScan(), L"--bare-idle");
  desktop::AwaitScans(5);

  const double meter_before = CpuMilliseconds(meter.program().process());
  const double bare_before = CpuMilliseconds(bare.process());
  const double end = SteadyMs() + seconds * 1000.0;
  ScanCounter counter;
  while (SteadyMs() < end) {
    counter.Look();
    ::Sleep(static_cast<DWORD>(std::clamp(end - SteadyMs(), 1.0, 100.0)));
  }
  const double meter_ms = CpuMilliseconds(meter.program().process()) - meter_before;
  const double bare_ms = CpuMilliseconds(bare.process()) - bare_before;
  bare.Kill();
  desktop::RemoveKey("Software\\Benched");  // its copy of the program's values

  report.Section("The idle program for " + std::to_string(seconds) +
                 " s, beside the bare calls of its scans once a second");
  report.Exactly("scans", counter.scans, "", seconds, 1);
  report.Note("CPU of the bare calls", bare_ms / seconds, "ms/s");
  report.AtMost("CPU of the program (budget: 1.25 times the bare calls)", meter_ms / seconds,
                "ms/s", 1.25 * bare_ms / seconds);
}

int Main(bool long_run) {
  if (desktop::ProgramRuns()) throw std::runtime_error("end the program that is running");
  Report report;
  const desktop::RegistryGuard guard;
  CheckFile(report);
  TimeStart(report);
  MeasureIdle(long_run ? 600 : 60, report);
  return report.ExitCode();
}

}  // namespace
}  // namespace bench

int wmain(int argc, wchar_t** argv) {
  try {
    return bench::Main(argc > 1 && std::wstring_view(argv[1]) == L"--long");
  } catch (const std::exception& error) {
    std::printf("bench_program: %s\n", error.what());
    return 2;
  }
}
