#include "bench/windows/cost.h"

#include <utility>

#include "bench/windows/bare_scan.h"
#include "bench/windows/timing.h"
#include "display/tray/tray_icon.h"
#include "settings/store.h"

namespace bench {
namespace {

constexpr int kTurns = 600;
constexpr double kLongestUs = 40e6;

// One after the other, so that whatever else the machine does meets all.
template <class Turn>
void InTurns(const Turn& turn) {
  const auto begin = Clock::now();
  for (int number = 0; number < kTurns && MicrosecondsSince(begin) < kLongestUs; ++number) turn();
}

// The icon of the program alone, updated as by scans.
class PlayedTrayIcon {
 public:
  PlayedTrayIcon() {
    icon_.ShowStart();
    // It comes a moment later.
    constexpr DWORD kAmpleMs = 300;
    ::Sleep(kAmpleMs);
    machine_.platform().message_loop.ProcessPending();
  }

  void Update() {
    ++seconds_;
    engine::ScanAmounts scan;
    scan.ScanSumDL = PlayedBytesIn(seconds_);
    scan.ScanSumUL = PlayedBytesOut(seconds_);
    icon_.ShowScan(scan);
  }

  [[nodiscard]] std::vector<RegistryOperation> Record() {
    machine_.registry.Record();
    Update();
    return machine_.registry.Recorded();
  }

 private:
  PlayedMachine machine_{0};
  toolkit::Application app_{machine_.platform()};
  settings::Store store_{machine_.registry, machine_.platform().files};
  display::TrayIcon icon_{app_, store_};
  std::uint32_t seconds_ = 0;
};

}  // namespace

double CompareWithBareCalls(PlayedMeter& meter, Report& report) {
  std::vector<RegistryOperation> even = meter.Record(&PlayedMeter::Scan);
  std::vector<RegistryOperation> odd = meter.Record(&PlayedMeter::Scan);
  const auto round_trips = static_cast<double>(even.size());
  BareScan bare(std::move(even), std::move(odd));
  bare.Run();

  std::vector<double> real_us;
  std::vector<double> paint_us;
  std::vector<double> bare_us;
  std::vector<double> parts_us[3];
  InTurns([&] {
    real_us.push_back(MicrosecondsOf([&] { meter.Scan(); }));
    paint_us.push_back(MicrosecondsOf([&] { meter.Paint(); }));
    double together = 0;
    int part = 0;
    for (const auto step :
         {&BareScan::ReadTableTwice, &BareScan::WorkOnRegistry, &BareScan::ShowPictures}) {
      const double us = MicrosecondsOf([&] { (bare.*step)(); });
      parts_us[part++].push_back(us);
      together += us;
    }
    bare_us.push_back(together);
    bare.NextScan();
  });
  const double real = Undisturbed(real_us);
  report.Section("One scan of 4 adapters, all persisted, histogram icon; the lower quartile");
  report.Note("registry round trips", round_trips, "");
  report.Note("bare: the table, twice", Undisturbed(parts_us[0]), "us");
  report.Note("bare: the registry", Undisturbed(parts_us[1]), "us");
  report.Note("bare: the picture in the notification area, twice", Undisturbed(parts_us[2]), "us");
  report.Note("bare calls, together", Undisturbed(bare_us), "us");
  report.AtMost("one scan of the program (budget: 1.10 times the bare calls)", real, "us",
                1.10 * Undisturbed(bare_us));
  report.Note("painting after a scan", Undisturbed(paint_us), "us");
  return real;
}

void CompareTrayUpdate(Report& report) {
  PlayedTrayIcon icon;
  BareScan bare(icon.Record(), icon.Record());
  std::vector<double> real_us;
  std::vector<double> bare_us;
  InTurns([&] {
    real_us.push_back(MicrosecondsOf([&] { icon.Update(); }));
    bare_us.push_back(MicrosecondsOf([&] {
      bare.WorkOnRegistry();
      bare.ShowPictures();
    }));
    bare.NextScan();
  });
  report.Section("One update of the icon with the histogram; the lower quartile");
  report.Note("bare calls: kind and colours, and the picture twice", Undisturbed(bare_us), "us");
  report.AtMost("the program (budget: 1.25 times the bare calls)", Undisturbed(real_us), "us",
                1.25 * Undisturbed(bare_us));
}

void CompareAdapters(double us_of_four, Report& report) {
  constexpr int kMany = 64;
  PlayedMeter meter(kMany);
  std::vector<double> us;
  InTurns([&] {
    us.push_back(MicrosecondsOf([&] { meter.Scan(); }));
    meter.Paint();
  });
  report.Section("The number of adapters");
  report.Note("one scan of 64 adapters", Undisturbed(us), "us");
  report.AtMost("beside one of 4", Undisturbed(us) / us_of_four, "times", 17);
}

}  // namespace bench
