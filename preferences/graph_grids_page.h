// The page "GraphGrids": the lines over the graph.
#pragma once

#include "preferences/page.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class GraphGridsPage final : public Page {
 public:
  GraphGridsPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

 private:
  void ReadStyles();

  toolkit::GroupBox grpVertical{*this, "grpVertical"};
  toolkit::CheckBox vGridsVisibleCheckBox{grpVertical, "vGridsVisibleCheckBox"};
  Labelled<toolkit::ComboBox> cmbVLineStyle{grpVertical, "lblVLineStyle", "cmbVLineStyle"};
  Labelled<toolkit::SpinEdit> vLineSpace{grpVertical, "lblVLineSpace", "vLineSpace"};
  Labelled<toolkit::ColourPanel> vLineColor{grpVertical, "lblVLineColor", "vLineColor"};
  toolkit::GroupBox grpHorizontal{*this, "grpHorizontal"};
  toolkit::CheckBox hGridsVisibleCheckBox{grpHorizontal, "hGridsVisibleCheckBox"};
  Labelled<toolkit::ComboBox> cmbHLineStyle{grpHorizontal, "lblHLineStyle", "cmbHLineStyle"};
  Labelled<toolkit::SpinEdit> hLineSpace{grpHorizontal, "lblHLineSpace", "hLineSpace"};
  Labelled<toolkit::ColourPanel> hLineColor{grpHorizontal, "lblHLineColor", "hLineColor"};
};

}  // namespace preferences
