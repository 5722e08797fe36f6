#include "alerts/bandwidth_limit.h"

#include "platform/wrapping.h"

namespace alerts {
namespace {

namespace setting = settings::setting;

constexpr std::int64_t kDefaultMoreThan = 0;  // the preferences have another default
constexpr std::int64_t kUnits = 3;            // kilobytes, megabytes, gigabytes

// Returns the bytes that count towards the limit, or nullopt when no direction counts or the period
// does not exist.
std::optional<std::int64_t> CountedTotal(settings::Store& store) {
  const bool download = store.Read(setting::baDownload);
  const bool upload = store.Read(setting::baUpload);
  if (!download && !upload) return {};
  const std::optional<engine::Period> period = ReadLimitPeriod(store);
  if (!period) return {};
  std::int64_t total = 0;
  if (download) total = PeriodTotalDL(store, *period);
  if (upload) total = platform::WrappingAdd(total, PeriodTotalUL(store, *period));
  return total;
}

}  // namespace

std::int64_t LimitNumber(settings::Store& store) {
  return store.ReadWith(setting::MoreThan, kDefaultMoreThan);
}

std::optional<std::int64_t> LimitBytes(settings::Store& store) {
  const std::int64_t unit = store.Read(setting::AlertsMoreThan);
  if (unit < 0 || unit >= kUnits) return {};
  // The number has 32 bits and the largest unit 30, so the product fits.
  return LimitNumber(store) * (std::int64_t{1024} << (10 * unit));
}

std::optional<engine::Period> ReadLimitPeriod(settings::Store& store) {
  const std::int64_t stored = store.Read(setting::BADayWeekMonth);
  if (stored < 0 || stored >= std::ssize(engine::kPeriods)) return {};
  return engine::kPeriods[static_cast<std::size_t>(stored)];
}

std::int64_t PeriodTotalDL(settings::Store& store, engine::Period period) {
  return store.Read(engine::CountersOf(period).total_dl);
}

std::int64_t PeriodTotalUL(settings::Store& store, engine::Period period) {
  return store.Read(engine::CountersOf(period).total_ul);
}

void CheckBandwidthAlert(settings::Store& store, const std::function<void()>& alert) {
  if (store.Read(setting::BAShow) || !store.Read(setting::BAAlerts)) return;
  const std::optional<std::int64_t> limit = LimitBytes(store);
  const std::optional<std::int64_t> total = limit ? CountedTotal(store) : std::nullopt;
  if (!total || *total < *limit) return;
  // This is written before the alert, whose window lets further scans run.
  store.Write(setting::BAShow, true);
  alert();
}

}  // namespace alerts
