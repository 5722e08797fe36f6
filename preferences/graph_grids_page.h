// The page "GraphGrids": the lines over the graph.
#pragma once

#include "preferences/options.h"
#include "preferences/page.h"
#include "toolkit/controls/group_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"

namespace preferences {

class GraphGridsPage final : public Page {
 public:
  GraphGridsPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;
  void Read();

 private:
  void PlaceControls();
  void ShowLines(const display::RunningMeter& meter, bool visible, Options& style);

  toolkit::GroupBox grpVertical;
  toolkit::CheckBox vGridsVisibleCheckBox;
  toolkit::Label lblVLineStyle;
  toolkit::ComboBox cmbVLineStyle;
  toolkit::Label lblVLineSpace;
  toolkit::SpinEdit vLineSpace;
  toolkit::Label lblVLineColor;
  toolkit::ColourPanel vLineColor;
  toolkit::GroupBox grpHorizontal;
  toolkit::CheckBox hGridsVisibleCheckBox;
  toolkit::Label lblHLineStyle;
  toolkit::ComboBox cmbHLineStyle;
  toolkit::Label lblHLineSpace;
  toolkit::SpinEdit hLineSpace;
  toolkit::Label lblHLineColor;
  toolkit::ColourPanel hLineColor;

  Options visible_;
  // Each is read only while its lines are shown.
  Options vertical_style_;
  Options horizontal_style_;
  Options others_;
};

}  // namespace preferences
