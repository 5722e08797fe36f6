// The page "BandwidthAlert".
#pragma once

#include "preferences/action_fields.h"
#include "preferences/page.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class BandwidthAlertPage final : public Page {
 public:
  BandwidthAlertPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

 private:
  void EnablePlayControls();

  toolkit::CheckBox BAAlertsCheckBox{*this, "BAAlertsCheckBox"};
  Labelled<toolkit::ComboBox> mPerStartsOn{*this, "lblMPerStartsOn", "mPerStartsOn"};
  Labelled<toolkit::ComboBox> wPerStartsOn{*this, "lblWPerStartsOn", "wPerStartsOn"};
  Labelled<toolkit::SpinEdit> MoreThan{*this, "MoreThan"};
  toolkit::ComboBox AlertsMoreThan{*this, "AlertsMoreThan"};
  toolkit::CheckBox baDownload{*this, "baDownload"};
  toolkit::CheckBox baUpload{*this, "baUpload"};
  Labelled<toolkit::ComboBox> cmbDayWeekMonth{*this, "lblDayWeekMonth", "cmbDayWeekMonth"};
  toolkit::CheckBox chkBAPlay{*this, "chkBAPlay"};
  SoundFile sound_{*this, "BaPlayFile", "BaSpeedbtn", "BaSpeedbtn2"};
  ActionFields action_{*this, "lblBaAction", "BaAction", "lblBaMessage", "BaMessage"};
};

}  // namespace preferences
