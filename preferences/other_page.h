// The page "Other": keyboard lights, transparency, exit.
#pragma once

#include "preferences/page.h"

namespace preferences {

class OtherPage final : public Page {
 public:
  OtherPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

 private:
  toolkit::GroupBox grpKeyboardLeds{*this, "grpKeyboardLeds"};
  toolkit::CheckBox DLSwitchScr{grpKeyboardLeds, "DLSwitchScr"};
  toolkit::CheckBox ULSwitchNum{grpKeyboardLeds, "ULSwitchNum"};
  Labelled<toolkit::SpinEdit> spnKeyLedsLimit{grpKeyboardLeds, "lblKeyLedsLimit",
                                              "spnKeyLedsLimit"};
  toolkit::GroupBox grpTransparency{*this, "grpTransparency"};
  toolkit::CheckBox AutoTransparentONOFF{grpTransparency, "AutoTransparentONOFF"};
  Labelled<toolkit::TrackBar> Win2kTransTrack{grpTransparency, "Win2kTransTrack"};
  toolkit::CheckBox TransparentFade{grpTransparency, "TransparentFade"};
  toolkit::GroupBox grpExit{*this, "grpExit"};
  toolkit::CheckBox AskOnExit{grpExit, "AskOnExit"};
};

}  // namespace preferences
