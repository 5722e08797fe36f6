#include "alerts/notifications.h"

#include <algorithm>
#include <optional>
#include <string>

#include "program/product.h"

namespace alerts {
namespace {

namespace setting = settings::setting;

constexpr int kTimerMs = 1000;
constexpr int kBalloonSeconds = 30;
// The default of both rules, in this spelling, whatever the preferences show for the first rule.
constexpr std::string_view kDefaultWave = "warning.wav";

// A flag that is read once, when it is first needed.
class FlagOnce {
 public:
  FlagOnce(settings::Store& store, const settings::BooleanSetting& flag)
      : store_(store), flag_(flag) {}
  [[nodiscard]] bool Get() {
    if (!value_) value_ = store_.Read(flag_);
    return *value_;
  }

 private:
  settings::Store& store_;
  const settings::BooleanSetting& flag_;
  std::optional<bool> value_;
};

// The state of a rule during one scan.
struct WatchedRule {
  [[nodiscard]] bool WatchesSomething() { return downloaded.Get() || uploaded.Get(); }

  // The threshold is that of a single scan, not of the whole time, though the dialog's wording
  // sounds like it.
  void Count(const engine::ScanAmounts& scan) {
    const std::int64_t threshold = store.Read(rule.bytes);
    CountIf(rule.qualifies(scan.ScanSumUL, threshold), uploaded, ul_ticks);
    CountIf(rule.qualifies(scan.ScanSumDL, threshold), downloaded, dl_ticks);
  }

  static void CountIf(bool qualifies, FlagOnce& watched, std::int64_t& ticks) {
    ticks = qualifies && watched.Get() ? ticks + 1 : 0;
  }

  settings::Store& store;
  const TrafficRule& rule;
  std::int64_t& ul_ticks;
  std::int64_t& dl_ticks;
  FlagOnce downloaded{store, rule.downloaded};
  FlagOnce uploaded{store, rule.uploaded};
};

}  // namespace

Notifications::Notifications(toolkit::Application& app, settings::Store& store,
                             const language::Language& language, Reactions& reactions)
    : TimeOutTimer(app, kTimerMs, [this] { TimeOutTimerTimer(); }),
      store_(store),
      language_(language),
      reactions_(reactions) {
  LessNotification.OnExecute = [this] { LessNotificationExecute(); };
  MoreNotification.OnExecute = [this] { MoreNotificationExecute(); };
}

void Notifications::CheckNotifications(const engine::ScanAmounts& scan) {
  WatchedRule rules[] = {{store_, kLessRule, LessUploadedTicks, LessDownloadedTicks},
                         {store_, kMoreRule, MoreUploadedTicks, MoreDownloadedTicks}};
  const bool watching = store_.Read(setting::NotificationsActive) &&
                        std::ranges::any_of(rules, &WatchedRule::WatchesSomething);
  TimeOutTimer.SetEnabled(watching);
  if (!watching) return;
  for (WatchedRule& rule : rules) rule.Count(scan);
}

// When both directions are due, the reaction runs twice in the same second: each direction is
// reported by itself.
void Notifications::TimeOutTimerTimer() {
  FireWhenDue(LessUploadedTicks, kLessRule, LessNotification);
  FireWhenDue(LessDownloadedTicks, kLessRule, LessNotification);
  FireWhenDue(MoreUploadedTicks, kMoreRule, MoreNotification);
  FireWhenDue(MoreDownloadedTicks, kMoreRule, MoreNotification);
}

void Notifications::FireWhenDue(std::int64_t& ticks, const TrafficRule& rule,
                                const toolkit::Action& action) {
  if (ticks < store_.Read(rule.seconds)) return;
  ticks = 0;
  action.Execute();
}

void Notifications::Execute(const TrafficRule& rule) {
  if (store_.Read(rule.is_play)) {
    reactions_.PlayWave(store_.ReadWith(rule.wave, store_.ProgramFile(kDefaultWave)));
  }
  const std::int64_t action = store_.Read(rule.action);
  if (action == kDisplayMessage) {
    const std::string title =
        std::string(program::kProductTitle) + " " + language_.Text(language::text::MainForm::S3);
    reactions_.Warn(title, store_.Read(rule.message), kBalloonSeconds);
  } else if (action == kShutdownComputer) {
    reactions_.ShutDownComputer();
  }
}

}  // namespace alerts
