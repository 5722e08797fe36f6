// The page "TextOther": what the numeric line shows, in which units, and where it is posted.
#pragma once

#include "preferences/page.h"
#include "toolkit/controls/button.h"

namespace preferences {

class TextOtherPage final : public Page {
 public:
  TextOtherPage(toolkit::Notebook& notebook, Context& context);

 private:
  toolkit::GroupBox grpNumericLine{*this, "grpNumericLine"};
  toolkit::CheckBox chkTariffName{grpNumericLine, "chkTariffName"};
  toolkit::CheckBox chkConnLength{grpNumericLine, "chkConnLength"};
  toolkit::CheckBox chkTotalCost{grpNumericLine, "chkTotalCost"};
  toolkit::RadioGroup rdoScaleUnits{*this, "rdoScaleUnits"};
  toolkit::GroupBox grpWindowTitles{*this, "grpWindowTitles"};
  toolkit::RadioButton Post0{grpWindowTitles, "Post0"};
  toolkit::RadioButton Post1{grpWindowTitles, "Post1"};
  toolkit::RadioButton Post2{grpWindowTitles, "Post2"};
  toolkit::RadioButton Post3{grpWindowTitles, "Post3"};
  toolkit::Button DefineButton{grpWindowTitles, "DefineButton"};
};

}  // namespace preferences
