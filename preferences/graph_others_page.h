// The page "GraphOthers": frame, bars and scale of the graph.
#pragma once

#include "preferences/options.h"
#include "preferences/page.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class GraphOthersPage final : public Page {
 public:
  GraphOthersPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Parts of the settings read, which has other pages between them.
  void ReadBevels() { bevels_.Read(); }
  void ReadOthers() { others_.Read(); }
  void ReadScale();

 private:
  void PlaceControls();
  void SayScales(const language::Translation& say);
  void ScaleComboChange();
  void CustomScaleChange();
  [[nodiscard]] bool CustomChosen() const;
  void PushScale();

  toolkit::Label lblBevelInner;
  toolkit::ComboBox BevelInner;
  toolkit::Label lblBevelOuter;
  toolkit::ComboBox BevelOuter;
  toolkit::Label lblBevelWidth;
  toolkit::SpinEdit BevelWidth;
  toolkit::Label lblBorderWidth;
  toolkit::SpinEdit BorderWidth;
  toolkit::Label lblPulseSpace;
  toolkit::SpinEdit PulseSpace;
  toolkit::Label lblPulseWidth;
  toolkit::SpinEdit PulseWidth;
  toolkit::CheckBox chkZeroBased;
  toolkit::CheckBox chkScaleActive;
  toolkit::CheckBox chk3dGraph;
  toolkit::Label lblScale;
  toolkit::ComboBox ScaleCombo;
  toolkit::Label lblCustomScale;
  toolkit::SpinEdit CustomScale;

  Options bevels_;
  Options others_;
};

}  // namespace preferences
