#include "alerts/notifications.h"

#include <optional>
#include <string>

#include "engine/product.h"

namespace alerts {
namespace {

namespace setting = settings::setting;

constexpr int kTimerMs = 1000;
constexpr int kBalloonSeconds = 30;
// Of both rules, in this spelling, whatever the preferences show for the first one.
constexpr std::string_view kDefaultWave = "warning.wav";

// A flag that is read when it is first needed, and once.
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

void CountIf(bool amount_qualifies, FlagOnce& watched, std::int64_t& ticks) {
  ticks = amount_qualifies && watched.Get() ? ticks + 1 : 0;
}

}  // namespace

struct Notifications::Rule {
  const settings::BooleanSetting& is_play;
  const settings::TextSetting& wave;
  const settings::IntegerSetting& action;
  const settings::TextSetting& message;
};

const Notifications::Rule Notifications::kLess{setting::LessIsPlay, setting::LessPlayWavFile,
                                               setting::LessAction, setting::LessDisplayMessage};
const Notifications::Rule Notifications::kMore{setting::MoreIsPlay, setting::MorePlayWavFile,
                                               setting::MoreAction, setting::MoreDisplayMessage};

Notifications::Notifications(toolkit::Application& app, settings::Store& store,
                             const language::Language& language, Reactions& reactions)
    : TimeOutTimer(app, kTimerMs, [this] { TimeOutTimerTimer(); }),
      store_(store),
      language_(language),
      reactions_(reactions) {
  LessNotification.OnExecute = [this] { LessNotificationExecute(); };
  MoreNotification.OnExecute = [this] { MoreNotificationExecute(); };
}

// An amount equal to the threshold counts for both rules. The threshold is that of a single scan,
// not of the whole time, though the dialog's wording sounds like it.
void Notifications::CheckNotifications(const engine::ScanAmounts& scan) {
  FlagOnce less_downloaded(store_, setting::LessDownloaded);
  FlagOnce less_uploaded(store_, setting::LessUploaded);
  FlagOnce more_downloaded(store_, setting::MoreDownloaded);
  FlagOnce more_uploaded(store_, setting::MoreUploaded);
  const bool watching =
      store_.Read(setting::NotificationsActive) && (less_downloaded.Get() || less_uploaded.Get() ||
                                                    more_downloaded.Get() || more_uploaded.Get());
  TimeOutTimer.SetEnabled(watching);
  if (!watching) return;
  const std::int64_t less = store_.Read(setting::LessByteWere);
  CountIf(scan.ScanSumUL <= less, less_uploaded, LessUploadedTicks);
  CountIf(scan.ScanSumDL <= less, less_downloaded, LessDownloadedTicks);
  const std::int64_t more = store_.Read(setting::MoreByteWere);
  CountIf(scan.ScanSumUL >= more, more_uploaded, MoreUploadedTicks);
  CountIf(scan.ScanSumDL >= more, more_downloaded, MoreDownloadedTicks);
}

// With both directions due the reaction runs twice in the same second: each
// direction is told of by itself.
void Notifications::TimeOutTimerTimer() {
  FireWhenDue(LessUploadedTicks, setting::LessNotSecs, LessNotification);
  FireWhenDue(LessDownloadedTicks, setting::LessNotSecs, LessNotification);
  FireWhenDue(MoreUploadedTicks, setting::MoreNotSecs, MoreNotification);
  FireWhenDue(MoreDownloadedTicks, setting::MoreNotSecs, MoreNotification);
}

void Notifications::FireWhenDue(std::int64_t& ticks, const settings::IntegerSetting& seconds,
                                const toolkit::Action& action) {
  if (ticks < store_.Read(seconds)) return;
  ticks = 0;
  action.Execute();
}

void Notifications::Execute(const Rule& rule) {
  if (store_.Read(rule.is_play)) {
    reactions_.PlayWave(store_.ReadWith(rule.wave, store_.ProgramFile(kDefaultWave)));
  }
  const std::int64_t action = store_.Read(rule.action);
  if (action == kDisplayMessage) {
    const std::string title =
        std::string(engine::kProductTitle) + " " + language_.Text(language::text::MainForm::S3);
    reactions_.Warn(title, store_.Read(rule.message), kBalloonSeconds);
  } else if (action == kShutdownComputer) {
    reactions_.ShutDownComputer();
  }
}

}  // namespace alerts
