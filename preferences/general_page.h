// The page "General".
#pragma once

#include <string>
#include <vector>

#include "preferences/page.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class GeneralPage final : public Page {
 public:
  GeneralPage(toolkit::Notebook& notebook, Context& context);

 private:
  void AvarageTrackBarChange();
  void ReadLanguages();
  void LanguageChange();

  toolkit::CheckBox chkScreenDocking{*this, "chkScreenDocking"};
  toolkit::CheckBox chkStartIconMode{*this, "chkStartIconMode"};
  toolkit::CheckBox chkShowHints{*this, "chkShowHints"};
  toolkit::CheckBox chkLoadOnWindows{*this, "chkLoadOnWindows"};
  toolkit::CheckBox chkCopyIP{*this, "chkCopyIP"};
  Labelled<toolkit::TrackBar> AvarageTrackBar{*this, "lblAvarage", "AvarageTrackBar"};
  toolkit::Label lblAvarageTime{*this, "lblAvarageTime", {}};  // the number that the bar stands for
  Labelled<toolkit::ComboBox> cmbLanguage{*this, "lblLanguage", "cmbLanguage"};

  std::vector<std::string> languages_;  // as the list shows them
};

}  // namespace preferences
