#include "preferences/graph_grids_page.h"

#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

constexpr int kWidestSpace = 1000;

// The lines are read when they are drawn; the graph only has to be drawn anew.
template <class Value>
void DrawAnew(const Meter& meter, Value /*value*/) {
  meter.graph.Refresh();
}

}  // namespace

GraphGridsPage::GraphGridsPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "GraphGrids", context),
      grpVertical(*this, "grpVertical"),
      vGridsVisibleCheckBox(grpVertical, "vGridsVisibleCheckBox"),
      lblVLineStyle(grpVertical, "lblVLineStyle", toolkit::kCaptionText),
      cmbVLineStyle(grpVertical, "cmbVLineStyle"),
      lblVLineSpace(grpVertical, "lblVLineSpace", toolkit::kCaptionText),
      vLineSpace(grpVertical, "vLineSpace"),
      lblVLineColor(grpVertical, "lblVLineColor", toolkit::kCaptionText),
      vLineColor(grpVertical, "vLineColor"),
      grpHorizontal(*this, "grpHorizontal"),
      hGridsVisibleCheckBox(grpHorizontal, "hGridsVisibleCheckBox"),
      lblHLineStyle(grpHorizontal, "lblHLineStyle", toolkit::kCaptionText),
      cmbHLineStyle(grpHorizontal, "cmbHLineStyle"),
      lblHLineSpace(grpHorizontal, "lblHLineSpace", toolkit::kCaptionText),
      hLineSpace(grpHorizontal, "hLineSpace"),
      lblHLineColor(grpHorizontal, "lblHLineColor", toolkit::kCaptionText),
      hLineColor(grpHorizontal, "hLineColor"),
      visible_(context),
      vertical_style_(context),
      horizontal_style_(context),
      others_(context) {
  PlaceControls();
  // What a list shows until its lines are shown for the first time.
  const std::vector<std::string> styles(5);
  for (toolkit::ComboBox* list : {&cmbVLineStyle, &cmbHLineStyle}) {
    list->SetItems(styles);
    list->SetItemIndex(static_cast<int>(setting::cmbVLineStyle.read));
  }
  vLineSpace.SetRange(0, kWidestSpace, 1);
  hLineSpace.SetRange(0, kWidestSpace, 1);
  visible_.Connect({
      {vGridsVisibleCheckBox, setting::vGridVisible,
       [this](const Meter& meter, bool visible) { ShowLines(meter, visible, vertical_style_); }},
      {hGridsVisibleCheckBox, setting::hGridVisible,
       [this](const Meter& meter, bool visible) { ShowLines(meter, visible, horizontal_style_); }},
  });
  vertical_style_.Connect({{cmbVLineStyle, setting::cmbVLineStyle, DrawAnew<std::int64_t>}});
  horizontal_style_.Connect({{cmbHLineStyle, setting::cmbHLineStyle, DrawAnew<std::int64_t>}});
  others_.Connect({
      {vLineSpace, setting::vLineSpace, DrawAnew<std::int64_t>},
      {vLineColor, setting::vLineColor, text::vLineColor, DrawAnew<platform::Colour>},
      {hLineSpace, setting::hLineSpace, DrawAnew<std::int64_t>},
      {hLineColor, setting::hLineColor, text::hLineColor, DrawAnew<platform::Colour>},
  });
}

void GraphGridsPage::PlaceControls() {
  constexpr int kHeight = 134;
  constexpr FieldColumn kFields{kGroupTop + kRow + 2, 170};
  toolkit::ApplyLayout({
      {grpVertical, {kMargin, kMargin, kWidth, kHeight}},
      {vGridsVisibleCheckBox, {kMargin, kGroupTop, kGroupWidth, kBoxHeight}},
      {lblVLineStyle, kFields.Label(0)},
      {cmbVLineStyle, kFields.Field(0, 150)},
      {lblVLineSpace, kFields.Label(1)},
      {vLineSpace, kFields.Field(1, 80)},
      {lblVLineColor, kFields.Label(2)},
      {vLineColor, kFields.Field(2, 80)},
      {grpHorizontal, {kMargin, kMargin + kHeight + kMargin, kWidth, kHeight}},
      {hGridsVisibleCheckBox, {kMargin, kGroupTop, kGroupWidth, kBoxHeight}},
      {lblHLineStyle, kFields.Label(0)},
      {cmbHLineStyle, kFields.Field(0, 150)},
      {lblHLineSpace, kFields.Label(1)},
      {hLineSpace, kFields.Field(1, 80)},
      {lblHLineColor, kFields.Label(2)},
      {hLineColor, kFields.Field(2, 80)},
  });
}

void GraphGridsPage::Localise(const language::Translation& say) {
  const std::vector<std::string> styles = Texts(
      say,
      {text::LineStyle0, text::LineStyle1, text::LineStyle2, text::LineStyle3, text::LineStyle4});
  cmbVLineStyle.SetItems(styles);
  cmbHLineStyle.SetItems(styles);
  Say(say,
      {
          {grpVertical, text::grpVertical},
          {vGridsVisibleCheckBox, text::vGridsVisibleCheckBox, text::vGridsVisibleCheckBoxHint},
          {lblVLineStyle, text::lblVLineStyle},
          {cmbVLineStyle, {}, text::LineStyleHint},
          {lblVLineSpace, text::lblVLineSpace},
          {lblVLineColor, text::lblVLineColor},
          {vLineColor, text::vLineColor, text::ColorPanelHint},
          {grpHorizontal, text::grpHorizontal},
          {hGridsVisibleCheckBox, text::hGridsVisibleCheckBox, text::hGridsVisibleCheckBoxHint},
          {lblHLineStyle, text::lblHLineStyle},
          {cmbHLineStyle, {}, text::LineStyleHint},
          {lblHLineSpace, text::lblHLineSpace},
          {lblHLineColor, text::lblHLineColor},
          {hLineColor, text::hLineColor, text::ColorPanelHint},
      });
  for (toolkit::SpinEdit* spin : {&vLineSpace, &hLineSpace}) {
    spin->SetHint(RangeOf(*spin, say, text::LineSpaceHint));
  }
}

// With the lines comes their style: what is drawn and what the list says are the same.
void GraphGridsPage::ShowLines(const Meter& meter, bool visible, Options& style) {
  meter.graph.Refresh();
  if (!visible) return;
  const Context::Reading reading(context_);
  style.Read();
}

void GraphGridsPage::Read() {
  visible_.Read();
  if (vGridsVisibleCheckBox.Checked()) vertical_style_.Read();
  if (hGridsVisibleCheckBox.Checked()) horizontal_style_.Read();
  others_.Read();
}

}  // namespace preferences
