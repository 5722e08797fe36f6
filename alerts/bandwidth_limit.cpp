#include "alerts/bandwidth_limit.h"

#include <array>

#include "settings/counter_text.h"

namespace alerts {
namespace {

namespace setting = settings::setting;

constexpr std::int64_t kDefaultMoreThan = 0;  // the preferences show another one
constexpr std::int64_t kUnits = 3;            // kilobytes, megabytes, gigabytes

struct PeriodCounters {
  const settings::CounterSetting& dl;
  const settings::CounterSetting& ul;
};

const PeriodCounters& CountersOf(LimitPeriod period) {
  static constexpr std::array<PeriodCounters, 3> kCounters = {{
      {setting::CurrentDayTotalDL, setting::CurrentDayTotalUL},
      {setting::CurrentWeekTotalDL, setting::CurrentWeekTotalUL},
      {setting::CurrentMonthTotalDL, setting::CurrentMonthTotalUL},
  }};
  return kCounters[static_cast<std::size_t>(period)];
}

// What counts towards the limit; nothing when no direction does or the period does not exist.
std::optional<std::int64_t> CountedTotal(settings::Store& store) {
  const bool download = store.Read(setting::baDownload);
  const bool upload = store.Read(setting::baUpload);
  if (!download && !upload) return {};
  const std::optional<LimitPeriod> period = ReadLimitPeriod(store);
  if (!period) return {};
  std::int64_t total = 0;
  if (download) total = PeriodTotalDL(store, *period);
  if (upload) total = settings::WrappingAdd(total, PeriodTotalUL(store, *period));
  return total;
}

}  // namespace

std::optional<std::int64_t> LimitBytes(settings::Store& store) {
  const std::int64_t unit = store.Read(setting::AlertsMoreThan);
  if (unit < 0 || unit >= kUnits) return {};
  const std::int64_t number = store.ReadWith(setting::MoreThan, kDefaultMoreThan);
  // The number has 32 bits and the largest unit 30, so the product fits.
  return number * (std::int64_t{1024} << (10 * unit));
}

std::optional<LimitPeriod> ReadLimitPeriod(settings::Store& store) {
  const std::int64_t stored = store.Read(setting::BADayWeekMonth);
  if (stored < 0 || stored > static_cast<std::int64_t>(LimitPeriod::kMonth)) return {};
  return static_cast<LimitPeriod>(stored);
}

std::int64_t PeriodTotalDL(settings::Store& store, LimitPeriod period) {
  return store.Read(CountersOf(period).dl);
}

std::int64_t PeriodTotalUL(settings::Store& store, LimitPeriod period) {
  return store.Read(CountersOf(period).ul);
}

void CheckBandwidthAlert(settings::Store& store, const std::function<void()>& alert) {
  if (store.Read(setting::BAShow) || !store.Read(setting::BAAlerts)) return;
  const std::optional<std::int64_t> limit = LimitBytes(store);
  const std::optional<std::int64_t> total = limit ? CountedTotal(store) : std::nullopt;
  if (!total || *total < *limit) return;
  // Before the alert, whose window lets further scans run.
  store.Write(setting::BAShow, true);
  alert();
}

}  // namespace alerts
