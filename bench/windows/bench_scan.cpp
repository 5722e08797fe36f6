// The real scan on the real system, beside the Windows calls that it cannot do without.
//
//   bench_scan             the cost of a scan, and a long run for two minutes
//   bench_scan --long [n]  the long run is that of n scans, or of more than a day
//   bench_scan --empty     an empty window, until it is ended; for bench_program, which compares
//                          the program's start with it
//   bench_scan --bare-idle the bare calls of an idle scan once a second, until it is ended; for
//                          bench_program, which compares the idle program with it
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

#include "bench/windows/cost.h"
#include "bench/windows/empty_window.h"
#include "bench/windows/idle.h"
#include "bench/windows/long_run.h"
#include "bench/windows/openings.h"
#include "bench/windows/preferences.h"
#include "tests/desktop/driver/program.h"
#include "tests/desktop/driver/registry_guard.h"

namespace bench {
namespace {

int Main(const LongRun& long_run) {
  if (desktop::ProgramRuns()) throw std::runtime_error("end the program that is running");
  const desktop::RegistryGuard guard;
  desktop::RegistryGuard::RemoveStored();
  const std::int64_t empty_bytes = BytesWithEmptyWindow();
  Report report;
  double scan_us = 0;
  {
    constexpr int kAdapters = 4;
    PlayedMeter meter(kAdapters);
    meter.WarmUp();
    scan_us = CompareWithBareCalls(meter, report);
    PlayLongRun(meter, long_run, empty_bytes, report);
    OpenPreferences(meter, report);
    OpenEveryWindow(meter, report);
  }
  CompareTrayUpdate(report);
  CompareAdapters(scan_us, report);
  CountWakeUps(report);
  return report.ExitCode();
}

}  // namespace
}  // namespace bench

int wmain(int argc, wchar_t** argv) {
  const std::wstring_view option = argc > 1 ? argv[1] : L"";
  try {
    if (option == L"--bare-idle") bench::RunBareIdle();
    if (option == L"--empty") {
      bench::RunEmptyWindow();
      return 0;
    }
    constexpr bench::LongRun kShort{20000, 120};
    const bench::LongRun whole{argc > 2 ? std::stoi(argv[2]) : 100000, 24 * 3600};
    return bench::Main(option == L"--long" ? whole : kShort);
  } catch (const std::exception& error) {
    std::printf("bench_scan: %s\n", error.what());
    return 2;
  }
}
