#include "alerts/bandwidth_alert.h"

#include <string>

#include "alerts/bandwidth_limit.h"
#include "alerts/unit_BandWidthAlert.h"
#include "language/texts.h"
#include "program/product.h"
#include "toolkit/application.h"

namespace alerts {
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
