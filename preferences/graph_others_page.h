// The page "GraphOthers": frame, bars and scale of the graph.
#pragma once

#include "preferences/page.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class GraphOthersPage final : public Page {
 public:
  GraphOthersPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

 private:
  void AddScale(int top);
  void SayScales(const language::Translation& say);
  void ReadScale();
  void ScaleComboChange();
  void CustomScaleChange();
  [[nodiscard]] bool CustomChosen() const;
  void PushScale();

  Labelled<toolkit::ComboBox> BevelInner{*this, "BevelInner"};
  Labelled<toolkit::ComboBox> BevelOuter{*this, "BevelOuter"};
  Labelled<toolkit::SpinEdit> BevelWidth{*this, "BevelWidth"};
  Labelled<toolkit::SpinEdit> BorderWidth{*this, "BorderWidth"};
  Labelled<toolkit::SpinEdit> PulseSpace{*this, "PulseSpace"};
  Labelled<toolkit::SpinEdit> PulseWidth{*this, "PulseWidth"};
  toolkit::CheckBox chkZeroBased{*this, "chkZeroBased"};
  toolkit::CheckBox chkScaleActive{*this, "chkScaleActive"};
  toolkit::CheckBox chk3dGraph{*this, "chk3dGraph"};
  Labelled<toolkit::ComboBox> ScaleCombo{*this, "lblScale", "ScaleCombo"};
  Labelled<toolkit::SpinEdit> CustomScale{*this, "CustomScale"};
};

}  // namespace preferences
