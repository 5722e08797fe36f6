// Micro-benchmarks of the portable code. The machine is one in memory, so the times say how the
// program's own work grows and nothing about Windows.
#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

#include "bench/native/memory_meter.h"
#include "bench/report.h"
#include "display/graph/picture.h"
#include "quantity/quantity.h"
#include "settings/store.h"

namespace bench {
namespace {

// Scans of adapters that all move, so that all of them are persisted.
void Scan(benchmark::State& state) {
  MemoryMeter meter(static_cast<int>(state.range(0)));
  meter.Run([&] {
    for (auto iteration : state) meter.Scan();
  });
}
BENCHMARK(Scan)->Arg(4)->Arg(16)->Arg(64);

// One amount of each range, as the numeric line meets them.
void FormatQuantity(benchmark::State& state) {
  platform::memory::Machine machine;
  settings::Store store(machine.registry, machine.files);
  quantity::Quantity quantity(store, machine.locale);
  std::int64_t bytes = 1;
  for (auto iteration : state) {
    benchmark::DoNotOptimize(quantity.FormatQuantity(bytes));
    bytes = bytes > 1000000000000000 ? 1 : bytes * 7 + 3;
  }
}
BENCHMARK(FormatQuantity);

// The largest graph that the window allows, full of bars, with scale and edges.
void ComposeGraph(benchmark::State& state) {
  constexpr platform::Size kSize{348, 181};
  platform::memory::Machine machine;
  const auto bitmap = machine.graphics.CreateBitmap(kSize);
  display::GraphLook look;
  std::vector<display::GraphSample> samples;
  for (int sample = 0; sample < kSize.width; ++sample) {
    samples.push_back({1000 * (sample % 37), 600 * (sample % 23)});
  }
  for (auto iteration : state) {
    display::PaintGraph(bitmap->GetCanvas(), look, samples, ",");
  }
}
BENCHMARK(ComposeGraph);

class Figures : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      microseconds[run.benchmark_name()] =
          run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e6;
    }
  }
  std::map<std::string, double> microseconds;
};

// What the rules ask of the registry in a scan without new maxima and without options that add
// work. Each is one round trip: open, one operation, close.
namespace round_trips {

constexpr int kGroup = 2 * 2 + 2;          // two totals read and written, two maxima read
constexpr int kAdapterGroup = kGroup + 2;  // an adapter writes an equal maximum again

constexpr int kAdapter = 1                           // include flag
                         + 3                         // hardware address, speed, MTU
                         + kAdapterGroup             // since the last reset
                         + 3 * (1 + kAdapterGroup);  // marker and figures of day, week and month

constexpr int kMachine = 2                   // the scan's maxima
                         + 3                 // icon kind and its two colours
                         + 3                 // keyboard lights: the limit and a switch for each
                         + 1                 // notifications
                         + 3                 // which texts the numeric line has
                         + 1                 // title posting
                         + 1                 // ticker
                         + 3 * (1 + kGroup)  // marker and figures of day, week and month
                         + 2;                // bandwidth alert: given already, and wanted

}  // namespace round_trips

void CountRegistry(int adapters, Report& report) {
  MemoryMeter meter(adapters);
  platform::memory::RegistryTraffic traffic;
  meter.Run([&] {
    for (int scan = 0; scan < 3; ++scan) meter.Scan();
    meter.machine.notebook.Restart();
    meter.Scan();
    traffic = meter.machine.notebook.registry;  // the end of the program adds to it
  });
  const std::string rows = std::to_string(adapters) + " persisted rows: registry ";
  report.Exactly(rows + "round trips a scan", traffic.round_trips, "",
                 adapters * round_trips::kAdapter + round_trips::kMachine);
  report.Note(rows + "reads", traffic.reads, "");
  report.Note(rows + "writes", traffic.writes, "");
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  Figures figures;
  benchmark::RunSpecifiedBenchmarks(&figures);
  Report report;
  report.Section("The portable code, over a machine in memory");
  for (const auto& [name, time] : figures.microseconds) report.Note(name, time, "us");
  report.AtMost("a scan of 64 adapters beside one of 4",
                figures.microseconds["Scan/64"] / figures.microseconds["Scan/4"], "times", 17);
  for (const int adapters : {5, 40}) CountRegistry(adapters, report);
  return report.ExitCode();
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) { return bench::Main(argc, argv); }
