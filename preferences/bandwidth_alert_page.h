// The page "BandwidthAlert".
#pragma once

#include "preferences/action_fields.h"
#include "preferences/options.h"
#include "preferences/page.h"
#include "preferences/sound_file.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class BandwidthAlertPage final : public Page {
 public:
  BandwidthAlertPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Shows what is stored.
  void Read();

 private:
  void PlaceControls();
  void ConnectHandlers();
  void EnablePlayControls();

  toolkit::CheckBox BAAlertsCheckBox;
  toolkit::Label lblMPerStartsOn;
  toolkit::ComboBox mPerStartsOn;
  toolkit::Label lblWPerStartsOn;
  toolkit::ComboBox wPerStartsOn;
  toolkit::Label lblMoreThan;
  toolkit::SpinEdit MoreThan;
  toolkit::ComboBox AlertsMoreThan;
  toolkit::CheckBox baDownload;
  toolkit::CheckBox baUpload;
  toolkit::Label lblDayWeekMonth;
  toolkit::ComboBox cmbDayWeekMonth;
  toolkit::CheckBox chkBAPlay;
  SoundFile sound_;
  ActionFields action_;  // BaAction, BaMessage

  Options options_;
};

}  // namespace preferences
