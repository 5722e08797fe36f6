// The page "Notification": the two rules about the traffic, which share one set of controls, and
// the ticker.
#pragma once

#include "alerts/traffic_rule.h"
#include "preferences/action_fields.h"
#include "preferences/options.h"
#include "preferences/page.h"
#include "preferences/sound_file.h"
#include "toolkit/controls/group_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class NotificationPage final : public Page {
 public:
  NotificationPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Show what is stored.
  void ReadTicker();
  void ReadRule();
  void ReadActive();

 private:
  void PlaceControls();
  void PlaceTicker(int top);
  void ConnectHandlers();
  // Asked of the store anew by every handler: another program may have chosen the other one.
  [[nodiscard]] const alerts::TrafficRule& Chosen();
  void LessOrMoreChange();
  // Puts the values of the chosen rule into the controls.
  void ReadControls();

  toolkit::CheckBox NotificationsCheckBox;
  toolkit::ComboBox LessOrMore;
  toolkit::SpinEdit BytesSpin;
  toolkit::Label lblBytes;
  toolkit::CheckBox WhenDownload;
  toolkit::CheckBox WhenUpload;
  toolkit::Label lblInLast;
  toolkit::SpinEdit BytesSec;
  toolkit::Label lblSeconds;
  toolkit::CheckBox PlayEnabled;
  SoundFile sound_;
  ActionFields action_;  // ActionComboBox, DisplayMessage
  toolkit::GroupBox grpTicker;
  toolkit::CheckBox TickerCheckBox;
  toolkit::SpinEdit TickerSpin;
  toolkit::Label lblTickerBytes;
  SoundFile ticker_sound_;

  Options ticker_;
  Options active_;
};

}  // namespace preferences
