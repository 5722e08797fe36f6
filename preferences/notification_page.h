// The page "Notification": the two rules about the traffic, which share one set of controls, and
// the ticker.
#pragma once

#include "preferences/action_fields.h"
#include "preferences/page.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class NotificationPage final : public Page {
 public:
  NotificationPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

 private:
  // The stored values of a rule.
  struct Rule;
  static const Rule kLess;
  static const Rule kMore;
  static constexpr platform::TextStyle kWord{platform::TextAlign::kLeft};

  void AddRule();
  void AddTicker(int top);
  // Asked of the store anew by every handler: another program may have chosen the other one.
  [[nodiscard]] const Rule& Chosen();
  void ReadChoice();
  void LessOrMoreChange();

  toolkit::CheckBox NotificationsCheckBox{*this, "NotificationsCheckBox"};
  toolkit::ComboBox LessOrMore{*this, "LessOrMore"};
  toolkit::SpinEdit BytesSpin{*this, "BytesSpin"};
  toolkit::Label lblBytes{*this, "lblBytes", kWord};
  toolkit::CheckBox WhenDownload{*this, "WhenDownload"};
  toolkit::CheckBox WhenUpload{*this, "WhenUpload"};
  toolkit::Label lblInLast{*this, "lblInLast", kWord};
  toolkit::SpinEdit BytesSec{*this, "BytesSec"};
  toolkit::Label lblSeconds{*this, "lblSeconds", kWord};
  toolkit::CheckBox PlayEnabled{*this, "PlayEnabled"};
  SoundFile sound_{*this, "PlayWavFile", "PlayOpenBtn", "PlayPreview"};
  ActionFields action_{*this, "lblAction", "ActionComboBox", "lblDisplayMessage", "DisplayMessage"};
  toolkit::GroupBox grpTicker{*this, "grpTicker"};
  toolkit::CheckBox TickerCheckBox{grpTicker, "TickerCheckBox"};
  toolkit::SpinEdit TickerSpin{grpTicker, "TickerSpin"};
  toolkit::Label lblTickerBytes{grpTicker, "lblTickerBytes", kWord};
  SoundFile ticker_sound_{grpTicker, "TickerWavFile", "TickerOpenWav", "TickerPlayWav"};
};

}  // namespace preferences
