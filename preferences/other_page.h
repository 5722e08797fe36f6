// The page "Other": keyboard lights, transparency, exit.
#pragma once

#include "preferences/options.h"
#include "preferences/page.h"
#include "toolkit/controls/group_box.h"
#include "toolkit/controls/label.h"

namespace preferences {

class OtherPage final : public Page {
 public:
  OtherPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Parts of the settings read, which has other pages between them.
  void ReadTransparency() { transparency_.Read(); }
  void ReadExitAndFade() { exit_and_fade_.Read(); }
  void ReadLeds() { leds_.Read(); }

 private:
  void PlaceControls();

  toolkit::GroupBox grpKeyboardLeds;
  toolkit::CheckBox DLSwitchScr;
  toolkit::CheckBox ULSwitchNum;
  toolkit::Label lblKeyLedsLimit;
  toolkit::SpinEdit spnKeyLedsLimit;
  toolkit::GroupBox grpTransparency;
  toolkit::CheckBox AutoTransparentONOFF;
  toolkit::Label lblWin2kTransTrack;
  toolkit::TrackBar Win2kTransTrack;
  toolkit::CheckBox TransparentFade;
  toolkit::GroupBox grpExit;
  toolkit::CheckBox AskOnExit;

  Options transparency_;
  Options exit_and_fade_;
  Options leds_;
};

}  // namespace preferences
