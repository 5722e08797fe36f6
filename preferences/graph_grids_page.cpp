#include <string>
#include <vector>

#include "preferences/page.h"
#include "toolkit/controls/lists.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

// The page of the lines over the graph.
class GraphGridsPage final : public Page {
 public:
  GraphGridsPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "GraphGrids", context) {
    constexpr int kHeight = 134;
    constexpr FieldColumn kFields{kGroupTop + kRow + 2, 170};
    constexpr Range kSpace{0, 1000, 1, &text::LineSpaceHint};
    constexpr Items kStyles{"LineStyle"};
    constexpr Says kStyle{{}, text::LineStyleHint};
    ShowDesign(cmbVLineStyle);
    ShowDesign(cmbHLineStyle);
    const auto read_styles = [this] { ReadStyles(); };
    Add(ReadStep::kGrids,
        {
            {grpVertical, {kMargin, kMargin, kWidth, kHeight}},
            {vGridsVisibleCheckBox, GroupLine(0), setting::vGridVisible, read_styles},
            {grpHorizontal, {kMargin, kMargin + kHeight + kMargin, kWidth, kHeight}},
            {hGridsVisibleCheckBox, GroupLine(0), setting::hGridVisible, read_styles},
        });
    Add(ReadStep::kGrids, read_styles);
    Add({
        {cmbVLineStyle, kFields.At(0, 150), setting::cmbVLineStyle, kStyles, kStyle},
        {cmbHLineStyle, kFields.At(0, 150), setting::cmbHLineStyle, kStyles, kStyle},
    });
    Add(ReadStep::kGrids, {
                              {vLineSpace, kFields.At(1, 80), setting::vLineSpace, kSpace},
                              {vLineColor, kFields.At(2, 80), setting::vLineColor},
                              {hLineSpace, kFields.At(1, 80), setting::hLineSpace, kSpace},
                              {hLineColor, kFields.At(2, 80), setting::hLineColor},
                          });
  }

 private:
  // Sets the row that a list shows until its lines are shown for the first time.
  static void ShowDesign(toolkit::ListControl& list) {
    list.SetItems(std::vector<std::string>(5));
    list.SetItemIndex(static_cast<int>(setting::cmbVLineStyle.read));
  }

  // A style is read together with its lines, and only while they are shown, so that the list says
  // what is drawn.
  void ReadStyles() {
    const Context::Reading reading(context_);
    settings::Store& store = context_.store;
    if (vGridsVisibleCheckBox.Checked()) ShowIn(cmbVLineStyle, store.Read(setting::cmbVLineStyle));
    if (hGridsVisibleCheckBox.Checked()) ShowIn(cmbHLineStyle, store.Read(setting::cmbHLineStyle));
  }

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

}  // namespace

std::unique_ptr<Page> MakeGraphGridsPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<GraphGridsPage>(notebook, context);
}

}  // namespace preferences
