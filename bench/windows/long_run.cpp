#include "bench/windows/long_run.h"

#include <algorithm>
#include <string>

#include "bench/windows/own_resources.h"
#include "bench/windows/timing.h"

namespace bench {
namespace {

double KiB(std::int64_t bytes) { return static_cast<double>(bytes) / 1024; }

// Returns how many there were.
int Play(PlayedMeter& meter, const LongRun& run) {
  const auto start = Clock::now();
  int scans = 0;
  for (; scans < run.scans && MicrosecondsSince(start) < run.longest_seconds * 1e6; ++scans) {
    meter.Scan();
    meter.Paint();
  }
  return scans;
}

}  // namespace

void PlayLongRun(PlayedMeter& meter, const LongRun& run, std::int64_t empty_bytes, Report& report) {
  constexpr int kHour = 3600;
  const double half = run.longest_seconds / 2;
  const int first = Play(meter, {std::min(kHour, run.scans / 2), half});
  const Resources before;
  const int rest = Play(meter, {run.scans - first, half});
  const std::string number = std::to_string(first);
  report.Section("The long run: scans one behind the other, each painted");
  report.AtMost("private memory after " + number + " scans above an empty window's",
                KiB(before.bytes - empty_bytes), "KiB", 1024);
  report.Note("scans after these, each with a tick of the histogram", rest, "");
  ReportGrowth(before, report);
  report.Note("handles", static_cast<double>(before.handles), "");
  report.Note("GDI objects", static_cast<double>(before.gdi), "");
}

}  // namespace bench
