// The page "General".
#pragma once

#include <string>
#include <vector>

#include "preferences/options.h"
#include "preferences/page.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class GeneralPage final : public Page {
 public:
  GeneralPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Shows what is stored, and the languages that there are now.
  void Read();

 private:
  void PlaceControls();
  void AvarageTrackBarChange(const display::RunningMeter& meter, std::int64_t scans);
  void ReadLanguages();
  void LanguageChange();

  toolkit::CheckBox chkScreenDocking;
  toolkit::CheckBox chkStartIconMode;
  toolkit::CheckBox chkShowHints;
  toolkit::CheckBox chkLoadOnWindows;
  toolkit::CheckBox chkCopyIP;
  toolkit::Label lblAvarage;
  toolkit::TrackBar AvarageTrackBar;
  toolkit::Label lblAvarageTime;  // the number that the bar stands for
  toolkit::Label lblLanguage;
  toolkit::ComboBox cmbLanguage;

  Options options_;
  std::vector<std::string> languages_;  // as the list shows them
};

}  // namespace preferences
