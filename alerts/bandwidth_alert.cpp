#include "alerts/bandwidth_alert.h"

#include <string>

#include "alerts/unit_BandWidthAlert.h"
#include "language/texts.h"
#include "platform/wrapping.h"
#include "program/product.h"
#include "toolkit/application.h"

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

namespace {

namespace setting = settings::setting;

constexpr int kBalloonSeconds = 15;

}  // namespace

BandwidthAlert::BandwidthAlert(toolkit::Application& app, settings::Store& store,
                               quantity::Quantity& quantity, const language::Language& language,
                               Reactions& reactions, toolkit::PopupMenu& menu)
    : app_(app),
      store_(store),
      quantity_(quantity),
      language_(language),
      reactions_(reactions),
      menu_(menu) {
  Action.OnExecute = [this] { BandwidthAlertExecute(); };
}

void BandwidthAlert::Check() {
  CheckBandwidthAlert(store_, [this] { Action.Execute(); });
}

void BandwidthAlert::BandwidthAlertExecute() {
  if (store_.Read(setting::chkBAPlay)) reactions_.PlayWave(store_.Read(setting::BaPlayFile));
  const std::int64_t action = store_.Read(setting::BAAction);
  if (action == kDisplayMessage) {
    ShowMessage();
  } else if (action == kShutdownComputer) {
    reactions_.ShutDownComputer();
  }
}

void BandwidthAlert::ShowMessage() {
  // There is no blank between the two parts, unlike in the titles of the notifications.
  const std::string title =
      std::string(program::kProductTitle) + language_.Text(language::text::MainForm::S4);
  reactions_.Warn(title, store_.Read(setting::BAMessage), kBalloonSeconds);
  menu_.CloseThen([this] { ShowWindow(); });
}

void BandwidthAlert::ShowWindow() {
  try {
    app_.Modals().ShowOnce<T_frmBandWidthAlert>(kBandWidthAlertForm, app_, store_, quantity_,
                                                language_);
  } catch (const std::exception&) {
    // The balloon has told the user already, and the scan must go on.
    return;
  }
}

}  // namespace alerts
