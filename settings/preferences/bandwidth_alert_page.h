// The page "BandwidthAlert".
#pragma once

#include "settings/preferences/action_fields.h"
#include "settings/preferences/options.h"
#include "settings/preferences/page.h"
#include "settings/preferences/sound_file.h"
#include "toolkit/label.h"
#include "toolkit/list_box.h"

namespace settings::preferences {

class BandwidthAlertPage final : public Page {
 public:
  BandwidthAlertPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const Translation& say) override;

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

}  // namespace settings::preferences
