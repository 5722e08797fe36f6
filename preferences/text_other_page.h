// The page "TextOther": what the numeric line shows, in which units, and where it is posted.
#pragma once

#include "preferences/options.h"
#include "preferences/page.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/group_box.h"

namespace preferences {

class TextOtherPage final : public Page {
 public:
  TextOtherPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Parts of the settings read, which has other pages between them.
  void ReadLine() { line_.Read(); }
  void ReadWindowTitle() { titles_.Read(); }

 private:
  void PlaceControls();
  void ConnectHandlers();

  toolkit::GroupBox grpNumericLine;
  toolkit::CheckBox chkTariffName;
  toolkit::CheckBox chkConnLength;
  toolkit::CheckBox chkTotalCost;
  toolkit::RadioGroup rdoScaleUnits;
  toolkit::GroupBox grpWindowTitles;
  toolkit::RadioButton Post0;
  toolkit::RadioButton Post1;
  toolkit::RadioButton Post2;
  toolkit::RadioButton Post3;
  toolkit::Button DefineButton;

  Options line_;
  Options titles_;
};

}  // namespace preferences
